#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/PopupDialer.h>

#include <UWidget.h>

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class ItemStateListener;
class MenuCommand;

/// The dial popup on the GUI thread. Lists and the idle screen hand their keys to keyEvent().
class DISPLAYAPI_EXPORT PopupDialerPrivateIfc : public DisplayablePrivate, public UWidget {
public:
    virtual void setLine1PrefixText(std::string text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(std::string text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2Text(std::string text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;
    virtual std::string getLineEditText() = 0;
    virtual void setLineEditText(std::string text) = 0;
    virtual void setLineEditText(TranslationInfo* text) = 0;
    virtual void addItemStateListener(ItemStateListener* listener) = 0;
    virtual void removeItemStateListener(ItemStateListener* listener) = 0;
    virtual void addCommand(MenuCommand* command) = 0;
    virtual void setDefaultCommand(MenuCommand* command) = 0;
    virtual void removeCommand(MenuCommand* command) = 0;
    virtual void setMode(PopupDialer::eMode mode) = 0;
    virtual void setEditMode() = 0;
    virtual void setIgnoreKeypadEvents(bool ignore) = 0;
    virtual void clearCommands() = 0;
    virtual void setParentIdleDisplay(UWidget* idleDisplay) = 0;
    virtual void dismiss() = 0;
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;
    virtual void setStimulusText(std::string text) = 0;
    virtual void setStimulusText(TranslationInfo* text) = 0;
    virtual void showStimulusTextInHeader(bool shown) = 0;
    void event(UEvent* event) override = 0;

    /// Gets the keys that the popup has no use for; true if the idle screen behind it has taken the key.
    bool keyEvent(UKeyEvent* key) override = 0;

    // Of the screen, not of the widget
    void show() override = 0;
};

}
