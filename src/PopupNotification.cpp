#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/PopupNotificationPrivateIfc.h>

#include "LastingCommand.h"
#include "PartyText.h"
#include "PopupNotificationPrivate.h"
#include "Road.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class PopupNotification::Request : int {
    Create = 0,
    Destroy = 1,
    SetLine1PrefixText = 2,
    SetLine1PrefixTranslation = 3,
    SetText = 4,
    SetTranslation = 5,
    SetLine2Icon = 6,
    SetLine2PrefixText = 7,
    SetLine2PrefixTranslation = 8,
    SetLine2Text = 9,
    SetLine2Translation = 10,
    SetLine3Text = 11,
    SetLine3Translation = 12,
    SetTimeout = 13,
    SetDismissible = 14,
    SetType = 15,
    Show = 16,
    Dismiss = 17,
    SetForwardNotification = 18,
};

PopupNotification::PopupNotification()
{
    create();
}

PopupNotification::~PopupNotification()
{
    destroy();
}

void PopupNotification::create()
{
    if (!Road::wait(this, Request::Create))
        return;
    mName = "PopupNotification";
    mPrivate = std::make_unique<PopupNotificationPrivate>(this);
}

void PopupNotification::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* PopupNotification::getPrivateImpl()
{
    return mPrivate.get();
}

// Texts

void PopupNotification::setLine1PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixText, text))
        half->setLine1PrefixText(text);
}

void PopupNotification::setLine1PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine1PrefixTranslation, given(text)))
        half->setLine1PrefixText(text);
}

void PopupNotification::setText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetText, text))
        half->setText(text);
}

void PopupNotification::setText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslation, given(text)))
        half->setText(text);
}

void PopupNotification::setLine2PrefixText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2PrefixText, text))
        half->setLine2PrefixText(text);
}

void PopupNotification::setLine2PrefixText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2PrefixTranslation, given(text)))
        half->setLine2PrefixText(text);
}

void PopupNotification::setLine2Text(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Text, text))
        half->setLine2Text(text);
}

void PopupNotification::setLine2Text(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Translation, given(text)))
        half->setLine2Text(text);
}

void PopupNotification::setLine3Text(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine3Text, text))
        half->setLine3Text(text);
}

void PopupNotification::setLine3Text(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine3Translation, given(text)))
        half->setLine3Text(text);
}

void PopupNotification::setPartyDetails(const CallPartyIdentifier& party)
{
    showNameElseNumber(party, [this](const auto& text) { setLine2Text(text); });
}

// Icons and kinds

void PopupNotification::setType(InfoType type)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetType, type))
        half->setType(type);
}

void PopupNotification::setLine2Icon(IconElemType icon)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLine2Icon, icon))
        half->setLine2Icon(icon);
}

void PopupNotification::setForwardNotification(
    CallPartyIdentifier& party, CallPartyIdentifier& second, ForwardedCallType type)
{
    forward(new CallPartyIdentifier(party), new CallPartyIdentifier(second), type);
}

void PopupNotification::forward(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetForwardNotification, copied(party), copied(second), type))
        half->setForwardNotification(party, second, type);
}

// Life on the screen

void PopupNotification::show()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Show))
        half->show();
}

void PopupNotification::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

void PopupNotification::setTimeout(int milliseconds)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTimeout, milliseconds))
        half->setTimeout(milliseconds);
}

void PopupNotification::setDismissible(bool dismissible)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDismissible, dismissible))
        half->setDismissible(dismissible);
}

// Listeners. They stand in a list for any thread, so they go there without a request

void PopupNotification::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

void PopupNotification::removeCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->removeCommandListener(listener);
}

MenuCommand* PopupNotification::HIDDEN_COMMAND()
{
    static MenuCommand* command = lastingHiddenCommand();
    return command;
}

// Road across threads

void PopupNotification::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(); break;
    case Request::Destroy: destroy(); break;
    case Request::SetLine1PrefixText: setLine1PrefixText(text); break;
    case Request::SetLine1PrefixTranslation: setLine1PrefixText(translation); break;
    case Request::SetText: setText(text); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::SetLine2Icon: setLine2Icon(static_cast<IconElemType>(event.intParam1)); break;
    case Request::SetLine2PrefixText: setLine2PrefixText(text); break;
    case Request::SetLine2PrefixTranslation: setLine2PrefixText(translation); break;
    case Request::SetLine2Text: setLine2Text(text); break;
    case Request::SetLine2Translation: setLine2Text(translation); break;
    case Request::SetLine3Text: setLine3Text(text); break;
    case Request::SetLine3Translation: setLine3Text(translation); break;
    case Request::SetTimeout: setTimeout(event.intParam1); break;
    case Request::SetDismissible: setDismissible(event.boolParam1); break;
    case Request::SetType: setType(static_cast<InfoType>(event.intParam1)); break;
    case Request::Show: show(); break;
    case Request::Dismiss: dismiss(); break;
    case Request::SetForwardNotification:
        forward(static_cast<CallPartyIdentifier*>(event.ptrParam1), static_cast<CallPartyIdentifier*>(event.ptrParam2),
            static_cast<ForwardedCallType>(event.intParam1));
        break;
    }
    signalComplete(event);
}

}
