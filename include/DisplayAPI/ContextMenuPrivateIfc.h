#pragma once

#include <DisplayAPI/DisplayablePrivate.h>

#include <UAgent.h>

#include <string>

class TranslatorIfc;

namespace DisplayAPI {

class Command;
class MenuCommand;

/// The menu on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT ContextMenuPrivateIfc : public UAgent, public DisplayablePrivate {
public:
    /// With a status icon the name of the status, "HeadSet", "Speaker" or "Mute", chooses the mark.
    virtual void addCommand(
        Command* command, Command* other, bool flag, bool withStatusIcon, const std::string& statusName)
        = 0;
    virtual void addCommandWithIcon(MenuCommand* command) = 0;
    virtual void clearCommands() = 0;
    virtual void setDefaultCommand(MenuCommand* command) = 0;
    virtual void setBackTranslator(TranslatorIfc* translator) = 0;
    virtual Command* getSelectedCommand() = 0;

    /// Builds a new widget; the argument has no effect.
    virtual void setWidget(UWidget* widget) = 0;
    virtual void dismiss() = 0;
    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
    void show() override = 0;
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;

    /// An agent outside that hears of choices and arrows before the command listeners.
    virtual UAgent* getListener() const = 0;
    virtual void setRightArrowEqualsOK(bool equals) = 0;
    virtual void setAutoHideTimeout(int seconds) = 0;
    virtual void setFPKPressedNeedsDialNumber() = 0;
    virtual void setCommandText(Command* command, const std::string& text, bool flag) = 0;
    virtual void pushBack() = 0;
    void lostFocus() override = 0;
    bool hideOldWidgetOnFocusGained() override = 0;
    int widgetPosition() override = 0;
    std::string serialise() override = 0;
    std::string serialise(const std::vector<Rect>& rects) override = 0;
    bool hasSystemWindow() override = 0;
};

}
