#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/TextField.h>

#include <UAgent.h>

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class ItemStateListener;
class MenuCommand;

/// The half of a popup for a text on the GUI thread, as its handle sees it.
///
/// Threads: GUI thread only, but for the listeners. Ownership: the handle owns it; field, commands and listeners stay
/// the application's.
class DISPLAYAPI_EXPORT PopupTextFieldPrivateIfc : public DisplayablePrivate, public UAgent {
public:
    /// What the keys write.
    enum editMode : int {
        LowerCase = 0,
        Capitalised = 1,
        UpperCase = 2,
        Numeric = 3,
        NumericOnly = 4, ///< As Numeric; the user's steps through the modes don't come here.
    };

    virtual std::string getText() = 0;
    virtual void clearText() = 0;

    /// Takes the popup down and empties it: the screen below comes back, and the display tells of it once.
    virtual void dismiss() = 0;
    virtual void addItemStateListener(ItemStateListener* listener) = 0;
    virtual std::vector<ItemStateListener*> getItemStateListeners() const = 0;
    virtual void addCommand(MenuCommand* command) = 0;
    virtual void clearCommands() = 0;
    virtual void setDefaultCommand(MenuCommand* command) = 0;
    virtual std::vector<CommandListener*> getCommandListeners() const = 0;

    /// Hands the label to the text field, or deletes it where there is none.
    virtual void setLabel(TranslationInfo* label) = 0;
    virtual void setFieldType(const TextField::FieldType& type) = 0;
    virtual void setTextEditMode(editMode mode) = 0;
    virtual editMode getTextEditMode() = 0;

    /// 0 or less means never.
    virtual void setTimeout(int milliseconds) = 0;
    void event(UEvent* event) override = 0;

    /// Gets the keys that the widget has no use for; always false.
    bool keyEvent(UKeyEvent* key) override = 0;
};

}
