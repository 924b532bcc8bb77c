#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/IdleDisplay.h>

#include <UWidget.h>

#include <string>

namespace DisplayAPI {

/// The idle screen on the GUI thread, as its handle and its dialer see it.
class DISPLAYAPI_EXPORT IdleDisplayPrivateIfc : public DisplayablePrivate, public UWidget {
public:
    virtual void addSystemMessage(std::string text) = 0;
    virtual void addSystemMessage(TranslationInfo* text) = 0;
    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, std::string text) = 0;
    virtual void clearSystemMessages() = 0;

    // Menu: rows without commands; which one a row stands for is the handle's to know

    virtual void addMenuCommand(std::string text) = 0;
    virtual void clearMenuCommands() = 0;
    virtual void setDefaultMenuCommandIndex(int index) = 0;
    virtual int getDefaultMenuCommandIndex() = 0;
    virtual void fireMenuCommand(int index) = 0;

    // Notes. The notice of a new value comes before the value

    virtual void setMissedCalls(int count) = 0;
    virtual void setMessages(int count) = 0;
    virtual void setCallBack(bool shown) = 0;
    virtual void setEmergencyText(std::string text) = 0;

    /// Takes the translation over. It is not read again at a change of locale.
    virtual void setEmergencyText(TranslationInfo* text) = 0;
    virtual void setForwardingIconVisible(bool visible) = 0;
    virtual void setForwardingAddress(std::string address) = 0;
    virtual void setForwardingAddress(TranslationInfo* address) = 0;
    virtual void setForwardingAddress(TranslationInfo* info, CallPartyIdentifier* party) = 0;
    virtual void setServerBasedForwardingAddress(std::string address) = 0;
    virtual void setServerBasedForwardingAddress(TranslationInfo* address) = 0;
    virtual void localeChanged(std::string locale) = 0;
    virtual void changeLogo(std::string logo) = 0;
    virtual void setCurrentPhoneNumber(std::string number) = 0;
    virtual void setDisplayIdUnicode(std::string id) = 0;
    virtual void setUseDisplayId(bool use) = 0;
    virtual void displayMobileUserIcon(bool shown) = 0;
    virtual void setBrandingText(std::string text) = 0;
    virtual void hide() = 0;
    virtual void generateDisplayChanged() = 0;
    virtual bool isCMActiveOnIdleScreen() = 0;
    void event(UEvent* event) override = 0;

    /// Gets the keys that the idle widget has no use for, and those of the dialer: they go to the dialer's widget.
    bool keyEvent(UKeyEvent* key) override = 0;

    // Of the screen, not of the widget
    void show() override = 0;
};

}
