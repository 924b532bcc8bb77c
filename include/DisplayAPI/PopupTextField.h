#pragma once

#include <DisplayAPI/Dialog.h>
#include <DisplayAPI/PopupTextFieldPrivateIfc.h>
#include <DisplayAPI/TextField.h>

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ItemStateListener;
class MenuCommand;

/// A popup in which the user writes a text, under the label of a text field, with a list of choices below it.
///
/// The keys write as in a form, and the hash steps through the modes of writing; once the application has set a
/// translator, the first choice ends in the name of the mode. Each change of the text by a key is told to the
/// item-state listeners, with the text field. Choosing a row tells the command listeners and leaves the popup up; the
/// application dismisses it. Left on an empty line posts PopupDialer::BackCommand(). When the popup has gone down, the
/// command listeners get PopupConfirm::HIDDEN_COMMAND(), the one of that class.
///
/// The text field gives its label and its kind; its value is neither read nor written. It may die first.
///
/// Threads: any. Each call returns after it has run on the GUI thread; the listeners' operations act at once.
/// Ownership: the text field, commands and listeners stay the application's; a label becomes the text field's.
/// Errors: a null or deleted command is ignored. A null or deleted text field is none: the popup has an empty label
/// then and tells of no change of state. A popup that was made after the event loop had ended ignores every call.
/// Screen text: an object "PopupTextField" with the text and the current choice, or the letters of the key that could
/// be pressed again. A password is written as asterisks, once the popup or its text field has been of that kind.
class DISPLAYAPI_EXPORT PopupTextField : public Dialog {
public:
    /// The flag has no effect.
    PopupTextField(TextField* field, bool flag);

    /// Takes the popup off the screen, which tells no listener.
    ~PopupTextField() override;

    // Text

    /// What has been written, passwords too.
    std::string getText();

    /// Empties the line, without a notice.
    void clearText();

    /// Replaces the label, also that of the text field. Shown without prefix and suffix until the locale changes; null
    /// is an empty one.
    void setLabel(TranslationInfo* label);

    /// Of the text field too. A password shows asterisks, a number (5) makes the keys write digits from then on.
    void setFieldType(const TextField::FieldType& type);

    /// What the keys write first; numbers outside the enumeration are kept and change nothing.
    void setTextEditMode(PopupTextFieldPrivateIfc::editMode mode);

    /// What was set last, whatever the user has made of it; Capitalised at first.
    PopupTextFieldPrivateIfc::editMode getTextEditMode();

    // Choices

    /// Adds a choice at the end.
    void addCommand(MenuCommand* command);
    void clearCommands();

    /// The choice that is current when the popup comes up; added if it is not there yet.
    void setDefaultCommand(MenuCommand* command);

    // Life on the screen

    /// Takes the popup off the screen and empties it.
    void dismiss();

    /// Takes the popup down by itself after this time in milliseconds; 0 or less means never.
    void setTimeout(int milliseconds);

    // Listeners. One that is added twice is told twice

    void addItemStateListener(ItemStateListener* listener);

    /// Without effect: a listener stays until it dies.
    void removeItemStateListener(ItemStateListener* listener);
    void addCommandListener(CommandListener* listener);

    /// Takes the first match out, and tells the display even if there is none.
    void removeCommandListener(CommandListener* listener);

    /// A command like those by which other popups tell that they have gone. This popup posts the one of PopupConfirm.
    static MenuCommand* HIDDEN_COMMAND();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;
    class ListenerLeft;

    void create(TextField* field, bool flag);
    void destroy();

    std::unique_ptr<PopupTextFieldPrivateIfc> mPrivate;
};

}
