#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/PopupConfirm.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The question popup on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT PopupConfirmPrivateIfc : public UAgent, public DisplayablePrivate {
public:
    virtual void setLine1PrefixText(const std::string& text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(const std::string& text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2PrefixText(const std::string& text) = 0;
    virtual void setLine2PrefixText(TranslationInfo* text) = 0;
    virtual void setLine2Text(const std::string& text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;
    virtual void setState(PopupConfirm::PopupState state) = 0;
    virtual void setTimeout(int milliseconds) = 0;
    virtual void addCommand(Command* command) = 0;
    virtual void setDefaultCommand(Command* command) = 0;
    virtual void removeCommand(Command* command) = 0;
    virtual void clearCommands() = 0;
    virtual void dismiss() = 0;
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;
    void addCommandListener(CommandListener* listener) override = 0;
    void removeCommandListener(CommandListener* listener) override = 0;
    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
};

}
