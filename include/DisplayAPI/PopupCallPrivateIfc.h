#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/PopupCall.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The popup of a call on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT PopupCallPrivateIfc : public UAgent, public DisplayablePrivate {
public:
    /// Takes both parties over.
    virtual void setPopupCallDetails(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& auxText, TranslationInfo* auxInfo)
        = 0;
    virtual void setLine1PrefixText(const std::string& text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(const std::string& text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2PrefixText(const std::string& text) = 0;
    virtual void setLine2PrefixText(TranslationInfo* text) = 0;
    virtual void setLine2Text(const std::string& text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;
    virtual void setAuxText(const std::string& text) = 0;
    virtual void setState(PopupCall::CallState state, PopupCall::CallPriority priority) = 0;
    virtual void setImage(Image* image) = 0;
    virtual void addCommand(MenuCommand* command) = 0;
    virtual void setDefaultCommand(MenuCommand* command) = 0;
    virtual void clearCommands() = 0;
    void addCommandListener(CommandListener* listener) override = 0;
    void removeCommandListener(CommandListener* listener) override = 0;
    virtual void dismiss() = 0;
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;
    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
    void show() override = 0;
    void lostFocus() override = 0;
    bool hideOldWidgetOnFocusGained() override = 0;
    int widgetPosition() override = 0;
    using DisplayablePrivate::serialise;
    std::string serialise() override = 0;
};

}
