#pragma once

#include <DisplayAPI/CallConnectedItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The row of a connected call on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT CallConnectedItemPrivateIfc : public ListItemPrivateIfc, public UAgent {
public:
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
    void event(UEvent* event) override = 0;
    virtual void setState(CallConnectedItem::CallStateIcon state) = 0;
    virtual void setPictureClip(Image* picture) = 0;
    void setText(std::string text) override = 0;
    void setText(TranslationInfo* text) override = 0;
    virtual void setSecondLineText(std::string text) = 0;
    virtual void setSecondLineText(TranslationInfo* text) = 0;
    virtual void setThirdLineIconText(ForwardedCallType type, std::string text) = 0;

    /// Takes both parties over.
    virtual void setPartyDetailsReq(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& prefixText, TranslationInfo* prefixInfo)
        = 0;
    virtual void clearSecondLineText() = 0;
    virtual void setSecurityState(CallConnectedItem::CallSecurityState state) = 0;
    virtual void setRecordingState(bool recording) = 0;
    virtual void setBranchIdString(std::string id) = 0;
    virtual void setBranchIdString(TranslationInfo* id) = 0;
    virtual std::string getBranchIdString() = 0;
    virtual ContextMenu* getContextMenu() = 0;
    VantoListBoxItemMEG* getVantoListItem() override = 0;
    void localeChanged(std::string locale) override = 0;
    virtual void stopDurationTimer() = 0;
    virtual void addGPULine(std::string text) = 0;
    virtual void addGPULine(TranslationInfo* text) = 0;
    virtual void removeGPULine() = 0;
    virtual void enabled(bool enabled) = 0;
    virtual bool getEnabled() = 0;
    virtual void setDisplayHDIconStatus(bool shown) = 0;
    virtual void setHeadsetIcon(bool on) = 0;
    virtual void setSpeakerIcon(bool on) = 0;
    virtual void setMuteIcon(bool on) = 0;
    virtual void setPhoneLockedIcon(bool on) = 0;
    virtual void setRemoteMaintenanceIcon(bool on) = 0;
};

}
