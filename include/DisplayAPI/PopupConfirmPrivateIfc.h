#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/PopupConfirm.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The half of a question popup on the GUI thread, as its handle sees it: an operation for each request.
///
/// An operation that changes what can be seen ends with the display's notice. The subscriber may delete the popup in
/// it, and this with the popup: a caller who goes on asks first whether it still lives.
///
/// Threads: GUI thread only.
/// Ownership: the handle owns it. It owns its widget while no tree of the toolkit does, and the translations that it
/// is given; commands and listeners stay the application's.
/// Errors: when the widget has been deleted by a tree that owned it, every operation is without effect.
class DISPLAYAPI_EXPORT PopupConfirmPrivateIfc : public UAgent, public DisplayablePrivate {
public:
    // Texts. Null is an empty text; the same translation again is read again.

    virtual void setLine1PrefixText(const std::string& text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(const std::string& text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2PrefixText(const std::string& text) = 0;
    virtual void setLine2PrefixText(TranslationInfo* text) = 0;
    virtual void setLine2Text(const std::string& text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;
    virtual void setState(PopupConfirm::PopupState state) = 0;

    /// 0 or less means never.
    virtual void setTimeout(int milliseconds) = 0;

    // Choices. A command may have died: it is asked for by address and running number.

    virtual void addCommand(Command* command) = 0;
    virtual void setDefaultCommand(Command* command) = 0;
    virtual void removeCommand(Command* command) = 0;
    virtual void clearCommands() = 0;

    /// Takes the popup down: the screen below comes back, the display tells of it once, and the listeners get the
    /// hidden command.
    virtual void dismiss() = 0;

    /// -1 without a current row.
    virtual int getSelectedIndex() = 0;

    /// Reads and clears the mark.
    virtual bool selectionHasChanged() = 0;

    // Listeners: one that is added twice is told twice

    void addCommandListener(CommandListener* listener) override = 0;
    void removeCommandListener(CommandListener* listener) override = 0;

    // Ownership

    /// Null once the widget has gone.
    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
};

}
