#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/Icons.h>

#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class DetailsWithCommandsPrivateIfc;
class Image;
class MenuCommand;

/// The details of a contact or a call: a header line above a list of commands.
///
/// Choosing a command tells the listeners and leaves the screen as it is.
///
/// Threads: any. setCommands(), clearCommandListeners(), setSystemStatusText1() and dismiss() return at once, the other
/// calls after they have run on the GUI thread; calls of one thread run in their order.
/// Ownership: commands and listeners stay the application's, and may die at any time. What the operations without
/// effect are handed stays the application's too. Errors: a null or deleted command is left out; a row whose command
/// has died tells nobody. Screens that were made after the event loop had ended ignore every call. Screen text: none in
/// serialiseByRect(); an object "DetailsWithCommands" with the header and the current command in serialise().
class DISPLAYAPI_EXPORT DetailsWithCommands : public Displayable {
public:
    DetailsWithCommands();

    /// Takes the screen off the display. Deliveries that have not begun are recalled.
    ~DetailsWithCommands() override;

    // Commands

    /// Shows these commands in place of the ones before, each with its text of now. One of icon type 39, or with its
    /// phone book activated, has the arrow; a read-only one can't be chosen.
    void setCommands(const std::vector<MenuCommand*>& commands);

    /// How many rows there are; 0 where there is no answer, since the event loop has ended.
    int getNumberOfCommands() const;

    // Header

    /// The header line; an empty one gives its line to the commands. It gives no notice.
    void setSystemStatusText1(const std::string& text);

    // Life on the screen

    /// Takes the screen off the display, also from below a popup, and tells of it once. Nothing lies below it, since it
    /// replaces what was there.
    void dismiss();

    // Listeners

    /// Adds a listener; one that is in already is not added again.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);
    void clearCommandListeners();

    // The details of a richer screen: without effect on this telephone

    void updateCommands();
    void setCallContext(int context);
    void setCallStateText(const std::string& text);
    void setCallStartTime(long seconds);
    void setConferenceParticipantNumber(int number);
    void setBroadsoftCallLogDateFormat(const std::string& format);
    void setCallDirection(int direction);
    void setFeatureDialogText(const std::string& text);
    void clearContacts();
    void setContactIcon(Icons::IconType icon);
    void setContactImage(Image* image);
    void addContactImage(Image* image);
    void setContactName(const std::string& name);
    void setContactName(TranslationInfo* name);
    void addContactName(const std::string& name);
    void setContactNumber(const std::string& number);
    void setContactNumber(TranslationInfo* number);
    void setLineLabel(const std::string& label);
    void setTopBarLabel(const std::string& label);
    void setVoicemailDateText(const std::string& text);
    void setVoicemailDurationText(const std::string& text);
    void setGroupName(const std::string& name);
    void setGroupNumber(const std::string& number);
    void setCallPriority(int priority);
    void setHeldCallPriority(int priority);
    void clearHistory();
    void addHistoryItem(const std::string& text, long seconds);
    void addHistoryItem(TranslationInfo* text, long seconds);
    void setHistoryTimeStringFormatter(const std::string& format);
    void setStatusIcons(const std::vector<Icons::IconType>& icons);
    void setGroupTotal(int total);
    void clearUserEnteredText();
    void setForwardingContactName(const std::string& name);
    void setGroupPickupContactName(const std::string& name);
    void setDSSCallingForName(const std::string& name);
    void setForwardingInfoText(const std::string& text);
    void setForwardingType(int type);
    void clearForwardingText();
    void clearDSSText();
    void setBluetoothProfilesIcons(const std::vector<Icons::IconType>& icons);
    void showErrorStatus(const std::string& text);
    void clearErrorStatus();
    void setCommandEventCount(MenuCommand* command, int count);
    void setSelectedCommand(MenuCommand* command);
    void setRightArrowEqualsOkForCommands(bool equals);
    void setMobileUserIcon(bool shown);
    void setConversationNumberTypeIcon(Icons::IconType icon);
    void useHDIcon(bool use);
    void setSystemStatusText2(const std::string& text);
    void enableSystemStatusTextWrapping(bool enabled);
    void setSystemStatusTextLeftAligned(bool leftAligned);
    void enableIncomingVideoCallIcon(bool enabled);
    void setPreemptionWarningMessage(const std::string& text);
    void setSelectedIndex(int index);
    void setMenuTextAlignment(int alignment);
    void enableCommandHighlight(bool enabled);
    void setLogo(Image* logo);
    void setDTMFDigitsText(const std::string& digits);
    void setEmergencyCallState(bool isEmergency);
    void setVideoCallScreen(bool isVideo);
    void setDTMFEnableScreen(bool enabled);
    void setThermometerInfo(int value, int maximum);
    void setFavouritesShownOnMenu(bool shown);
    void setSystemStatusTextByPriority(const std::string& text, int priority);

    // Fixed answers: empty, empty, null and 0

    std::string getUserEnteredText() const;
    std::string getDTMFDigitsText() const;
    MenuCommand* getSelectedCommand() const;
    int getSelectedIndex() const;

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create();
    void destroy();
    void showCommands(std::vector<MenuCommand*>* commands);

    std::unique_ptr<DetailsWithCommandsPrivateIfc> mPrivate;
};

}
