#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupConfirmPrivateIfc.h>

#include "LastingCommand.h"
#include "PartyText.h"
#include "PopupConfirmPrivate.h"
#include "Road.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class PopupConfirm::Request : int {
    Create = 0,
    Destroy = 1,
    SetLine1PrefixText = 2,
    SetLine1PrefixTranslation = 3,
    SetText = 4,
    SetTranslation = 5,
    SetLine2PrefixText = 6,
    SetLine2PrefixTranslation = 7,
    SetLine2Text = 8,
    SetLine2Translation = 9,
    SetState = 10,
    Show = 11,
    Dismiss = 12,
    AddCommand = 13,
    RemoveCommand = 14,
    SetDefaultCommand = 15,
    ClearCommands = 16,
    GetSelectedIndex = 17,
    SelectionHasChanged = 18,
    SetTimeout = 19,
    AddCommandListener = 20,
    RemoveCommandListener = 21,
};

PopupConfirm::PopupConfirm(bool flag)
{
    create(flag);
}

PopupConfirm::~PopupConfirm()
{
    destroy();
}

void PopupConfirm::create(bool flag)
{
    if (!Road::wait(this, Request::Create, flag))
        return;
    mName = "PopupConfirm";
    mPrivate = std::make_unique<PopupConfirmPrivate>(this);
}

void PopupConfirm::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* PopupConfirm::getPrivateImpl()
{
    return mPrivate.get();
}

// Texts

void PopupConfirm::setLine1PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixText, text))
        half->setLine1PrefixText(text);
}

void PopupConfirm::setLine1PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixTranslation, given(text)))
        half->setLine1PrefixText(text);
}

void PopupConfirm::setText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetText, text))
        half->setText(text);
}

void PopupConfirm::setText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslation, given(text)))
        half->setText(text);
}

void PopupConfirm::setLine2PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2PrefixText, text))
        half->setLine2PrefixText(text);
}

void PopupConfirm::setLine2PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2PrefixTranslation, given(text)))
        half->setLine2PrefixText(text);
}

void PopupConfirm::setLine2Text(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Text, text))
        half->setLine2Text(text);
}

void PopupConfirm::setLine2Text(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Translation, given(text)))
        half->setLine2Text(text);
}

void PopupConfirm::setPartyDetails(const CallPartyIdentifier& party, int)
{
    showNameElseNumber(party, [this](const auto& text) { setLine1Text(text); });
}

void PopupConfirm::setState(PopupState state)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetState, state))
        half->setState(state);
}

// Choices

void PopupConfirm::addCommand(Command* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommand, command))
        half->addCommand(command);
}

void PopupConfirm::addCommand(Command*, bool) { }

void PopupConfirm::setDefaultCommand(Command* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDefaultCommand, command))
        half->setDefaultCommand(command);
}

void PopupConfirm::removeCommand(Command* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::RemoveCommand, command))
        half->removeCommand(command);
}

void PopupConfirm::clearCommands()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearCommands))
        half->clearCommands();
}

int PopupConfirm::getSelectedIndex() const
{
    int index = 0;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedIndex, result(index)))
        index = half->getSelectedIndex();
    return index;
}

bool PopupConfirm::selectionHasChanged() const
{
    bool hasChanged = false;
    if (auto* half = Road::wait(this, mPrivate, Request::SelectionHasChanged, result(hasChanged)))
        hasChanged = half->selectionHasChanged();
    return hasChanged;
}

// Life on the screen

void PopupConfirm::show()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Show))
        half->show();
}

void PopupConfirm::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

void PopupConfirm::setTimeout(int milliseconds)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTimeout, milliseconds))
        half->setTimeout(milliseconds);
}

// Listeners

void PopupConfirm::addCommandListener(CommandListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommandListener, listener))
        half->addCommandListener(listener);
}

void PopupConfirm::removeCommandListener(CommandListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::RemoveCommandListener, listener))
        half->removeCommandListener(listener);
}

MenuCommand* PopupConfirm::HIDDEN_COMMAND()
{
    static MenuCommand* command = lastingHiddenCommand();
    return command;
}

// Without effect on this telephone

void PopupConfirm::showStimulusTextInHeader(bool) { }

void PopupConfirm::setStimulusText(const std::string&) { }

void PopupConfirm::setStimulusText(TranslationInfo*) { }

void PopupConfirm::clearStimulusText() { }

// Road across threads

void PopupConfirm::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* command = static_cast<Command*>(event.ptrParam1);
    auto* listener = static_cast<CommandListener*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(event.boolParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::SetLine1PrefixText: setLine1PrefixText(text); break;
    case Request::SetLine1PrefixTranslation: setLine1PrefixText(translation); break;
    case Request::SetText: setText(text); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::SetLine2PrefixText: setLine2PrefixText(text); break;
    case Request::SetLine2PrefixTranslation: setLine2PrefixText(translation); break;
    case Request::SetLine2Text: setLine2Text(text); break;
    case Request::SetLine2Translation: setLine2Text(translation); break;
    case Request::SetState: setState(static_cast<PopupState>(event.intParam1)); break;
    case Request::Show: show(); break;
    case Request::Dismiss: dismiss(); break;
    case Request::AddCommand: addCommand(command); break;
    case Request::RemoveCommand: removeCommand(command); break;
    case Request::SetDefaultCommand: setDefaultCommand(command); break;
    case Request::ClearCommands: clearCommands(); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::SelectionHasChanged: answer(event.boolResult, selectionHasChanged()); break;
    case Request::SetTimeout: setTimeout(event.intParam1); break;
    case Request::AddCommandListener: addCommandListener(listener); break;
    case Request::RemoveCommandListener: removeCommandListener(listener); break;
    }
    signalComplete(event);
}

}
