#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupConfirmPrivateIfc.h>

#include "KeepUntilExit.h"
#include "MakeRequest.h"
#include "PopupConfirmPrivate.h"

#include <TranslationInfo.h>

// A popup whose creation was refused, since the event loop had ended, has no half on the GUI thread. A later loop may
// still bring it calls: they change nothing, and what they hand over goes.

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
    if (isGuiThread())
        create(flag);
    else
        postEvent(makeRequest(this, Request::Create, flag));
}

PopupConfirm::~PopupConfirm()
{
    if (isGuiThread())
        destroy();
    else
        postEvent(makeRequest(this, Request::Destroy));
    keepIfRefused(this, mPrivate);
}

void PopupConfirm::create(bool)
{
    mName = "PopupConfirm";
    mPrivate = std::make_unique<PopupConfirmPrivate>(this);
}

void PopupConfirm::destroy()
{
    retireScreen();
    mPrivate.reset();
}

DisplayablePrivateIfc* PopupConfirm::getPrivateImpl()
{
    return mPrivate.get();
}

// Texts

void PopupConfirm::setLine1PrefixText(const std::string& text)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetLine1PrefixText, text));
    if (mPrivate)
        mPrivate->setLine1PrefixText(text);
}

void PopupConfirm::setLine1PrefixText(TranslationInfo* text)
{
    if (!isGuiThread())
        return postEvent(handingOver(makeRequest(this, Request::SetLine1PrefixTranslation, text), text));
    if (mPrivate)
        mPrivate->setLine1PrefixText(text);
    else
        delete text;
}

void PopupConfirm::setText(const std::string& text)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetText, text));
    if (mPrivate)
        mPrivate->setText(text);
}

void PopupConfirm::setText(TranslationInfo* text)
{
    if (!isGuiThread())
        return postEvent(handingOver(makeRequest(this, Request::SetTranslation, text), text));
    if (mPrivate)
        mPrivate->setText(text);
    else
        delete text;
}

void PopupConfirm::setLine2PrefixText(const std::string& text)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetLine2PrefixText, text));
    if (mPrivate)
        mPrivate->setLine2PrefixText(text);
}

void PopupConfirm::setLine2PrefixText(TranslationInfo* text)
{
    if (!isGuiThread())
        return postEvent(handingOver(makeRequest(this, Request::SetLine2PrefixTranslation, text), text));
    if (mPrivate)
        mPrivate->setLine2PrefixText(text);
    else
        delete text;
}

void PopupConfirm::setLine2Text(const std::string& text)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetLine2Text, text));
    if (mPrivate)
        mPrivate->setLine2Text(text);
}

void PopupConfirm::setLine2Text(TranslationInfo* text)
{
    if (!isGuiThread())
        return postEvent(handingOver(makeRequest(this, Request::SetLine2Translation, text), text));
    if (mPrivate)
        mPrivate->setLine2Text(text);
    else
        delete text;
}

void PopupConfirm::setPartyDetails(const CallPartyIdentifier& party, int)
{
    std::string text;
    if (party.getInterimNameNumber(text, false))
        setLine1Text(text);
    else
        setLine1Text(new TranslationInfo(CallPartyIdentifier::UnknownParty, DisplayablePrivate::commonTranslator));
}

void PopupConfirm::setState(PopupState state)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetState, state));
    if (mPrivate)
        mPrivate->setState(state);
}

// Choices

void PopupConfirm::addCommand(Command* command)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::AddCommand, command));
    if (mPrivate)
        mPrivate->addCommand(command);
}

void PopupConfirm::addCommand(Command*, bool) { }

void PopupConfirm::setDefaultCommand(Command* command)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetDefaultCommand, command));
    if (mPrivate)
        mPrivate->setDefaultCommand(command);
}

void PopupConfirm::removeCommand(Command* command)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::RemoveCommand, command));
    if (mPrivate)
        mPrivate->removeCommand(command);
}

void PopupConfirm::clearCommands()
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::ClearCommands));
    if (mPrivate)
        mPrivate->clearCommands();
}

int PopupConfirm::getSelectedIndex() const
{
    int index = 0;
    if (!isGuiThread()) {
        postEvent(makeRequest(this, Request::GetSelectedIndex, result(index)));
        return index;
    }
    return mPrivate ? mPrivate->getSelectedIndex() : index;
}

bool PopupConfirm::selectionHasChanged() const
{
    bool hasChanged = false;
    if (!isGuiThread()) {
        postEvent(makeRequest(this, Request::SelectionHasChanged, result(hasChanged)));
        return hasChanged;
    }
    return mPrivate && mPrivate->selectionHasChanged();
}

// Life on the screen

void PopupConfirm::show()
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::Show));
    if (mPrivate)
        mPrivate->show();
}

void PopupConfirm::dismiss()
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::Dismiss));
    if (mPrivate)
        mPrivate->dismiss();
}

void PopupConfirm::setTimeout(int milliseconds)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::SetTimeout, milliseconds));
    if (mPrivate)
        mPrivate->setTimeout(milliseconds);
}

// Listeners

void PopupConfirm::addCommandListener(CommandListener* listener)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::AddCommandListener, listener));
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

void PopupConfirm::removeCommandListener(CommandListener* listener)
{
    if (!isGuiThread())
        return postEvent(makeRequest(this, Request::RemoveCommandListener, listener));
    if (mPrivate)
        mPrivate->removeCommandListener(listener);
}

MenuCommand* PopupConfirm::HIDDEN_COMMAND()
{
    static auto* command = new MenuCommand("WIDGET_IS_HIDDEN_EVENT", 1001012345);
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
    case Request::GetSelectedIndex: *event.intResult = getSelectedIndex(); break;
    case Request::SelectionHasChanged: *event.boolResult = selectionHasChanged(); break;
    case Request::SetTimeout: setTimeout(event.intParam1); break;
    case Request::AddCommandListener: addCommandListener(listener); break;
    case Request::RemoveCommandListener: removeCommandListener(listener); break;
    }
    signalComplete(event);
}

}
