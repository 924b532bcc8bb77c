#include "TabScreenPrivate.h"

#include <DisplayAPI/Command.h>

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "ScreenTextWriter.h"
#include "TellAndShow.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <cstdio>

namespace DisplayAPI {

namespace {

constexpr std::string_view ListName = "name:VantoListBox\n";

/// The title of the list of titles in the user's language; `otherwise` without a translator.
std::string listTitle(const char* otherwise)
{
    TranslatorIfc* translator = DisplayablePrivate::commonTranslator;
    return translator ? translator->translate("TabScreen.title") : otherwise;
}

/// The title of a tab without what stands before and behind a translation.
std::string titleOf(const TabData& tab)
{
    return tab.getTinfo() ? tab.getTinfo()->getString() : tab.getText();
}

void setHolderOf(DisplayablePrivateIfc* displayable, ScreenHolder* holder)
{
    if (auto* half = dynamic_cast<DisplayablePrivate*>(displayable))
        half->setHolder(holder);
}

}

TabScreenPrivate::TabScreenPrivate(TabScreen* parent, TabScreen::IconType iconType)
    : mIconType(iconType)
    , mParent(parent)
    , mWidget(VantoUApplication::getCurrentApplication() ? new TabScreenMEG : nullptr)
    , mHasHadWidget(mWidget)
    , mTabList(new VantoListBoxWithTitleMEG)
{
    assertGuiThread();
    joinApplication(this);
    list()->setListener(this);
    if (mWidget)
        mWidget->setCurrent(mTabList.get());
    mContent = mTabList.get();
    std::string title = listTitle("TabScreen Menu\n");
    setTitle(title);
}

TabScreenPrivate::~TabScreenPrivate()
{
    assertGuiThread();
    leaveApplication(this);
    // What is up must not go with the widget: the tabs' screens have theirs back.
    if (mWidget)
        mWidget->removeCurrent();
    for (const auto& tab : mTabs) {
        if (DisplayablePrivateIfc* displayable = tab->getDisp()) {
            setHolderOf(displayable, nullptr);
            displayable->gainOwnership();
        }
    }
    mTabs.clear();
    delete mTabList.get();
}

// Screen

void TabScreenPrivate::show()
{
    if (mWidget)
        mWidget->setVisible(true);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    if (mShowsTabList)
        showTabList();
    else if (tabAt(mSelected))
        showTab(mSelected);
}

void TabScreenPrivate::lostFocus()
{
    std::puts("TabScreenPrivate lostFocus");
    const TabData* tab = tabAt(mSelected);
    if (tab && tab->getDisp())
        tab->getDisp()->lostFocus();
}

void TabScreenPrivate::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
    for (const auto& tab : mTabs) {
        if (tab->getDisp())
            tab->getDisp()->connectDisplayChangedSignal(display);
    }
}

// What the user does. A listener that overrides the posting may delete this object.

void TabScreenPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::RowMoved:
    case EventType::PopupRowMoved: generateDisplayChangedEvent(); break;
    case EventType::RowChosen: tabChosen(); break;
    case EventType::LeftPressed: backSelected(); break;
    case EventType::LocaleChanged: localeChanged({}); break;
    default: break;
    }
}

void TabScreenPrivate::tabChosen()
{
    if (const int index = list() ? list()->currentIndex() : -1; index >= 0)
        mSelected = static_cast<unsigned int>(index);
    tellAndShow(*this, TabScreen::OK(), mParent);
}

void TabScreenPrivate::backSelected()
{
    LifeNode life(this);
    if (mWidget)
        mWidget->setVisible(false);
    tellAndShow(*this, TabScreen::BACK_COMMAND(), mParent);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->releaseFullScreen();
    if (life.isAlive())
        generateDisplayChangedEvent();
}

// Tabs

TabData* TabScreenPrivate::tabAt(unsigned int index) const
{
    return index < mTabs.size() ? mTabs[index].get() : nullptr;
}

TabData* TabScreenPrivate::tabWith(const DisplayablePrivateIfc* displayable) const
{
    const auto found = std::find_if(
        mTabs.begin(), mTabs.end(), [displayable](const auto& tab) { return tab->getDisp() == displayable; });
    return found == mTabs.end() ? nullptr : found->get();
}

void TabScreenPrivate::addTab(const std::string& title, DisplayablePrivateIfc* displayable, bool)
{
    add(std::make_unique<TabData>(displayable, title));
}

void TabScreenPrivate::addTab(TranslationInfo* title, DisplayablePrivateIfc* displayable, bool)
{
    add(std::make_unique<TabData>(displayable, title));
}

void TabScreenPrivate::add(std::unique_ptr<TabData> tab)
{
    assertGuiThread();
    DisplayablePrivateIfc* displayable = tab->getDisp();
    mTabs.push_back(std::move(tab));
    if (displayable) {
        setHolderOf(displayable, this);
        displayable->releaseOwnership();
        displayable->join(this);
    }
    if (mTabs.size() == 1)
        mSelected = 0;
    updateTabList();
    generateDisplayChangedEvent();
}

void TabScreenPrivate::setSelectedIndex(unsigned int index)
{
    LifeNode life(this);
    if (tabAt(index)) {
        mSelected = index;
        showTab(index);
        if (life.isAlive() && list())
            list()->setCurrentIndex(static_cast<int>(index));
    }
    if (life.isAlive())
        generateDisplayChangedEvent();
}

void TabScreenPrivate::nextTab()
{
    if (mTabs.empty())
        return;
    mSelected = tabAt(mSelected + 1) ? mSelected + 1 : 0;
    if (isTabListUp())
        return;
    LifeNode life(this);
    showTab(mSelected);
    if (life.isAlive())
        generateDisplayChangedEvent();
}

UWidget* TabScreenPrivate::getWidgetOnCurrentTab() const
{
    const TabData* tab = tabAt(mSelected);
    return tab && tab->getDisp() ? tab->getDisp()->getWidget() : nullptr;
}

// The screens of the tabs

void TabScreenPrivate::setCurrentDisplayable(Displayable* displayable)
{
    TabData* tab = tabAt(mSelected);
    DisplayablePrivateIfc* half = displayable ? displayable->getPrivateImpl() : nullptr;
    if (!tab || !replace(*tab, half))
        return;
    LifeNode life(this);
    if (!isTabListUp())
        showTab(mSelected);
    // What comes up may tell of it, and the subscriber take it out again.
    if (life.isAlive() && half && tabWith(half))
        half->releaseOwnership();
    if (life.isAlive())
        generateDisplayChangedEvent();
}

void TabScreenPrivate::setCurrentDisplayableForTabAtIndex(unsigned int index, Displayable* displayable)
{
    TabData* tab = tabAt(index);
    DisplayablePrivateIfc* half = displayable ? displayable->getPrivateImpl() : nullptr;
    if (!tab || !replace(*tab, half))
        return;
    LifeNode life(this);
    if (half)
        half->releaseOwnership();
    if (index == mSelected && !isTabListUp())
        showTab(index);
    if (life.isAlive())
        generateDisplayChangedEvent();
}

/// Gives the screen of a tab back and puts another one in. False if it is the same.
bool TabScreenPrivate::replace(TabData& tab, DisplayablePrivateIfc* displayable)
{
    DisplayablePrivateIfc* before = tab.getDisp();
    if (displayable == before)
        return false;
    tab.setDisp(displayable);
    setHolderOf(displayable, this);
    if (before)
        giveBack(*before);
    return true;
}

/// The application may delete the screen from here on.
void TabScreenPrivate::giveBack(DisplayablePrivateIfc& displayable)
{
    if (mContent && mContent.get() == displayable.getWidget())
        takeContentOut();
    setHolderOf(&displayable, nullptr);
    displayable.gainOwnership();
    displayable.disjoin();
}

void TabScreenPrivate::removeTab(TabData* tab)
{
    const auto found
        = std::find_if(mTabs.begin(), mTabs.end(), [tab](const auto& entry) { return entry.get() == tab; });
    if (found == mTabs.end())
        return;
    DisplayablePrivateIfc* displayable = tab->getDisp();
    mTabs.erase(found);
    if (displayable)
        giveBack(*displayable);
    generateDisplayChangedEvent();
}

void TabScreenPrivate::removeTab(DisplayablePrivateIfc* displayable)
{
    removeTab(tabWith(displayable));
}

void TabScreenPrivate::removeTabAtIndex(unsigned int index)
{
    removeTab(tabAt(index));
}

void TabScreenPrivate::screenDies(DisplayablePrivate& half)
{
    if (TabData* tab = tabWith(&half)) {
        tab->setDisp(nullptr);
        removeTab(tab);
    }
}

void TabScreenPrivate::takeBack(DisplayablePrivate& half)
{
    if (!mWidget || !mContent || mContent.get() != half.getWidget())
        return;
    mWidget->setCurrent(mContent.get());
    half.releaseOwnership();
}

// Titles

void TabScreenPrivate::setTitleForTabAtIndex(unsigned int index, const std::string& title)
{
    if (TabData* tab = tabAt(index))
        tab->setText(title);
    titleChanged();
}

void TabScreenPrivate::setTitleForTabAtIndex(unsigned int index, TranslationInfo* title)
{
    if (TabData* tab = tabAt(index))
        tab->setText(title);
    else
        delete title;
    titleChanged();
}

void TabScreenPrivate::titleChanged()
{
    updateTabList();
    updateWidgetTitle();
    generateDisplayChangedEvent();
}

std::string TabScreenPrivate::getTitleForTabAtIndex(unsigned int index)
{
    const TabData* tab = tabAt(index);
    return tab ? titleOf(*tab) : std::string();
}

void TabScreenPrivate::setTitle(std::string& title)
{
    if (mTabList)
        mTabList->setTitle(UString(title));
}

void TabScreenPrivate::updateTabList()
{
    if (!list())
        return;
    list()->clear();
    long index = 0;
    for (const auto& tab : mTabs) {
        const TranslationInfo* title = tab->getTinfo();
        list()->addItem(
            new VantoListBoxItemMEG(UString(title ? title->getCompleteString() : tab->getText()), index++, false));
    }
    list()->setCurrentItem(0);
}

void TabScreenPrivate::localeChanged(std::string)
{
    // Each title gives a notice.
    LifeNode life(this);
    for (unsigned int index = 0; life.isAlive() && index < mTabs.size(); ++index) {
        if (TranslationInfo* title = mTabs[index]->getTinfo())
            setTitleForTabAtIndex(index, title);
    }
    if (!life.isAlive())
        return;
    std::string title = listTitle("TabScreen Menu");
    setTitle(title);
    updateWidgetTitle();
}

// What is up

void TabScreenPrivate::takeContentOut()
{
    if (mContent && mWidget)
        mWidget->removeCurrent();
    mContent = nullptr;
}

/// While the list of titles is up the widget has its title only in the user's language, and the list's own else.
void TabScreenPrivate::updateWidgetTitle()
{
    if (!mWidget)
        return;
    if (isTabListUp())
        mWidget->setTitle(UString(listTitle("")));
    else if (const TabData* tab = tabAt(mSelected); tab && (!mContent || mContent.get() == getWidgetOnCurrentTab()))
        mWidget->setTitle(UString(titleOf(*tab)));
}

void TabScreenPrivate::showTabList()
{
    takeContentOut();
    mContent = mTabList.get();
    updateWidgetTitle();
    if (!mWidget || !mTabList)
        return;
    mWidget->setCurrent(mTabList.get());
    mWidget->refresh();
}

void TabScreenPrivate::showTab(unsigned int index)
{
    mShowsTabList = false;
    takeContentOut();
    const TabData* tab = tabAt(index);
    if (!tab)
        return;
    // Here, and not behind the screen's show(), which may tell of the change.
    mSelected = index;
    updateWidgetTitle();
    if (tab->getDisp())
        showContent(*tab->getDisp());
}

void TabScreenPrivate::showContent(DisplayablePrivateIfc& displayable)
{
    UPointer<UWidget> content = displayable.getWidget();
    if (!content) {
        if (isInTree())
            displayable.show();
        return;
    }
    mContent = content.get();
    if (mWidget) {
        // It may have been on the display by itself, which has hidden it.
        content->setVisible(true);
        mWidget->setCurrent(content.get());
    }
    LifeNode life(this);
    if (isInTree())
        displayable.show();
    if (!life.isAlive() || mContent.get() != content.get())
        return;
    auto* withTitle = dynamic_cast<VantoListBoxWithTitleMEG*>(content.get());
    if (withTitle && withTitle->list()->count() > 0)
        withTitle->list()->setCurrentItem(0);
}

// Screen text

std::string TabScreenPrivate::serialise()
{
    return write([](DisplayablePrivateIfc& displayable) { return ContentText{displayable.serialise()}; });
}

std::string TabScreenPrivate::serialise(const std::vector<Rect>& rects)
{
    return write([&rects](DisplayablePrivateIfc& displayable) {
        std::string text = displayable.serialise(rects);
        return ContentText{std::move(text), displayable.hasCaption()}; // which the text decides
    });
}

std::string TabScreenPrivate::write(const std::function<ContentText(DisplayablePrivateIfc&)>& read) const
{
    if (mHasHadWidget && !mWidget)
        return {};
    const TabData* tab = tabAt(mSelected);
    ScreenTextWriter caption;
    caption.field("caption", isTabListUp() ? mTabList->getTitle().toUTF8() : tab ? titleOf(*tab) : std::string());
    if (!isTabListUp() && tab && tab->getDisp()) {
        ContentText content = read(*tab->getDisp());
        const std::size_t name = content.hasCaption ? std::string::npos : content.text.find(ListName);
        if (name != std::string::npos)
            content.text.insert(name + ListName.size(), caption.take());
        return content.text;
    }
    ScreenTextWriter writer;
    writer.object("VantoListBox");
    writer.blocks(caption.take());
    if (isTabListUp())
        writer.blocks(list()->screenText().toUTF8());
    writer.endObject();
    return writer.take();
}

}
