#pragma once

#include <DisplayAPI/PopupNotificationPrivateIfc.h>

#include "PopupPrivate.h"

#include <PopupNotificationMEG.h>

namespace DisplayAPI {

/// The notification popup on the GUI thread: a PopupNotificationMEG with its texts.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupNotificationPrivate final : public PopupPrivate<PopupNotificationPrivateIfc, PopupNotificationMEG> {
public:
    explicit PopupNotificationPrivate(Displayable* owner);

    // Texts

    void setLine1PrefixText(const std::string& text) override { setLine(mLine1Prefix, text); }
    void setLine1PrefixText(TranslationInfo* text) override { setLine(mLine1Prefix, text); }
    void setText(const std::string& text) override { setLine(mText, text); }
    void setText(TranslationInfo* text) override;
    void setLine2PrefixText(const std::string& text) override { setLine(mLine2Prefix, text); }
    void setLine2PrefixText(TranslationInfo* text) override { setLine(mLine2Prefix, text); }
    void setLine2Text(const std::string& text) override;
    void setLine2Text(TranslationInfo* text) override { setLine(mLine2, text); }
    void setLine3Text(const std::string& text) override { setLine(mLine3, text); }
    void setLine3Text(TranslationInfo* text) override { setLine(mLine3, text); }
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

    void show() override;
    void setTimeout(int milliseconds) override;
    void setDismissible(bool dismissible) override;
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// Empty unless a rectangle holds the whole popup.
    std::string serialise(const std::vector<URect>& rects);

private:
    enum class Form {
        Whole,
        InRects,
    };

    void popupCameUp();
    void popupWentDown();
    void giveBackTheGlass();
    bool windowHiddenAfterTimeout();
    std::string block(Form form) const;
    std::string line1() const;
    std::string line2(Form form) const;

    Displayable* mOwner;
    PopupNotification::InfoType mType = PopupNotification::NONE;
    Line mLine1Prefix{&PopupNotificationMEG::setLine1PrefixText};
    Line mText{&PopupNotificationMEG::setText};
    Line mLine2Prefix{&PopupNotificationMEG::setLine2PrefixText};
    Line mLine2{&PopupNotificationMEG::setLine2Text};
    Line mLine3{&PopupNotificationMEG::setLine3Text};
    bool mLine2Arrow = false;
};

}
