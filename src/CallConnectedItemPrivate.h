#pragma once

#include <DisplayAPI/CallConnectedItemPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <TreeItemMEG.h>

#include <string>

namespace DisplayAPI {

/// The row of a connected call on the GUI thread: a TreeItemMEG with its texts.
///
/// A list that holds the toolkit's row may delete it; then everything here is without effect.
class CallConnectedItemPrivate : public virtual CallConnectedItemPrivateIfc {
public:
    /// Takes the translation over; null is an empty text. The picture has no effect.
    CallConnectedItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text, bool headset,
        Image* picture, bool widgetFlag1, bool widgetFlag2, bool speaker, bool phoneLocked, bool remoteMaintenance);
    ~CallConnectedItemPrivate() override;
    CallConnectedItemPrivate(const CallConnectedItemPrivate&) = delete;
    CallConnectedItemPrivate& operator=(const CallConnectedItemPrivate&) = delete;

    // The order is that of the interface, whose table this class has a copy of

    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    void event(UEvent* event) override;
    void setState(CallConnectedItem::CallStateIcon state) override;
    void setPictureClip(Image*) override { }
    void setText(std::string text) override { showText(mTextInfo.show(text)); }
    void setText(TranslationInfo* text) override { showText(mTextInfo.show(text)); }
    void setSecondLineText(std::string text) override { showSecondLine(mSecondLineInfo.show(text)); }
    void setSecondLineText(TranslationInfo* text) override { showSecondLine(mSecondLineInfo.show(text)); }
    void setThirdLineIconText(ForwardedCallType, std::string) override { }
    void setPartyDetailsReq(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& prefixText, TranslationInfo* prefixInfo) override;
    void clearSecondLineText() override;
    void setSecurityState(CallConnectedItem::CallSecurityState state) override;
    void setRecordingState(bool recording) override;
    void setBranchIdString(std::string id) override { showId(mBranchIdInfo.show(id)); }
    void setBranchIdString(TranslationInfo* id) override { showId(mBranchIdInfo.show(id)); }
    std::string getBranchIdString() override;
    ContextMenu* getContextMenu() override { return mContextMenu; }
    VantoListBoxItemMEG* getVantoListItem() override { return mWidget; }
    void localeChanged(std::string locale) override;
    void stopDurationTimer() override;
    void addGPULine(std::string) override { }
    void addGPULine(TranslationInfo*) override { }
    void removeGPULine() override { }
    void enabled(bool enabled) override;
    bool getEnabled() override;
    void setDisplayHDIconStatus(bool shown) override { mDisplayHD = shown; }
    void setHeadsetIcon(bool on) override;
    void setSpeakerIcon(bool on) override;
    void setMuteIcon(bool on) override;
    void setPhoneLockedIcon(bool on) override;
    void setRemoteMaintenanceIcon(bool on) override;

    bool hasOwnership() const { return mOwnership.hasOwnership(); }

protected:
    /// Null when the toolkit has deleted it.
    TreeItemMEG* widget() const { return mWidget; }

private:
    BranchMEG::IconType iconOf(CallConnectedItem::CallStateIcon state) const;
    bool shouldReleaseScreen() const;
    BranchMEG* branch() const { return mWidget ? mWidget->branch : nullptr; }
    void showText(const std::string& text);
    void showSecondLine(const std::string& text);
    void showId(const std::string& id);
    void setLine1PrePrefixText(const std::string& text, TranslationInfo* info);

    ContextMenu* mContextMenu = nullptr;
    TranslationHolder mTextInfo;
    TranslationHolder mSecondLineInfo;
    TranslationHolder mBranchIdInfo;
    TranslationHolder mPrePrefixInfo;
    bool mDisplayHD = false;
    TreeItemMEG* mWidget;
    OwnershipDelegate<TreeItemMEG> mOwnership{&mWidget};
};

}
