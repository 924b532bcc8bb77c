#include <DisplayAPI/Command.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupDialer.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include "LastingCommand.h"
#include "PopupDialerPrivate.h"
#include "Road.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class PopupDialer::Request : int {
    Create = 0,
    Destroy = 1,
    SetLine1PrefixText = 2,
    SetLine1PrefixTranslation = 3,
    SetText = 4,
    SetTranslation = 5,
    SetLine2Text = 6,
    SetLine2Translation = 7,
    GetLineEditText = 8,
    SetLineEditText = 9,
    SetLineEditTranslation = 10,
    Show = 12,
    Dismiss = 13,
    AddCommand = 14,
    RemoveCommand = 15,
    SetDefaultCommand = 16,
    ClearCommands = 17,
    SetMode = 18,
    SetEditMode = 19,
    SetIgnoreKeypadEvents = 20,
    GetSelectedIndex = 21,
    SelectionHasChanged = 22,
    AddItemStateListener = 23,
    RemoveItemStateListener = 24,
    AddCommandListener = 25,
    SetStimulusText = 26,
    SetStimulusTranslation = 27,
    ShowStimulusTextInHeader = 28,
};

PopupDialer::PopupDialer(bool flag, int number)
{
    create(flag, number);
}

PopupDialer::~PopupDialer()
{
    destroy();
}

void PopupDialer::create(bool flag, int number)
{
    if (!Road::wait(this, Request::Create, flag, number))
        return;
    mName = "PopupDialer";
    mPrivate = std::make_unique<PopupDialerPrivate>(this, false);
}

void PopupDialer::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* PopupDialer::getPrivateImpl()
{
    return mPrivate.get();
}

// Lines

void PopupDialer::setLine1PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixText, text))
        half->setLine1PrefixText(text);
}

void PopupDialer::setLine1PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixTranslation, given(text)))
        half->setLine1PrefixText(text);
}

void PopupDialer::setText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetText, text))
        half->setText(text);
}

void PopupDialer::setText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslation, given(text)))
        half->setText(text);
}

void PopupDialer::setLine2Text(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Text, text))
        half->setLine2Text(text);
}

void PopupDialer::setLine2Text(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Translation, given(text)))
        half->setLine2Text(text);
}

// Edit line

std::string PopupDialer::getLineEditText() const
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetLineEditText, result(text)))
        text = half->getLineEditText();
    return text;
}

void PopupDialer::setLineEditText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLineEditText, text))
        half->setLineEditText(text);
}

void PopupDialer::setLineEditText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLineEditTranslation, given(text)))
        half->setLineEditText(text);
}

void PopupDialer::setMode(eMode mode)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetMode, mode))
        half->setMode(mode);
}

void PopupDialer::setEditMode()
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetEditMode))
        half->setEditMode();
}

void PopupDialer::setIgnoreKeypadEvents(bool ignore)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetIgnoreKeypadEvents, ignore))
        half->setIgnoreKeypadEvents(ignore);
}

// Choices

void PopupDialer::addCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommand, command))
        half->addCommand(command);
}

void PopupDialer::removeCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::RemoveCommand, command))
        half->removeCommand(command);
}

void PopupDialer::setDefaultCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDefaultCommand, command))
        half->setDefaultCommand(command);
}

void PopupDialer::clearCommands()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearCommands))
        half->clearCommands();
}

int PopupDialer::getSelectedIndex() const
{
    int index = 0;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedIndex, result(index)))
        index = half->getSelectedIndex();
    return index;
}

bool PopupDialer::selectionHasChanged() const
{
    bool hasChanged = false;
    if (auto* half = Road::wait(this, mPrivate, Request::SelectionHasChanged, result(hasChanged)))
        hasChanged = half->selectionHasChanged();
    return hasChanged;
}

// Life on the screen

void PopupDialer::show()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Show))
        half->show();
}

void PopupDialer::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

// Listeners

void PopupDialer::addItemStateListener(ItemStateListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddItemStateListener, listener))
        half->addItemStateListener(listener);
}

void PopupDialer::removeItemStateListener(ItemStateListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::RemoveItemStateListener, listener))
        half->removeItemStateListener(listener);
}

void PopupDialer::addCommandListener(CommandListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommandListener, listener))
        half->addCommandListener(listener);
}

Command* PopupDialer::BackCommand()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

Command* PopupDialer::EditFieldShownCommand()
{
    static Command* command = lastingCommand(Command::Menu);
    return command;
}

// Without effect on this telephone

void PopupDialer::setAltEditPrefixText(const std::string&) { }

void PopupDialer::setAltEditPrefixText(TranslationInfo* text)
{
    delete text;
}

void PopupDialer::setNoScroll() { }

void PopupDialer::setStimulusText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetStimulusText, text))
        half->setStimulusText(text);
}

void PopupDialer::setStimulusText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetStimulusTranslation, text))
        half->setStimulusText(text);
}

void PopupDialer::clearStimulusText()
{
    setStimulusText(std::string());
}

void PopupDialer::showStimulusTextInHeader(bool shown)
{
    if (auto* half = Road::wait(this, mPrivate, Request::ShowStimulusTextInHeader, shown))
        half->showStimulusTextInHeader(shown);
}

// Road across threads

void PopupDialer::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* command = static_cast<MenuCommand*>(event.ptrParam1);
    auto* itemListener = static_cast<ItemStateListener*>(event.ptrParam1);
    auto* commandListener = static_cast<CommandListener*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(event.boolParam1, event.intParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::SetLine1PrefixText: setLine1PrefixText(text); break;
    case Request::SetLine1PrefixTranslation: setLine1PrefixText(translation); break;
    case Request::SetText: setText(text); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::SetLine2Text: setLine2Text(text); break;
    case Request::SetLine2Translation: setLine2Text(translation); break;
    case Request::GetLineEditText: answer(event.stringResult, getLineEditText()); break;
    case Request::SetLineEditText: setLineEditText(text); break;
    case Request::SetLineEditTranslation: setLineEditText(translation); break;
    case Request::Show: show(); break;
    case Request::Dismiss: dismiss(); break;
    case Request::AddCommand: addCommand(command); break;
    case Request::RemoveCommand: removeCommand(command); break;
    case Request::SetDefaultCommand: setDefaultCommand(command); break;
    case Request::ClearCommands: clearCommands(); break;
    case Request::SetMode: setMode(static_cast<eMode>(event.intParam1)); break;
    case Request::SetEditMode: setEditMode(); break;
    case Request::SetIgnoreKeypadEvents: setIgnoreKeypadEvents(event.boolParam1); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::SelectionHasChanged: answer(event.boolResult, selectionHasChanged()); break;
    case Request::AddItemStateListener: addItemStateListener(itemListener); break;
    case Request::RemoveItemStateListener: removeItemStateListener(itemListener); break;
    case Request::AddCommandListener: addCommandListener(commandListener); break;
    case Request::SetStimulusText: setStimulusText(text); break;
    case Request::SetStimulusTranslation: setStimulusText(translation); break;
    case Request::ShowStimulusTextInHeader: showStimulusTextInHeader(event.boolParam1); break;
    }
    signalComplete(event);
}

}
