#pragma once

#include <DisplayAPI/Displayable.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class ContextMenuPrivateIfc;
class MenuCommand;

/// A menu that slides in over a screen, with a row for each command.
///
/// Choosing a row tells the listeners its command and leaves the menu in. Left posts the menu's own back command, of
/// type 1, Right its right command, of type 9, and when the menu goes, by dismiss() or by itself after a time without
/// use, its dismiss command, of type 23. Each movement starts that time anew.
///
/// Threads: any. The calls that answer or that change the rows return after they have run on the GUI thread, the
/// others at once.
/// Ownership: commands and listeners stay the application's.
/// Errors: a null or deleted command is ignored.
/// Screen text: an object "ContextMenu20Line1" or "ContextMenu20Line2", by the line on which the menu begins, with the
/// current row; without a name while the menu is out.
class DISPLAYAPI_EXPORT ContextMenu : public Displayable {
public:
    /// Makes an empty menu. With the flag it ends in a row that leads back, as soon as there are commands and a text
    /// for it, see setBackTranslator().
    explicit ContextMenu(bool hasBackRow);

    /// A menu that is shown is dismissed first, with the notices of that.
    ~ContextMenu() override;

    // Rows

    /// Adds a row for a command of type 7; another type gets none. `other` has no effect, the flag goes to the toolkit.
    ///
    /// With a status icon the row is marked as where the voice of the call is, by the name "HeadSet", "Speaker" or
    /// "Mute". Off the GUI thread the marks of the handle decide instead of these two arguments: see
    /// setHeadSetStatus().
    void addCommand(Command* command, Command* other, bool flag, bool withStatusIcon, const std::string& statusName);

    /// Adds a row with the icon that the command's icon type stands for; one of an icon type that menus don't know
    /// gets none. The last two arguments have no effect.
    void addCommandWithIcon(MenuCommand* command, Command* other, bool flag);

    /// Replaces the rows.
    void setCommands(const std::vector<MenuCommand*>& commands);
    void clearCommands();

    /// The row that is current when the menu slides in; added if it is not there yet.
    void setDefaultCommand(MenuCommand* command);

    /// Changes a command's label and the text of its row. Without such a row nothing happens.
    void setCommandText(Command* command, const std::string& text, bool flag);

    /// The command of the current row; null without one, or when it has been deleted.
    Command* getSelectedCommand();

    /// The index of the current row, -1 without one.
    int getSelectedIndex();

    /// True if the user has moved in the list since the last call.
    bool selectionHasChanged();

    /// Writes "Back" in the words of a translator on the row that leads back; null changes nothing. The translator
    /// must live until the call has run.
    void setBackTranslator(TranslatorIfc* translator);

    // Marks and count. They are read and written at once, on any thread

    /// Where the voice of the call is, for the rows that addCommand() adds off the GUI thread: the first that is set
    /// of headset, loudspeaker and mute marks the row.
    void setHeadSetStatus(bool on) { mHeadSetStatus = on; }
    bool getHeadSetStatus() const { return mHeadSetStatus; }
    void setLoudSpeakerStatus(bool on) { mLoudSpeakerStatus = on; }
    bool getLoudSpeakerStatus() const { return mLoudSpeakerStatus; }
    void setMuteStatus(bool on) { mMuteStatus = on; }
    bool getMuteStatus() const { return mMuteStatus; }

    /// The number of commands; rows of icon type 8 don't count. The menu writes it.
    unsigned int getCommandCount() const { return mCommandCount; }
    void setCommandCount(unsigned int count) { mCommandCount = count; }

    // Life on the screen

    /// Slides the menu in. Display::setCurrent() does this too.
    void show();

    /// Slides the menu out and takes it off the screen.
    void dismiss();

    /// Lets the menu go by itself after so many seconds without use; 0 or less means never.
    void setAutoHideTimeout(int seconds);

    /// While set, Right chooses the current row as OK does.
    void setRightArrowEqualsOK(bool equals);

    /// Puts the menu behind everything else that has come up.
    void pushBack();

    /// Stored until the menu is shown again; nothing here reads it.
    void setFPKPressedNeedsDialNumber();

    // Listeners

    /// A listener that is in already is not added again.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    // Without effect on this telephone

    void setTranslator(TranslatorIfc* translator);
    void setSysWindowSize(int lines);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(bool hasBackRow);
    void destroy();
    void addMarkedCommand(GuiRequestEvent& event);

    std::unique_ptr<ContextMenuPrivateIfc> mPrivate;
    std::atomic<unsigned int> mCommandCount = 0;
    std::atomic<bool> mHeadSetStatus = false;
    std::atomic<bool> mLoudSpeakerStatus = false;
    std::atomic<bool> mMuteStatus = false;
};

}
