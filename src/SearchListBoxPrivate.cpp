#include "SearchListBoxPrivate.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/SearchList.h>

#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "GuiThread.h"
#include "HeldRows.h"
#include "ScreenTextWriter.h"
#include "Serialiser.h"
#include "TellAndShow.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

namespace DisplayAPI {

SearchListBoxPrivate::SearchListBoxPrivate(SearchList* parent)
    : mParent(parent)
    , mWidget(new SearchableListMEG)
{
    assertGuiThread();
    mStateItem.setParent(parent);
    mWidget->setListener(this);
    joinApplication(this);
    showHint();
}

SearchListBoxPrivate::~SearchListBoxPrivate()
{
    assertGuiThread();
    leaveApplication(this);
    delete mWidget.get();
}

// Rows

int SearchListBoxPrivate::size()
{
    return list() ? list()->numItems() : 0;
}

void SearchListBoxPrivate::append(ListItemPrivateIfc* row)
{
    insertAt(row, size());
}

void SearchListBoxPrivate::insertAt(ListItemPrivateIfc* row, int index)
{
    assertGuiThread();
    if (!row || !list())
        return;
    if (VantoListBoxItemMEG* widget = row->getVantoListItem()) {
        widget->setHandle(reinterpret_cast<long>(row));
        list()->insertItem(widget, index);
    }
    row->releaseOwnership();
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::removeAt(int, ListItemPrivateIfc* row)
{
    if (row)
        HeldRows::giveToHalf(list(), *row);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::remove(ListItemPrivateIfc* row)
{
    if (!row)
        return;
    HeldRows::giveToHalf(list(), *row);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::clear()
{
    assertGuiThread();
    if (list())
        list()->clear();
    generateDisplayChangedEvent();
}

int SearchListBoxPrivate::getSelectedIndex()
{
    return list() ? list()->currentIndex() : -1;
}

void SearchListBoxPrivate::setSelectedIndex(int index)
{
    if (list())
        list()->setCurrentItem(index);
    generateDisplayChangedEvent();
}

// Title

void SearchListBoxPrivate::setTitle(const std::string& title)
{
    showTitle(mTitleInfo.show(title), true);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::setTitle(TranslationInfo* title)
{
    showTitle(mTitleInfo.showBare(title), false);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::showTitle(const std::string& title, bool isInsideDetailsMenu)
{
    if (!mWidget)
        return;
    mWidget->setTitle(UString(title));
    mWidget->setInsideDetailsMenu(isInsideDetailsMenu);
}

void SearchListBoxPrivate::localeChanged(std::string locale)
{
    if (mTitleInfo)
        showTitle(mTitleInfo.string(), false);
    // The half of a row may be the application's own, and take the list with it.
    LifeNode life(this);
    if (displayableExists(mParent))
        mParent->localeChanged(std::move(locale));
    if (life.isAlive())
        showHint();
}

void SearchListBoxPrivate::showHint()
{
    TranslatorIfc* translator = commonTranslator;
    const std::string enter = TranslationInfo("Enter.name.hint", translator).getString();
    const std::string erase = TranslationInfo("Delete.hint", translator).getString();
    if (mWidget)
        mWidget->setHintText(UString(enter + "," + erase));
}

// Search

void SearchListBoxPrivate::showSearchPopup()
{
    if (mWidget)
        mWidget->startSearching();
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::dismissSearchPopup()
{
    if (mWidget)
        mWidget->stopSearching();
    generateDisplayChangedEvent();
}

std::string SearchListBoxPrivate::getSearchText()
{
    return mWidget ? mWidget->getSearchText().toUTF8().c_str() : std::string();
}

void SearchListBoxPrivate::setSearchText(std::string text)
{
    if (mWidget)
        mWidget->setSearchText(text);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::setCountIndicator(int count)
{
    if (mWidget)
        mWidget->setCountIndicator(count);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::setSearchCountIndicator(int count)
{
    if (mWidget)
        mWidget->setSearchCountIndicator(count);
    generateDisplayChangedEvent();
}

// Life on the screen

void SearchListBoxPrivate::show()
{
    if (!mWidget)
        return;
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    if (!mWidget->inSearchMode())
        list()->setVisible(true);
    mWidget->refresh();
}

void SearchListBoxPrivate::lostFocus()
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->releaseFullScreen();
}

// What the user does. A listener may delete the list.

void SearchListBoxPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::EmptyLineLeft:
    case EventType::LeftPressed: leftEvent(); break;
    case EventType::SearchTextChanged: textEntered(); break;
    case EventType::RowMoved:
    case EventType::PopupRowMoved: generateDisplayChangedEvent(); break;
    case EventType::RowChosen: selectedEvent(); break;
    case EventType::RightPressed: rightEvent(); break;
    case EventType::LocaleChanged: localeChanged({}); break;
    default: break;
    }
}

void SearchListBoxPrivate::leftEvent()
{
    tellListeners(SearchList::BACK_COMMAND());
}

void SearchListBoxPrivate::rightEvent()
{
    tellListeners(SearchList::RIGHT_COMMAND());
}

void SearchListBoxPrivate::selectedEvent()
{
    tellListeners(SearchList::SELECT_COMMAND());
}

void SearchListBoxPrivate::textEntered()
{
    mItemStateListeners.notify(&ItemStateListener::postItemStateChange, &mStateItem);
    generateDisplayChangedEvent();
}

void SearchListBoxPrivate::tellListeners(Command* command)
{
    tellAndShow(*this, command, mParent);
}

// Screen text

std::string SearchListBoxPrivate::serialise()
{
    if (!mWidget)
        return {};
    if (!mWidget->inSearchMode())
        return Serialiser().serialiseVantoListBox({list()->getRect()}, mWidget.get());
    ScreenTextWriter writer;
    writer.object("PopupSearch");
    writer.blocks(mWidget->getSearchFieldText().toUTF8());
    writer.endObject();
    return writer.take();
}

}
