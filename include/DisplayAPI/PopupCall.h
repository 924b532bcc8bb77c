#pragma once

#include <DisplayAPI/Dialog.h>
#include <DisplayAPI/ForwardedCallType.h>

#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class CallPartyIdentifier;
class CommandListener;
class Image;
class MenuCommand;
class PopupCallPrivateIfc;

/// A call that is not connected yet, over the current screen: its state, one or two parties, and what the user can do
/// about it.
///
/// The choices are commands, in the order in which they were added. Choosing one tells the listeners and leaves the
/// popup up; the application dismisses it. Left posts the popup's own back command, of type 1.
///
/// Threads: any. Each call returns after it has run on the GUI thread; listeners come and go at once.
/// Ownership: commands, listeners and the picture stay the application's; translations handed in become the popup's;
/// parties are copied.
/// Errors: a null or deleted command is ignored, and so is a null picture.
/// Screen text: an object "PopupCall" with the state, the caption, and the current choice or the second party.
class DISPLAYAPI_EXPORT PopupCall : public Dialog {
public:
    /// Where the call is. Another number is kept, and shows nothing.
    enum CallState : int {
        RINGING = 0,
        CONNECTING = 1,
        BUSY = 2,
        UNOBTAINABLE = 3,
        INCOMING = 4,
        GROUP_CALL = 5,
        DSS = 6, ///< A call from a station with a direct line.
        HOLD_TIMEOUT = 7,
        RINGING_KEEP_LINE2 = 8, ///< Ringing, and the second line stays.
        RECALL = 9,
        CALL_BACK = 10,
        RINGING_BLF = 11,   ///< Ringing at a line whose lamp this telephone has.
        RINGING_GROUP = 12, ///< Ringing at a member of a group.
    };

    /// Chooses among the icons of a state. Another number counts as normal.
    enum CallPriority : int {
        NORMAL = 0,
        URGENT = 1,
        DIRECT = 2,
    };

    /// Makes an empty popup of a call that is connecting.
    PopupCall();
    ~PopupCall() override;

    // Parties

    /// Shows who calls or is called, and a second party that the call was meant for, or null. A party's name and
    /// number stand together where both are known. The auxiliary text, or its translation, stands before the first.
    void setPopupCallDetails(CallPartyIdentifier& party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& auxText, TranslationInfo* auxInfo);

    // Texts. Those of line 2 have an effect only in the states INCOMING, GROUP_CALL, RINGING_BLF and RINGING_GROUP

    /// What stands before everything else on the first line.
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);

    /// The first line. A party is shown by its name, else its number, else as "unknown caller" in the user's language.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }
    void setLine1Text(const CallPartyIdentifier& party);

    void setLine2PrefixText(const std::string& text);
    void setLine2PrefixText(TranslationInfo* text);

    /// The second line. In the state INCOMING it also goes before the text of the first line, at each call.
    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);
    void setLine2Text(const CallPartyIdentifier& party);

    /// What stands before the text of the first line, behind its prefix.
    void setAuxText(const std::string& text);

    // State

    /// Sets state and icons. Most states empty the second line; behind INCOMING it becomes a row of its own, without
    /// a command, when the next choice is added.
    void setState(CallState state, CallPriority priority);

    /// A picture of the caller. It is not shown, but an incoming call with one has no state in the screen text.
    void setPictureClip(Image* picture);

    // Choices

    /// Adds a choice at the end.
    void addCommand(MenuCommand* command);

    /// Clears the choices and adds these.
    void setCommands(const std::vector<MenuCommand*>& commands);

    /// The choice that is current when the popup comes up; added if it is not there yet.
    void setDefaultCommand(MenuCommand* command);
    void clearCommands();

    /// The row of the current choice; -1 without any.
    int getSelectedIndex() const;

    /// True if the user has moved in the list since the last call.
    bool selectionHasChanged() const;

    // Life on the screen. Display::setCurrent() brings the popup up

    /// Takes the popup off the screen.
    void dismiss();

    // Listeners

    /// A listener that is in already is not added again.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// A command that stands for a popup that has gone down, for applications; this popup posts none.
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

    void create();
    void destroy();
    void setDetails(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& auxText, TranslationInfo* auxInfo);

    std::unique_ptr<PopupCallPrivateIfc> mPrivate;
};

}
