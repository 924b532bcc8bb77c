#include <DisplayAPI/CallConnectedItem.h>
#include <DisplayAPI/CallConnectedItemPrivateIfc.h>
#include <DisplayAPI/CallPartyIdentifier.h>

#include "CallConnectedItemPrivate.h"
#include "HeldRows.h"
#include "Road.h"

#include <memory>
#include <utility>

namespace DisplayAPI {

enum class CallConnectedItem::Request : int {
    Create = 19,
    Destroy = 21,
    SetState = 22,
    SetText = 23,
    SetTranslation = 24,
    SetPictureClip = 25,
    SetSecondLineText = 26,
    SetSecondLineTranslation = 27,
    SetSecurityState = 28,
    SetRecordingState = 29,
    ClearSecondLineText = 30,
    SetThirdLineIconText = 31,
    SetPartyDetails = 32,
    AddGPULine = 33,
    AddGPULineTranslation = 34,
    RemoveGPULine = 35,
    SetCallId = 36,
    SetCallIdTranslation = 37,
    GetCallId = 38,
    StopDurationTimer = 39,
    Enabled = 40,
    GetEnabled = 41,
    SetDisplayHDIconStatus = 42,
    SetHeadsetIcon = 43,
    SetSpeakerIcon = 44,
    SetMuteIcon = 45,
    SetPhoneLockedIcon = 46,
    SetRemoteMaintenanceIcon = 47,
    SetPartyId = 48,
    GetPartyId = 49,
};

CallConnectedItem::CallConnectedItem(CallStateIcon state, TranslationInfo* text, bool headset, Image* picture,
    bool widgetFlag1, bool widgetFlag2, bool speaker, bool phoneLocked, bool remoteMaintenance)
    : ListItem(nullptr)
{
    mName = "CallConnectedItem";
    initialise(state, text, headset, picture, widgetFlag1, widgetFlag2, speaker, phoneLocked, remoteMaintenance);
}

CallConnectedItem::CallConnectedItem()
    : ListItem(nullptr)
{
}

CallConnectedItem::~CallConnectedItem()
{
    endRow();
}

void CallConnectedItem::initialise(CallStateIcon state, TranslationInfo* text, bool headset, Image* picture,
    bool widgetFlag1, bool widgetFlag2, bool speaker, bool phoneLocked, bool remoteMaintenance)
{
    if (Road::post(this, Request::Create, state, given(text), picture, headset, widgetFlag1, widgetFlag2, speaker,
            phoneLocked, remoteMaintenance))
        setHalf(new CallConnectedItemPrivate(
            state, text, headset, picture, widgetFlag1, widgetFlag2, speaker, phoneLocked, remoteMaintenance));
}

void CallConnectedItem::setHalf(CallConnectedItemPrivateIfc* half)
{
    const std::unique_ptr<CallConnectedItemPrivateIfc> before(mPrivate.exchange(half));
    if (before)
        privateChanged(before.get());
}

void CallConnectedItem::destroy()
{
    retireRow(mPrivate);
    delete mPrivate.exchange(nullptr);
}

void CallConnectedItem::endRow()
{
    if (exists(this) && Road::wait(this, Request::Destroy))
        destroy();
    if (exists(this))
        HeldRows::refuseDeath(*this, mPrivate.exchange(nullptr));
}

ListItemPrivateIfc* CallConnectedItem::getPrivateImplemetation()
{
    return mPrivate;
}

ContextMenu* CallConnectedItem::getContextMenu()
{
    CallConnectedItemPrivateIfc* half = mPrivate;
    return half ? half->getContextMenu() : nullptr;
}

// State

void CallConnectedItem::setState(CallStateIcon state)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetState, state))
        half->setState(state);
}

void CallConnectedItem::setSecurityState(CallSecurityState state)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSecurityState, state))
        half->setSecurityState(state);
}

void CallConnectedItem::setRecordingState(bool recording)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetRecordingState, recording))
        half->setRecordingState(recording);
}

void CallConnectedItem::setDisplayHDIconStatus(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetDisplayHDIconStatus, shown))
        half->setDisplayHDIconStatus(shown);
}

void CallConnectedItem::stopDurationTimer()
{
    if (auto* half = Road::post(this, mPrivate, Request::StopDurationTimer))
        half->stopDurationTimer();
}

void CallConnectedItem::enabled(bool enabled)
{
    if (auto* half = Road::post(this, mPrivate, Request::Enabled, enabled))
        half->enabled(enabled);
}

bool CallConnectedItem::getEnabled()
{
    bool isEnabled = false;
    if (auto* half = Road::wait(this, mPrivate, Request::GetEnabled, result(isEnabled)))
        isEnabled = half->getEnabled();
    return isEnabled;
}

// Texts

void CallConnectedItem::setText(std::string text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetText, text))
        half->setText(text);
}

void CallConnectedItem::setText(TranslationInfo* text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetTranslation, given(text)))
        half->setText(text);
}

void CallConnectedItem::setSecondLineText(std::string text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSecondLineText, text))
        half->setSecondLineText(text);
}

void CallConnectedItem::setSecondLineText(TranslationInfo* text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSecondLineTranslation, given(text)))
        half->setSecondLineText(text);
}

void CallConnectedItem::clearSecondLineText()
{
    if (auto* half = Road::post(this, mPrivate, Request::ClearSecondLineText))
        half->clearSecondLineText();
}

std::string CallConnectedItem::getSecondLineText()
{
    return {};
}

void CallConnectedItem::setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* second,
    ForwardedCallType type, const std::string& prefixText, TranslationInfo* prefixInfo)
{
    auto* secondCopy = second ? new CallPartyIdentifier(*second) : nullptr;
    setDetails(new CallPartyIdentifier(party), secondCopy, type, prefixText, prefixInfo);
}

void CallConnectedItem::setDetails(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
    const std::string& prefixText, TranslationInfo* prefixInfo)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetPartyDetails, copied(party), copied(second), type,
            prefixText, given(prefixInfo)))
        half->setPartyDetailsReq(party, second, type, prefixText, prefixInfo);
}

// Icons

void CallConnectedItem::setHeadsetIcon(bool on)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetHeadsetIcon, on))
        half->setHeadsetIcon(on);
}

void CallConnectedItem::setSpeakerIcon(bool on)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSpeakerIcon, on))
        half->setSpeakerIcon(on);
}

void CallConnectedItem::setMuteIcon(bool on)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetMuteIcon, on))
        half->setMuteIcon(on);
}

void CallConnectedItem::setPhoneLockedIcon(bool on)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetPhoneLockedIcon, on))
        half->setPhoneLockedIcon(on);
}

void CallConnectedItem::setRemoteMaintenanceIcon(bool on)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetRemoteMaintenanceIcon, on))
        half->setRemoteMaintenanceIcon(on);
}

// What the application knows the call and the party by

void CallConnectedItem::setCallId(std::string id)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetCallId, id))
        half->setBranchIdString(id);
}

void CallConnectedItem::setCallId(TranslationInfo* id)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetCallIdTranslation, given(id)))
        half->setBranchIdString(id);
}

std::string CallConnectedItem::getCallId()
{
    std::string id;
    if (auto* half = Road::wait(this, mPrivate, Request::GetCallId, result(id)))
        id = half->getBranchIdString();
    return id;
}

void CallConnectedItem::setPartyId(std::string id)
{
    if (Road::post(this, Request::SetPartyId, id))
        mPartyId = std::move(id);
}

std::string CallConnectedItem::getPartyId()
{
    std::string id;
    if (Road::wait(this, Request::GetPartyId, result(id)))
        id = mPartyId;
    return id;
}

// Without effect on this telephone

void CallConnectedItem::setPictureClip(Image* picture)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetPictureClip, picture))
        half->setPictureClip(picture);
}

void CallConnectedItem::setThirdLineIconText(ForwardedCallType type, std::string text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetThirdLineIconText, type, text))
        half->setThirdLineIconText(type, text);
}

void CallConnectedItem::addGPULine(std::string text)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddGPULine, text))
        half->addGPULine(text);
}

void CallConnectedItem::addGPULine(TranslationInfo* text)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddGPULineTranslation, text))
        half->addGPULine(text);
}

void CallConnectedItem::removeGPULine()
{
    if (auto* half = Road::post(this, mPrivate, Request::RemoveGPULine))
        half->removeGPULine();
}

// Road across threads

void CallConnectedItem::processGuiRequest(GuiRequestEvent& event)
{
    if (event.getType() < static_cast<int>(Request::Create) || event.getType() > static_cast<int>(Request::GetPartyId))
        return ListItem::processGuiRequest(event);

    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    const bool isOn = event.boolParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create:
        initialise(static_cast<CallStateIcon>(event.intParam1), translation, isOn, static_cast<Image*>(event.ptrParam2),
            event.boolParam2, event.boolParam3, event.boolParam4, event.boolParam5, event.boolParam6);
        break;
    case Request::Destroy: destroy(); break;
    case Request::SetState: setState(static_cast<CallStateIcon>(event.intParam1)); break;
    case Request::SetText: setText(text); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::SetPictureClip: setPictureClip(static_cast<Image*>(event.ptrParam1)); break;
    case Request::SetSecondLineText: setSecondLineText(text); break;
    case Request::SetSecondLineTranslation: setSecondLineText(translation); break;
    case Request::SetSecurityState: setSecurityState(static_cast<CallSecurityState>(event.intParam1)); break;
    case Request::SetRecordingState: setRecordingState(isOn); break;
    case Request::ClearSecondLineText: clearSecondLineText(); break;
    case Request::SetThirdLineIconText:
        setThirdLineIconText(static_cast<ForwardedCallType>(event.intParam1), text);
        break;
    case Request::SetPartyDetails:
        setDetails(static_cast<CallPartyIdentifier*>(event.ptrParam1),
            static_cast<CallPartyIdentifier*>(event.ptrParam2), static_cast<ForwardedCallType>(event.intParam1), text,
            static_cast<TranslationInfo*>(event.ptrParam3));
        break;
    case Request::AddGPULine: addGPULine(text); break;
    case Request::AddGPULineTranslation: addGPULine(translation); break;
    case Request::RemoveGPULine: removeGPULine(); break;
    case Request::SetCallId: setCallId(text); break;
    case Request::SetCallIdTranslation: setCallId(translation); break;
    case Request::GetCallId: answer(event.stringResult, getCallId()); break;
    case Request::StopDurationTimer: stopDurationTimer(); break;
    case Request::Enabled: enabled(isOn); break;
    case Request::GetEnabled: answer(event.boolResult, getEnabled()); break;
    case Request::SetDisplayHDIconStatus: setDisplayHDIconStatus(isOn); break;
    case Request::SetHeadsetIcon: setHeadsetIcon(isOn); break;
    case Request::SetSpeakerIcon: setSpeakerIcon(isOn); break;
    case Request::SetMuteIcon: setMuteIcon(isOn); break;
    case Request::SetPhoneLockedIcon: setPhoneLockedIcon(isOn); break;
    case Request::SetRemoteMaintenanceIcon: setRemoteMaintenanceIcon(isOn); break;
    case Request::SetPartyId: setPartyId(text); break;
    case Request::GetPartyId: answer(event.stringResult, getPartyId()); break;
    }
    signalComplete(event);
}

}
