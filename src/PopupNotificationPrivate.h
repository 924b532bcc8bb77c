#pragma once

#include <DisplayAPI/PopupNotificationPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <PopupNotificationMEG.h>

#include <vector>

namespace DisplayAPI {

/// The notification popup on the GUI thread: a PopupNotificationMEG with its texts.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupNotificationPrivate final : public PopupNotificationPrivateIfc {
public:
    explicit PopupNotificationPrivate(Displayable* owner);
    ~PopupNotificationPrivate() override;

    // Texts

    void setLine1PrefixText(const std::string& text) override;
    void setLine1PrefixText(TranslationInfo* text) override;
    void setText(const std::string& text) override;
    void setText(TranslationInfo* text) override;
    void setLine2PrefixText(const std::string& text) override;
    void setLine2PrefixText(TranslationInfo* text) override;
    void setLine2Text(const std::string& text) override;
    void setLine2Text(TranslationInfo* text) override;
    void setLine3Text(const std::string& text) override;
    void setLine3Text(TranslationInfo* text) override;
    void localeChanged(std::string locale);

    // Icons and kinds

    void setType(PopupNotification::InfoType type) override;
    void setLine2Icon(PopupNotification::IconElemType icon) override;
    void setForwardNotification(
        CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type) override;

    // Listeners

    void addCommandListener(CommandListener* listener) override { mCommandListeners.addOnce(listener); }
    void removeCommandListener(CommandListener* listener) override { mCommandListeners.remove(listener); }

    // Life on the screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void dismiss() override;
    void lostFocus() override { }
    void setTimeout(int milliseconds) override;
    void setDismissible(bool dismissible) override;
    bool hideOldWidgetOnFocusGained() override { return false; }
    int widgetPosition() override { return 1; }
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// Empty unless a rectangle holds the whole popup.
    std::string serialise(const std::vector<URect>& rects);

private:
    using Field = void (PopupNotificationMEG::*)(const UString& text);
    enum class Form {
        Whole,
        InRects,
    };

    void write(Field field, const std::string& text);
    void showParties(const CallPartyIdentifier& party, const CallPartyIdentifier* second);
    void popupCameUp();
    void popupWentDown();
    void giveBackTheGlass();
    bool windowHiddenAfterTimeout();
    std::string block(Form form) const;
    std::string line1() const;
    std::string line2(Form form) const;

    Displayable* mOwner;
    PopupNotificationMEG* mWidget = new PopupNotificationMEG;
    PopupNotification::InfoType mType = PopupNotification::NONE;
    TranslationHolder mLine1PrefixInfo;
    TranslationHolder mTextInfo;
    TranslationHolder mLine2PrefixInfo;
    TranslationHolder mLine2Info;
    TranslationHolder mLine3Info;
    bool mLine2Arrow = false;
    OwnershipDelegate<PopupNotificationMEG> mOwnership{&mWidget};
};

}
