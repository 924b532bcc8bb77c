#pragma once

#include <DisplayAPI/Dialog.h>
#include <DisplayAPI/ForwardedCallType.h>

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CallPartyIdentifier;
class CommandListener;
class MenuCommand;
class PopupNotificationPrivateIfc;

/// A notice over the current screen: one to three lines and an icon, which goes away by itself.
///
/// One line leaves the first line of the screen below to be read; more cover it. When the notice has gone, by
/// dismiss(), by its time-out or by a key, the listeners get HIDDEN_COMMAND().
///
/// Threads: any. Each call returns after it has run on the GUI thread; listeners come and go at once.
/// Ownership: listeners stay the application's; translations handed in become the popup's; parties are copied.
/// Screen text: an object "PopupNotification" with an icon and a line for each of its lines.
class DISPLAYAPI_EXPORT PopupNotification : public Dialog {
public:
    /// What the notice tells; it sets the icon.
    enum InfoType : int {
        NONE = 0,
        SUCCESS = 1,
        ERROR = 2,
        INFO = 3,
        BLF = 4, ///< Something about a line whose lamp this telephone has.
        FORWARDED = 5,
        WARNING = 6,
        USER_ACTION = 7,
        USB = 8, ///< Leaves the icon as it is.
        MOBILE_USER_SAVING = 9,
        MOBILE_USER_FAILED = 10,
    };

    /// What stands in front of the second line; another number takes the icon away.
    enum IconElemType : int {
        NO_ICON = 0,
        ARROW = 1,
    };

    /// Makes an empty notice.
    PopupNotification();
    ~PopupNotification() override;

    // Texts

    /// The word before the first line, as "Update" in "Update: failed".
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);

    /// The first line. A translation also takes the widget from sight until the popup comes up again.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }

    void setLine2PrefixText(const std::string& text);
    void setLine2PrefixText(TranslationInfo* text);

    /// The second line. A literal text beside a first line splits the popup into two halves.
    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);

    /// The third line, which takes turns with the second. A change of locale does not read its translation again.
    void setLine3Text(const std::string& text);
    void setLine3Text(TranslationInfo* text);

    /// Makes the party's name, else its number, the second line; "unknown caller" in the user's language without
    /// either.
    void setPartyDetails(const CallPartyIdentifier& party);

    // Icons and kinds

    /// Gives no notice of a change.
    void setType(InfoType type);
    void setLine2Icon(IconElemType icon);

    /// Makes the notice one of a call that was forwarded: who called on the first line, whose call it was on the
    /// second.
    void setForwardNotification(CallPartyIdentifier& party, CallPartyIdentifier& second, ForwardedCallType type);

    // Life on the screen

    /// Brings the popup up. Display::setCurrent() does this too.
    void show();

    /// Takes the popup off the screen.
    void dismiss();

    /// Takes the popup down by itself after this time in milliseconds; 0 or less means that it stays.
    void setTimeout(int milliseconds);

    /// Whether any key takes the notice down; false at first.
    void setDismissible(bool dismissible);

    // Listeners

    /// A listener that is in already is not added again.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// What the listeners get when the popup has gone.
    static MenuCommand* HIDDEN_COMMAND();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create();
    void destroy();
    void forward(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type);

    std::unique_ptr<PopupNotificationPrivateIfc> mPrivate;
};

}
