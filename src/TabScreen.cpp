#include <DisplayAPI/Command.h>
#include <DisplayAPI/TabScreen.h>
#include <DisplayAPI/TabScreenPrivateIfc.h>

#include "ExistingDisplayables.h"
#include "LastingCommand.h"
#include "OwnedHandles.h"
#include "Road.h"
#include "TabScreenPrivate.h"

#include <Log.h>

#include <algorithm>
#include <utility>

namespace DisplayAPI {

enum class TabScreen::Request : int {
    Create = 0,
    Destroy = 1,
    AddTab = 2,
    AddTabWithTranslation = 3,
    NumberOfTabs = 4,
    CurrentTab = 5,
    SetCurrentDisplayable = 6,
    SetCurrentDisplayableForTabAtIndex = 7,
    RemoveTab = 8,
    RemoveTabAtIndex = 9,
    NextTab = 10,
    GetCurrentTabIndex = 11,
    SetCurrentTabIndex = 12,
    SetTitleForTabAtIndex = 13,
    SetTitleTranslationForTabAtIndex = 14,
    GetTitleForTabAtIndex = 15,
    GetDisplayableForTabAtIndex = 16,
    GetIndexForTab = 17,
};

namespace {

constexpr const char* LogModule = "DisplayAPI::TabScreen";
constexpr int FaultLevel = 2;

}

// A step changes the screens that the handle owns first and its half last, which gives the notice: the subscriber may
// delete the tab screen in it, and finds the two alike until then.

TabScreen::TabScreen(IconType iconType, bool flag)
    : mDisplayableItems(std::make_unique<OwnedHandles<Displayable>>())
{
    create(iconType, flag);
}

TabScreen::~TabScreen()
{
    destroy();
}

void TabScreen::create(IconType iconType, bool flag)
{
    if (!Road::wait(this, Request::Create, iconType, flag))
        return;
    mName = "TabScreen";
    if (!mPrivate)
        mPrivate = std::make_unique<TabScreenPrivate>(this, iconType);
}

void TabScreen::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
    // Off the GUI thread there are some left only if the loop has ended.
    mDisplayableItems->deleteAll();
}

DisplayablePrivateIfc* TabScreen::getPrivateImpl()
{
    return mPrivate.get();
}

/// Where the road finds what acts. A screen that has died behind the loop's end leaves its tab before.
auto TabScreen::halfOf() const
{
    return [this] {
        if (mPrivate && mDisplayableItems->forgetDead())
            deleteKeptHalves();
        return mPrivate.get();
    };
}

/// Otherwise two would delete it, or it itself.
bool TabScreen::mayHold(Displayable* displayable) const
{
    if (!displayable)
        return true;
    const auto* half = dynamic_cast<DisplayablePrivate*>(privateOfLiving(displayable));
    return half && !half->holder() && !mPrivate->standsIn(*half);
}

// Tabs

void TabScreen::addTab(const std::string& title, Displayable* displayable, bool flag)
{
    auto* half = Road::wait(this, halfOf(), Request::AddTab, title, given(displayable), flag);
    if (!half || !mayHold(displayable))
        return;
    mDisplayableItems->add(displayable);
    half->addTab(title, displayable ? displayable->getPrivateImpl() : nullptr, flag);
}

void TabScreen::addTab(TranslationInfo* title, Displayable* displayable, bool flag)
{
    auto* half = Road::wait(this, halfOf(), Request::AddTabWithTranslation, given(title), given(displayable), flag);
    if (!half)
        return;
    if (!mayHold(displayable)) {
        delete title;
        return;
    }
    mDisplayableItems->add(displayable);
    half->addTab(title, displayable ? displayable->getPrivateImpl() : nullptr, flag);
}

void TabScreen::removeTab(Displayable* displayable)
{
    auto* half = Road::wait(this, halfOf(), Request::RemoveTab, displayable);
    const int index = half ? mDisplayableItems->indexOf(displayable) : -1;
    if (index < 0)
        return;
    DisplayablePrivateIfc* content = privateOfLiving(displayable);
    mDisplayableItems->erase(index);
    if (content)
        half->removeTab(content);
    else
        half->removeTabAtIndex(static_cast<unsigned int>(index));
}

void TabScreen::removeTabAtIndex(int index)
{
    auto* half = Road::wait(this, halfOf(), Request::RemoveTabAtIndex, index);
    if (!half || index < 0 || index >= mDisplayableItems->size())
        return;
    mDisplayableItems->erase(index);
    half->removeTabAtIndex(static_cast<unsigned int>(index));
}

int TabScreen::numberOfTabs() const
{
    int number = -1;
    if (auto* half = Road::wait(this, halfOf(), Request::NumberOfTabs, result(number))) {
        number = mDisplayableItems->size();
        if (number != half->numberOfTabs() && loggingOnAppUni(LogModule, FaultLevel)) {
            logAppUni(LogModule, "src/TabScreen", FaultLevel, __LINE__,
                "TabScreen - number of tabs is NOT equal to the size of the mDisplayableItems list");
        }
    }
    return number;
}

std::vector<Displayable*> TabScreen::getDisplayableItems() const
{
    return mDisplayableItems->all();
}

Displayable* TabScreen::getDisplayableForTabAtIndex(int index) const
{
    void* displayable = nullptr;
    if (Road::wait(this, halfOf(), Request::GetDisplayableForTabAtIndex, index, result(displayable)))
        displayable = mDisplayableItems->at(std::max(index, 0));
    return static_cast<Displayable*>(displayable);
}

int TabScreen::getIndexForTab(Displayable* displayable) const
{
    int index = -1;
    if (Road::wait(this, halfOf(), Request::GetIndexForTab, displayable, result(index)))
        index = mDisplayableItems->indexOf(displayable);
    return index;
}

// The current tab

Displayable* TabScreen::currentTab() const
{
    void* displayable = nullptr;
    if (auto* half = Road::wait(this, halfOf(), Request::CurrentTab, result(displayable)))
        displayable = mDisplayableItems->at(static_cast<int>(half->getSelectedIndex()));
    return static_cast<Displayable*>(displayable);
}

int TabScreen::getCurrentTabIndex() const
{
    int index = -1;
    if (auto* half = Road::wait(this, halfOf(), Request::GetCurrentTabIndex, result(index)))
        index = static_cast<int>(half->getSelectedIndex());
    return index;
}

void TabScreen::setCurrentTabIndex(int index)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetCurrentTabIndex, index))
        half->setSelectedIndex(static_cast<unsigned int>(index));
}

void TabScreen::nextTab()
{
    if (auto* half = Road::wait(this, halfOf(), Request::NextTab))
        half->nextTab();
}

void TabScreen::setCurrentDisplayable(Displayable* displayable)
{
    auto* half = Road::wait(this, halfOf(), Request::SetCurrentDisplayable, given(displayable));
    if (!half || !mayHold(displayable))
        return;
    mDisplayableItems->set(static_cast<int>(half->getSelectedIndex()), displayable);
    half->setCurrentDisplayable(displayable);
}

void TabScreen::setCurrentDisplayableForTabAtIndex(int index, Displayable* displayable)
{
    auto* half = Road::wait(this, halfOf(), Request::SetCurrentDisplayableForTabAtIndex, index, given(displayable));
    if (!half || !mayHold(displayable))
        return;
    mDisplayableItems->set(index, displayable);
    half->setCurrentDisplayableForTabAtIndex(static_cast<unsigned int>(index), displayable);
}

void TabScreen::showTabList()
{
    if (mPrivate)
        mPrivate->showMainTabList();
}

// Titles

void TabScreen::setTitleForTabAtIndex(int index, const std::string& title)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetTitleForTabAtIndex, index, title))
        half->setTitleForTabAtIndex(static_cast<unsigned int>(index), title);
}

void TabScreen::setTitleForTabAtIndex(int index, TranslationInfo* title)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetTitleTranslationForTabAtIndex, index, given(title)))
        half->setTitleForTabAtIndex(static_cast<unsigned int>(index), title);
}

std::string TabScreen::getTitleForTabAtIndex(int index) const
{
    std::string title;
    if (auto* half = Road::wait(this, halfOf(), Request::GetTitleForTabAtIndex, index, result(title)))
        title = half->getTitleForTabAtIndex(static_cast<unsigned int>(index));
    return title;
}

void TabScreen::localeChanged(std::string locale)
{
    if (mPrivate)
        mPrivate->localeChanged(std::move(locale));
}

// Commands

void TabScreen::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

Command* TabScreen::BACK_COMMAND()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

Command* TabScreen::OK()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

Command* TabScreen::TABBACK_COMMAND()
{
    static Command* command = lastingCommand(Command::TabBack);
    return command;
}

Command* TabScreen::TABFWD_COMMAND()
{
    static Command* command = lastingCommand(Command::TabForward);
    return command;
}

// Without effect on this telephone

void TabScreen::previousTab() { }

void TabScreen::leaveTabBar() { }

void TabScreen::enterTabBar() { }

// Road across threads

void TabScreen::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    const int index = event.intParam1;
    auto* displayable = static_cast<Displayable*>(event.ptrParam1);
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(static_cast<IconType>(index), event.boolParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::AddTab: addTab(text, displayable, event.boolParam1); break;
    case Request::AddTabWithTranslation:
        addTab(translation, static_cast<Displayable*>(event.ptrParam2), event.boolParam1);
        break;
    case Request::NumberOfTabs: answer(event.intResult, numberOfTabs()); break;
    case Request::CurrentTab: answer(event.ptrResult, currentTab()); break;
    case Request::SetCurrentDisplayable: setCurrentDisplayable(displayable); break;
    case Request::SetCurrentDisplayableForTabAtIndex: setCurrentDisplayableForTabAtIndex(index, displayable); break;
    case Request::RemoveTab: removeTab(displayable); break;
    case Request::RemoveTabAtIndex: removeTabAtIndex(index); break;
    case Request::NextTab: nextTab(); break;
    case Request::GetCurrentTabIndex: answer(event.intResult, getCurrentTabIndex()); break;
    case Request::SetCurrentTabIndex: setCurrentTabIndex(index); break;
    case Request::SetTitleForTabAtIndex: setTitleForTabAtIndex(index, text); break;
    case Request::SetTitleTranslationForTabAtIndex: setTitleForTabAtIndex(index, translation); break;
    case Request::GetTitleForTabAtIndex: answer(event.stringResult, getTitleForTabAtIndex(index)); break;
    case Request::GetDisplayableForTabAtIndex: answer(event.ptrResult, getDisplayableForTabAtIndex(index)); break;
    case Request::GetIndexForTab: answer(event.intResult, getIndexForTab(displayable)); break;
    }
    signalComplete(event);
}

}
