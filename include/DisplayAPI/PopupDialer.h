#pragma once

#include <DisplayAPI/Dialog.h>

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class ItemStateListener;
class MenuCommand;
class PopupDialerPrivateIfc;

/// The dial popup: a line in which the user types a number or a text, and a list of choices below it.
///
/// It opens over the idle screen when the user dials there, or an application shows it. The first line is the edit
/// line, or a fixed text until the user types. Every change of the edit line by a key is told to the item-state
/// listeners, with an item that stands for the dialer; what was typed is read with getLineEditText(). Choosing a row
/// tells the command listeners and leaves the popup up; the application dismisses it.
///
/// Threads: any. Each call returns after it has run on the GUI thread.
/// Ownership: commands and listeners stay the application's; translations handed in become the dialer's.
/// Errors: a null or deleted command is ignored.
/// Screen text: an object "PopupDialler" with the caption and the choices on the glass.
class DISPLAYAPI_EXPORT PopupDialer : public Dialog {
public:
    /// What the first line shows.
    enum eMode : int {
        EDIT = 0,  ///< The text being typed.
        LABEL = 1, ///< The fixed text.
    };

    /// Makes an empty dialer; flag and number have no effect.
    PopupDialer(bool flag, int number);
    ~PopupDialer() override;

    // Lines. Only the edit line gives a notice of a change

    /// The word before the first line, as "Call" in "Call: 0123". The screen text has it only as a translation.
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);

    /// The fixed text.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }

    /// What the second line shows where there is no choice, and in front of the choices of a fixed text.
    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);

    // Edit line

    /// What has been typed; empty before there is a popup.
    std::string getLineEditText() const;

    /// Puts a text into the edit line, with the cursor behind it. A change of locale writes a translation again,
    /// whatever has been typed since.
    void setLineEditText(const std::string& text);
    void setLineEditText(TranslationInfo* text);

    /// What the first line shows. Another number is told to the log and changes nothing.
    void setMode(eMode mode);

    /// The same as setMode(EDIT).
    void setEditMode();

    /// While set, digits, star and hash are not for this popup: the idle screen behind it gets them, if there is one.
    void setIgnoreKeypadEvents(bool ignore);

    // Choices

    /// Adds a choice at the end. While a number is typed, a row that deletes its last digit stands below them all.
    void addCommand(MenuCommand* command);
    void removeCommand(MenuCommand* command);

    /// Makes a choice current; added if it is not there yet.
    void setDefaultCommand(MenuCommand* command);
    void clearCommands();

    /// The row of the current choice, -1 without one; 0 before there is a popup.
    int getSelectedIndex() const;

    /// True if the user has moved in the list since the last call.
    bool selectionHasChanged() const;

    // Life on the screen

    /// Brings the popup up. Display::setCurrent() does this too.
    void show();

    /// Takes the popup off the screen.
    void dismiss();

    // Listeners. One that is added twice is told once

    /// Tells of each change of the edit line by a key.
    void addItemStateListener(ItemStateListener* listener);
    void removeItemStateListener(ItemStateListener* listener);

    /// Tells of choices, BackCommand() and EditFieldShownCommand().
    void addCommandListener(CommandListener* listener);

    // Told to the command listeners. They last as long as the process and are told apart by their addresses

    /// The user went left on an empty edit line.
    static Command* BackCommand();

    /// A key has put the edit line in the place of the fixed text.
    static Command* EditFieldShownCommand();

    // Without effect on this telephone

    void setAltEditPrefixText(const std::string& text);

    /// Deletes the translation.
    void setAltEditPrefixText(TranslationInfo* text);
    void setNoScroll();
    void setStimulusText(const std::string& text);

    /// The translation stays the caller's.
    void setStimulusText(TranslationInfo* text);
    void clearStimulusText();
    void showStimulusTextInHeader(bool shown);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;

    /// A PopupDialerPrivateIfc, or null until it has been made.
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(bool flag, int number);
    void destroy();

    std::unique_ptr<PopupDialerPrivateIfc> mPrivate;
};

}
