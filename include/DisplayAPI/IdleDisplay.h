#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/ListenerList.h>
#include <DisplayAPI/Living.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class CallPartyIdentifier;
class Command;
class CommandListener;
class HeldDialer;
class IdleDisplayPrivateIfc;
class MenuCommand;
class PopupDialer;

/// The screen of the telephone at rest: whose telephone it is, and what its user should know.
///
/// It shows missed calls, messages and system messages in turn, to whom calls are forwarded, the own number and the
/// logo. OK or Right slides a menu with the application's commands in; choosing a row tells the listeners. A dial key
/// goes to the dialer, which then lies over this screen until it goes down.
///
/// Threads: any. Calls that set something return at once and take effect in their order; the others return after they
/// have run on the GUI thread.
/// Ownership: commands, listeners, parties and dialers stay the application's; translations become the screen's. The
/// dialer that getDialer() has made is the screen's.
/// Errors: a null or deleted command is ignored.
/// Screen text: an object "IdleDisplay" with the logo, the own number and a subitem for each note. It has none without
/// any text, and while the dialer lies over it.
class DISPLAYAPI_EXPORT IdleDisplay : public Displayable {
public:
    /// The text is handed to the toolkit's widget, which keeps it.
    explicit IdleDisplay(const std::string& text);
    ~IdleDisplay() override;

    // Notes. A new value gives a notice, the same value none

    void setMessages(int count);
    void setMissedCalls(int count);

    /// Adds a line to those that take turns; without a notice.
    void addSystemMessage(const std::string& text);

    /// The same; null is ignored.
    void addSystemMessage(TranslationInfo* text);
    void clearSystemMessages();

    // Forwarding. A new address gives a notice; an empty one is none

    void setForwardingAddress(const std::string& address);
    void setForwardingAddress(TranslationInfo* address);

    /// The translation, a blank, and the party's ready-made text; on an RX40 the blank comes with a change of locale.
    /// Both may be null.
    void setForwardingAddress(TranslationInfo* info, CallPartyIdentifier* party);
    void clearForwardingAddress();
    void setForwardingIconVisible(bool visible);

    /// The address of the forwarding that the server does.
    void setServerBasedForwardingAddress(const std::string& address);
    void setServerBasedForwardingAddress(TranslationInfo* address);
    void clearServerBasedForwardingAddress();

    // Whose telephone it is. Only the logo and its text give a notice

    void setCurrentPhoneNumber(const std::string& number);
    void setDisplayIdUnicode(const std::string& id);

    /// Shows the display id in the place of the own number.
    void setUseDisplayId(bool use);

    /// The number has no effect.
    void displayMobileUserIcon(bool shown, int number);

    /// The name of a picture, which this telephone keeps and does not show.
    void changeLogo(const std::string& logo);

    /// The logo in letters.
    void setBrandingText(const std::string& text);

    // Menu

    /// Adds a row with the command's text at the end.
    void addCommand(Command* command);

    /// Takes all rows away and adds these.
    void setCommands(const std::vector<MenuCommand*>& commands);
    void clearCommands();
    int getCommandsSize() const { return mCommandCount; }

    /// Adds the command if it is not there; the menu always opens on its first row.
    void setDefaultMenuCommand(MenuCommand* command);

    /// True while the menu is slid in.
    bool isCMActiveOnIdleScreen() const;

    // Listeners

    /// Adds a listener; one that is added twice is told twice.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Tells the listeners of the command of a row, as if the user had chosen it. GUI thread; nothing is told for a
    /// row that is not there or whose command has died.
    virtual void fireMenuCommand(int index);

    /// Tells them of BACK_COMMAND().
    void fireBackCommand();

    /// It lasts as long as the process and is told apart by its address.
    static Command* BACK_COMMAND();

    // Dialer

    /// Whether dial keys go to the dialer, as at first. The dialer switches it on when it hands a key back.
    void showDiallerOnInitialKeyEvent(bool show);

    /// The dialer to use from now on; null for none until somebody asks for one.
    void addDialer(PopupDialer* dialer);

    /// The dialer; one is made if there is none. Null off the GUI thread once the loop has ended.
    PopupDialer* getDialer();

    // Life on the screen

    /// Hides the screen's widget until the screen is shown again.
    void hide();

    /// Reads the rows of the menu again, and takes those away whose commands have died. GUI thread.
    void localeChanged(std::string locale);

    // Without effect on this telephone

    void setSystemWindowSize(int lines);
    void setSystemWindowText(int line, const std::string& text);

    /// The translation stays the caller's.
    void setServerBasedForwardingAddress(TranslationInfo* info, CallPartyIdentifier* party);
    void setUsedWithTab(bool used, Displayable* tab);
    void setAsListenerForUnhandledKeypadEvents();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(const std::string& text);
    void destroy();
    void cleanUp();
    void addCommandImpl(Command* command);
    void clearCommandsImpl();
    void showMissingRows();
    void tell(Command* command);
    void bindDialer(PopupDialer* dialer);
    void deleteDiallerIfNecessary();

    std::unique_ptr<IdleDisplayPrivateIfc> mPrivate;
    ListenerList<CommandListener> mCommandListeners;
    std::vector<Living<Command>> mCommands; // entry i is that of row i
    std::atomic<int> mCommandCount = 0;
    std::unique_ptr<HeldDialer> mDialer;
    bool mDialerOwned = false;
};

}
