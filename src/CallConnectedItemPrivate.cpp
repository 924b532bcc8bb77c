#include "CallConnectedItemPrivate.h"

#include <DisplayAPI/CallPartyIdentifier.h>

#include "CurrentApplication.h"
#include "GuiThread.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxMEG.h>

#include <memory>

namespace DisplayAPI {

CallConnectedItemPrivate::CallConnectedItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text,
    bool headset, Image*, bool widgetFlag1, bool widgetFlag2, bool speaker, bool phoneLocked, bool remoteMaintenance)
    : mWidget(new TreeItemMEG(iconOf(state), UString(mTextInfo.show(text)), widgetFlag1, widgetFlag2))
{
    assertGuiThread();
    joinApplication(this);
    if (remoteMaintenance)
        CallConnectedItemPrivate::setRemoteMaintenanceIcon(true);
    if (phoneLocked)
        CallConnectedItemPrivate::setPhoneLockedIcon(true);
    if (speaker)
        CallConnectedItemPrivate::setSpeakerIcon(true);
    else
        CallConnectedItemPrivate::setHeadsetIcon(headset);
}

CallConnectedItemPrivate::~CallConnectedItemPrivate()
{
    assertGuiThread();
}

void CallConnectedItemPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged("");
}

// State

BranchMEG::IconType CallConnectedItemPrivate::iconOf(CallConnectedItem::CallStateIcon state) const
{
    switch (state) {
    case CallConnectedItem::CALL_ACTIVE: return mDisplayHD ? BranchMEG::CallActiveHD : BranchMEG::CallActive;
    case CallConnectedItem::CALL_CLEARING: return BranchMEG::CallClearing;
    case CallConnectedItem::CALL_HELD_BY_THIS_END: return BranchMEG::CallHeldByThisEnd;
    case CallConnectedItem::CALL_HELD_BY_FAR_END: return BranchMEG::CallHeldByFarEnd;
    case CallConnectedItem::CALL_LINE_BUSY: return BranchMEG::LineBusy;
    case CallConnectedItem::CALL_ALERTING: return BranchMEG::Alerting;
    }
    return BranchMEG::CallNoIcon;
}

void CallConnectedItemPrivate::setState(CallConnectedItem::CallStateIcon state)
{
    if (!mWidget)
        return;
    auto* application = VantoUApplication::getCurrentApplication();
    if (state == CallConnectedItem::CALL_ACTIVE && application)
        application->requestFullScreen();
    mWidget->setFirstIconType(iconOf(state));
    if (state != CallConnectedItem::CALL_CLEARING)
        return;
    if (application && shouldReleaseScreen())
        application->windowManager()->clearScreen();
    stopDurationTimer();
}

bool CallConnectedItemPrivate::shouldReleaseScreen() const
{
    const auto* list = dynamic_cast<const VantoListBoxMEG*>(mWidget->parentWidget());
    return list && list->count() == 1;
}

void CallConnectedItemPrivate::setSecurityState(CallConnectedItem::CallSecurityState state)
{
    const bool isKnown = state == CallConnectedItem::CALL_SECURE || state == CallConnectedItem::CALL_INSECURE;
    if (BranchMEG* row = branch())
        row->setCallSecurityState(
            isKnown ? static_cast<BranchMEG::CallSecurityState>(state) : BranchMEG::SecurityUnknown);
}

void CallConnectedItemPrivate::setRecordingState(bool recording)
{
    if (BranchMEG* row = branch())
        row->setCallRecordingState(static_cast<BranchMEG::CallRecording>(recording));
}

void CallConnectedItemPrivate::stopDurationTimer()
{
    if (mWidget)
        mWidget->stopDurationTimer();
}

void CallConnectedItemPrivate::enabled(bool enabled)
{
    if (mWidget)
        mWidget->enabled(enabled);
}

bool CallConnectedItemPrivate::getEnabled()
{
    return mWidget && mWidget->getEnabled();
}

// Texts

void CallConnectedItemPrivate::showText(const std::string& text)
{
    if (mWidget)
        mWidget->setText(UString(text));
}

void CallConnectedItemPrivate::showSecondLine(const std::string& text)
{
    if (mWidget)
        mWidget->setSecondLineText(UString(text));
}

void CallConnectedItemPrivate::clearSecondLineText()
{
    if (mWidget)
        mWidget->clearSecondLineText();
}

void CallConnectedItemPrivate::showId(const std::string& id)
{
    if (mWidget)
        mWidget->setBranchId(UString(id));
}

std::string CallConnectedItemPrivate::getBranchIdString()
{
    return mWidget ? mWidget->getBranchId().toUTF8() : std::string();
}

void CallConnectedItemPrivate::setPartyDetailsReq(CallPartyIdentifier* party, CallPartyIdentifier* second,
    ForwardedCallType type, const std::string& prefixText, TranslationInfo* prefixInfo)
{
    const std::unique_ptr<CallPartyIdentifier> owned(party);
    const std::unique_ptr<CallPartyIdentifier> ownedSecond(second);
    if (party)
        setText(party->displayText);
    if (second)
        setThirdLineIconText(type, second->displayText);
    setLine1PrePrefixText(prefixText, prefixInfo);
}

void CallConnectedItemPrivate::setLine1PrePrefixText(const std::string& text, TranslationInfo* info)
{
    const std::string shown = info ? mPrePrefixInfo.showBare(info) : mPrePrefixInfo.show(text);
    if (mWidget)
        mWidget->setPrePrefixText(UString(shown));
}

void CallConnectedItemPrivate::localeChanged(std::string)
{
    if (mTextInfo)
        showText(mTextInfo.completeString());
    if (mSecondLineInfo)
        showSecondLine(mSecondLineInfo.completeString());
    // Unlike when it was set, with what stands around it.
    if (mPrePrefixInfo && mWidget)
        mWidget->setPrePrefixText(UString(mPrePrefixInfo.completeString()));
    if (mBranchIdInfo)
        showId(mBranchIdInfo.completeString());
}

// Icons

void CallConnectedItemPrivate::setHeadsetIcon(bool on)
{
    if (BranchMEG* row = branch())
        row->setHeadsetIcon(on);
}

void CallConnectedItemPrivate::setSpeakerIcon(bool on)
{
    if (BranchMEG* row = branch())
        row->setSpeakerIcon(on);
}

void CallConnectedItemPrivate::setMuteIcon(bool on)
{
    if (BranchMEG* row = branch())
        row->setMuteIcon(on);
}

void CallConnectedItemPrivate::setPhoneLockedIcon(bool on)
{
    if (BranchMEG* row = branch())
        row->setPhoneLockedIcon(on);
}

void CallConnectedItemPrivate::setRemoteMaintenanceIcon(bool on)
{
    if (BranchMEG* row = branch())
        row->setRemoteMaintenanceIcon(on);
}

}
