#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupCall.h>
#include <DisplayAPI/PopupCallPrivateIfc.h>

#include "LastingCommand.h"
#include "PartyText.h"
#include "PopupCallPrivate.h"
#include "Road.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class PopupCall::Request : int {
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
    SetAuxText = 10,
    SetState = 11,
    SetPictureClip = 12,
    AddCommand = 13,
    SetDefaultCommand = 14,
    ClearCommands = 15,
    Dismiss = 16,
    GetSelectedIndex = 17,
    SelectionHasChanged = 18,
    SetPopupCallDetails = 19,
};

PopupCall::PopupCall()
{
    create();
}

PopupCall::~PopupCall()
{
    destroy();
}

void PopupCall::create()
{
    if (!Road::wait(this, Request::Create))
        return;
    mName = "PopupCall";
    mPrivate = std::make_unique<PopupCallPrivate>(this);
}

void PopupCall::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* PopupCall::getPrivateImpl()
{
    return mPrivate.get();
}

// Parties

void PopupCall::setPopupCallDetails(CallPartyIdentifier& party, CallPartyIdentifier* second, ForwardedCallType type,
    const std::string& auxText, TranslationInfo* auxInfo)
{
    auto* secondCopy = second ? new CallPartyIdentifier(*second) : nullptr;
    setDetails(new CallPartyIdentifier(party), secondCopy, type, auxText, auxInfo);
}

void PopupCall::setDetails(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
    const std::string& auxText, TranslationInfo* auxInfo)
{
    if (auto* half = Road::wait(
            this, mPrivate, Request::SetPopupCallDetails, copied(party), copied(second), type, auxText, given(auxInfo)))
        half->setPopupCallDetails(party, second, type, auxText, auxInfo);
}

// Texts

void PopupCall::setLine1PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixText, text))
        half->setLine1PrefixText(text);
}

void PopupCall::setLine1PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixTranslation, given(text)))
        half->setLine1PrefixText(text);
}

void PopupCall::setText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetText, text))
        half->setText(text);
}

void PopupCall::setText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslation, given(text)))
        half->setText(text);
}

void PopupCall::setLine1Text(const CallPartyIdentifier& party)
{
    showNameElseNumber(party, [this](const auto& text) { setText(text); });
}

void PopupCall::setLine2PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2PrefixText, text))
        half->setLine2PrefixText(text);
}

void PopupCall::setLine2PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2PrefixTranslation, given(text)))
        half->setLine2PrefixText(text);
}

void PopupCall::setLine2Text(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Text, text))
        half->setLine2Text(text);
}

void PopupCall::setLine2Text(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Translation, given(text)))
        half->setLine2Text(text);
}

void PopupCall::setLine2Text(const CallPartyIdentifier& party)
{
    showNameElseNumber(party, [this](const auto& text) { setLine2Text(text); });
}

void PopupCall::setAuxText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetAuxText, text))
        half->setAuxText(text);
}

// State

void PopupCall::setState(CallState state, CallPriority priority)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetState, state, priority))
        half->setState(state, priority);
}

void PopupCall::setPictureClip(Image* picture)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetPictureClip, picture))
        half->setImage(picture);
}

// Choices

void PopupCall::addCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommand, command))
        half->addCommand(command);
}

void PopupCall::setCommands(const std::vector<MenuCommand*>& commands)
{
    // Each notice may delete the popup.
    const Living<Displayable> self(this);
    clearCommands();
    for (MenuCommand* command : commands) {
        if (self)
            addCommand(command);
    }
}

void PopupCall::setDefaultCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDefaultCommand, command))
        half->setDefaultCommand(command);
}

void PopupCall::clearCommands()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearCommands))
        half->clearCommands();
}

int PopupCall::getSelectedIndex() const
{
    int index = -1;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedIndex, result(index)))
        index = half->getSelectedIndex();
    return index;
}

bool PopupCall::selectionHasChanged() const
{
    bool hasChanged = false;
    if (auto* half = Road::wait(this, mPrivate, Request::SelectionHasChanged, result(hasChanged)))
        hasChanged = half->selectionHasChanged();
    return hasChanged;
}

// Life on the screen

void PopupCall::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

// Listeners. They stand in a list for any thread, so they go there without a request

void PopupCall::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

void PopupCall::removeCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->removeCommandListener(listener);
}

MenuCommand* PopupCall::HIDDEN_COMMAND()
{
    static MenuCommand* command = lastingHiddenCommand("");
    return command;
}

// Without effect on this telephone

void PopupCall::showStimulusTextInHeader(bool) { }

void PopupCall::setStimulusText(const std::string&) { }

void PopupCall::setStimulusText(TranslationInfo*) { }

void PopupCall::clearStimulusText() { }

// Road across threads

void PopupCall::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* command = static_cast<MenuCommand*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(); break;
    case Request::Destroy: destroy(); break;
    case Request::SetLine1PrefixText: setLine1PrefixText(text); break;
    case Request::SetLine1PrefixTranslation: setLine1PrefixText(translation); break;
    case Request::SetText: setText(text); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::SetLine2PrefixText: setLine2PrefixText(text); break;
    case Request::SetLine2PrefixTranslation: setLine2PrefixText(translation); break;
    case Request::SetLine2Text: setLine2Text(text); break;
    case Request::SetLine2Translation: setLine2Text(translation); break;
    case Request::SetAuxText: setAuxText(text); break;
    case Request::SetState:
        setState(static_cast<CallState>(event.intParam1), static_cast<CallPriority>(event.intParam2));
        break;
    case Request::SetPictureClip: setPictureClip(static_cast<Image*>(event.ptrParam1)); break;
    case Request::AddCommand: addCommand(command); break;
    case Request::SetDefaultCommand: setDefaultCommand(command); break;
    case Request::ClearCommands: clearCommands(); break;
    case Request::Dismiss: dismiss(); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::SelectionHasChanged: answer(event.boolResult, selectionHasChanged()); break;
    case Request::SetPopupCallDetails:
        setDetails(static_cast<CallPartyIdentifier*>(event.ptrParam1),
            static_cast<CallPartyIdentifier*>(event.ptrParam2), static_cast<ForwardedCallType>(event.intParam1), text,
            static_cast<TranslationInfo*>(event.ptrParam3));
        break;
    }
    signalComplete(event);
}

}
