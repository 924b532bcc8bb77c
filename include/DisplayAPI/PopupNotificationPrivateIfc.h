#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/PopupNotification.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The notification popup on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT PopupNotificationPrivateIfc : public UAgent, public DisplayablePrivate {
public:
    virtual void setType(PopupNotification::InfoType type) = 0;

    /// Takes both parties over.
    virtual void setForwardNotification(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type)
        = 0;
    virtual void setLine1PrefixText(const std::string& text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(const std::string& text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2Icon(PopupNotification::IconElemType icon) = 0;
    virtual void setLine2PrefixText(const std::string& text) = 0;
    virtual void setLine2PrefixText(TranslationInfo* text) = 0;
    virtual void setLine2Text(const std::string& text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;
    virtual void setLine3Text(const std::string& text) = 0;
    virtual void setLine3Text(TranslationInfo* text) = 0;
    virtual void setTimeout(int milliseconds) = 0;
    virtual void setDismissible(bool dismissible) = 0;
    void addCommandListener(CommandListener* listener) override = 0;
    void removeCommandListener(CommandListener* listener) override = 0;
    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
    void show() override = 0;
    virtual void dismiss() = 0;
    void lostFocus() override = 0;
    bool hideOldWidgetOnFocusGained() override = 0;
    int widgetPosition() override = 0;
    std::string serialise() override = 0;
};

}
