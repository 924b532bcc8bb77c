#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/ContextMenuPrivateIfc.h>
#include <DisplayAPI/MenuCommand.h>

#include "ContextMenuPrivate.h"
#include "Road.h"

#include <cstdio>

namespace DisplayAPI {

enum class ContextMenu::Request : int {
    Create = 0,
    Destroy = 1,
    Show = 2,
    Dismiss = 3,
    AddCommand = 4,
    AddCommandWithIcon = 5,
    ClearCommands = 6,
    SetDefaultCommand = 7,
    GetSelectedCommand = 8,
    AddCommandListener = 9,
    RemoveCommandListener = 10,
    GetSelectedIndex = 11,
    SelectionHasChanged = 12,
    SetBackTranslator = 13,
    SetRightArrowEqualsOK = 14,
    SetAutoHideTimeout = 15,
    SetSysWindowSize = 16,
    SetFPKPressedNeedsDialNumber = 18,
    SetCommandText = 19,
    PushBack = 20,
};

namespace {

constexpr int Unassigned = 17;
constexpr int LastRequest = 20;

}

ContextMenu::ContextMenu(bool hasBackRow)
{
    create(hasBackRow);
}

ContextMenu::~ContextMenu()
{
    destroy();
}

void ContextMenu::create(bool hasBackRow)
{
    if (!Road::post(this, Request::Create, hasBackRow))
        return;
    mName = "ContextMenu";
    mPrivate = std::make_unique<ContextMenuPrivate>(this, hasBackRow);
}

void ContextMenu::destroy()
{
    // Unlike other screens a menu that dies goes as one that is dismissed, so the stack must find it once more.
    if (isGuiThread() && mPrivate)
        static_cast<DisplayablePrivate&>(*mPrivate).widgetDismissed(mPrivate.get());
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* ContextMenu::getPrivateImpl()
{
    return mPrivate.get();
}

// Rows

void ContextMenu::addCommand(
    Command* command, Command* other, bool flag, bool withStatusIcon, const std::string& statusName)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommand, command, other, flag, withStatusIcon, statusName))
        half->addCommand(command, other, flag, withStatusIcon, statusName);
}

/// What the request of addCommand() does: the marks of the handle decide, not what has travelled.
void ContextMenu::addMarkedCommand(GuiRequestEvent& event)
{
    const std::string status = mHeadSetStatus ? "HeadSet" : mLoudSpeakerStatus ? "Speaker" : mMuteStatus ? "Mute" : "";
    addCommand(static_cast<Command*>(event.ptrParam1), static_cast<Command*>(event.ptrParam2), event.boolParam1,
        !status.empty(), status);
}

void ContextMenu::addCommandWithIcon(MenuCommand* command, Command* other, bool flag)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommandWithIcon, command, other, flag))
        half->addCommandWithIcon(command);
}

void ContextMenu::setCommands(const std::vector<MenuCommand*>& commands)
{
    // Each notice may delete the menu.
    const Living<Displayable> self(this);
    clearCommands();
    for (MenuCommand* command : commands) {
        if (self)
            addCommandWithIcon(command, nullptr, false);
    }
}

void ContextMenu::clearCommands()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearCommands))
        half->clearCommands();
}

void ContextMenu::setDefaultCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDefaultCommand, command))
        half->setDefaultCommand(command);
}

void ContextMenu::setCommandText(Command* command, const std::string& text, bool flag)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetCommandText, command, text, flag))
        half->setCommandText(command, text, flag);
}

Command* ContextMenu::getSelectedCommand()
{
    void* command = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedCommand, result(command)))
        command = half->getSelectedCommand();
    return static_cast<Command*>(command);
}

int ContextMenu::getSelectedIndex()
{
    int index = -1;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedIndex, result(index)))
        index = half->getSelectedIndex();
    return index;
}

bool ContextMenu::selectionHasChanged()
{
    bool hasChanged = false;
    if (auto* half = Road::wait(this, mPrivate, Request::SelectionHasChanged, result(hasChanged)))
        hasChanged = half->selectionHasChanged();
    return hasChanged;
}

void ContextMenu::setBackTranslator(TranslatorIfc* translator)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetBackTranslator, translator))
        half->setBackTranslator(translator);
}

// Life on the screen

void ContextMenu::show()
{
    if (auto* half = Road::post(this, mPrivate, Request::Show))
        half->show();
}

void ContextMenu::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

void ContextMenu::setAutoHideTimeout(int seconds)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetAutoHideTimeout, seconds))
        half->setAutoHideTimeout(seconds);
}

void ContextMenu::setRightArrowEqualsOK(bool equals)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetRightArrowEqualsOK, equals))
        half->setRightArrowEqualsOK(equals);
}

void ContextMenu::pushBack()
{
    if (auto* half = Road::post(this, mPrivate, Request::PushBack))
        half->pushBack();
}

void ContextMenu::setFPKPressedNeedsDialNumber()
{
    if (auto* half = Road::post(this, mPrivate, Request::SetFPKPressedNeedsDialNumber))
        half->setFPKPressedNeedsDialNumber();
}

// Listeners

void ContextMenu::addCommandListener(CommandListener* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddCommandListener, listener))
        half->addCommandListener(listener);
}

void ContextMenu::removeCommandListener(CommandListener* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::RemoveCommandListener, listener))
        half->removeCommandListener(listener);
}

// Without effect on this telephone

void ContextMenu::setTranslator(TranslatorIfc*) { }

void ContextMenu::setSysWindowSize(int) { }

// Road across threads

void ContextMenu::processGuiRequest(GuiRequestEvent& event)
{
    auto* command = static_cast<Command*>(event.ptrParam1);
    auto* menuCommand = static_cast<MenuCommand*>(event.ptrParam1);
    auto* listener = static_cast<CommandListener*>(event.ptrParam1);

    if (event.getType() == Unassigned || event.getType() > LastRequest) {
        // Left unanswered: it lets its caller go when it dies.
        std::fprintf(
            stderr, "%s:%d received unknown gui request %d\n", "src/ContextMenu.cpp", __LINE__, event.getType());
        return;
    }
    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(event.boolParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::Show: show(); break;
    case Request::Dismiss: dismiss(); break;
    case Request::AddCommand: addMarkedCommand(event); break;
    case Request::AddCommandWithIcon:
        addCommandWithIcon(menuCommand, static_cast<Command*>(event.ptrParam2), event.boolParam1);
        break;
    case Request::ClearCommands: clearCommands(); break;
    case Request::SetDefaultCommand: setDefaultCommand(menuCommand); break;
    case Request::GetSelectedCommand: answer(event.ptrResult, getSelectedCommand()); break;
    case Request::AddCommandListener: addCommandListener(listener); break;
    case Request::RemoveCommandListener: removeCommandListener(listener); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::SelectionHasChanged: answer(event.boolResult, selectionHasChanged()); break;
    case Request::SetBackTranslator: setBackTranslator(static_cast<TranslatorIfc*>(event.ptrParam1)); break;
    case Request::SetRightArrowEqualsOK: setRightArrowEqualsOK(event.boolParam1); break;
    case Request::SetAutoHideTimeout: setAutoHideTimeout(event.intParam1); break;
    case Request::SetSysWindowSize: setSysWindowSize(event.intParam1); break;
    case Request::SetFPKPressedNeedsDialNumber: setFPKPressedNeedsDialNumber(); break;
    case Request::SetCommandText: setCommandText(command, event.stringParam1, event.boolParam1); break;
    case Request::PushBack: pushBack(); break;
    }
    signalComplete(event);
}

}
