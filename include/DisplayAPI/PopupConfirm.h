#pragma once

#include <DisplayAPI/Dialog.h>

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CallPartyIdentifier;
class Command;
class CommandListener;
class MenuCommand;
class PopupConfirmPrivateIfc;

/// A question over the current screen: one or two lines of text, an icon and a short list of choices.
///
/// The choices are commands, in the order in which they were added. Choosing one tells the listeners and leaves
/// the popup up; the application dismisses it. Left posts the popup's own back command, of type 1. When the popup
/// has gone down, by dismiss() or by its time-out, the listeners get HIDDEN_COMMAND().
///
/// A popup that goes down, by dismiss(), by its time-out or under another screen, is told of once, when the screen
/// below or the other one is up.
///
/// Threads: any. Each call returns after it has run on the GUI thread.
/// Ownership: commands and listeners stay the application's, and may die at any time; translations handed in become the
/// popup's.
/// Errors: a null or deleted command is ignored, also where a new one has got its address. A popup that was made after
/// the event loop had ended ignores every call, and deletes the translations it is handed.
/// Screen text: an object "PopupDialog" with an icon, the caption and the current choice.
class DISPLAYAPI_EXPORT PopupConfirm : public Dialog {
public:
    /// What the popup is about; it sets the icon.
    enum PopupState : int {
        Information = 0,
        Question = 1,
        Recall = 5,
        Failure = 6,
        MobileUserChanges = 7,
    };

    /// Makes an empty popup; the flag has no effect.
    explicit PopupConfirm(bool flag);

    /// Takes the popup off the screen, which tells no listener. Deliveries that have not begun are recalled.
    ~PopupConfirm() override;

    // Texts

    /// The word before the question, as "Delete" in "Delete: entry?".
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);

    /// The question.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }

    void setLine2PrefixText(const std::string& text);
    void setLine2PrefixText(TranslationInfo* text);

    /// Appends a blank and the text to the question; a second call appends again. After a change of locale a
    /// translation stands in the second line instead.
    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);

    /// Makes the party's name, else its number, the question; "unknown caller" in the user's language without
    /// either. The number has no effect.
    void setPartyDetails(const CallPartyIdentifier& party, int number);

    /// A number outside the enumeration takes the icon's word away and leaves the icon.
    void setState(PopupState state);

    // Choices

    /// Adds a choice at the end. Only a MenuCommand gets a row. Its text is read now, and again at a change of locale.
    void addCommand(Command* command);

    /// Without effect.
    void addCommand(Command* command, bool flag);

    /// The choice that is current when the popup comes up; added if it is not there yet. What gets no row makes the
    /// last choice current.
    void setDefaultCommand(Command* command);

    /// Forgets a command. Its row stays, and still tells the listeners when it is chosen.
    void removeCommand(Command* command);

    /// Takes all rows away.
    void clearCommands();

    /// The row of the current choice, from 0; -1 without rows, and 0 where there is no answer, since the event loop has
    /// ended.
    int getSelectedIndex() const;

    /// True if the user has moved in the list since the last call; false where there is no answer.
    bool selectionHasChanged() const;

    // Life on the screen

    /// Brings the popup up with its default choice. Display::setCurrent() does this too.
    void show();

    /// Takes the popup off the screen and tells the listeners; without effect on one that is not up.
    void dismiss();

    /// Takes the popup down by itself after this time in milliseconds; 0 or less means never. Moving in the list
    /// starts the time again.
    void setTimeout(int milliseconds);

    // Listeners

    /// Adds a listener; one that is added twice is told twice.
    void addCommandListener(CommandListener* listener);

    /// Takes the first match out.
    void removeCommandListener(CommandListener* listener);

    /// What the listeners get when the popup has gone down.
    static MenuCommand* HIDDEN_COMMAND();

    // Without effect on this telephone

    void showStimulusTextInHeader(bool shown);
    void setStimulusText(const std::string& text);
    void setStimulusText(TranslationInfo* text);
    void clearStimulusText();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(bool flag);
    void destroy();

    std::unique_ptr<PopupConfirmPrivateIfc> mPrivate;
};

}
