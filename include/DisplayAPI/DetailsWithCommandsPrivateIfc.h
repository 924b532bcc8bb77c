#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/Icons.h>

#include <string>
#include <vector>

class TranslationInfo;
class UEvent;

namespace DisplayAPI {

class Image;
class MenuCommand;

/// The half of a details screen on the GUI thread, as its handle sees it.
///
/// Threads: GUI thread only, but for the listeners.
/// Ownership: the handle owns it. It owns its widget in any case; commands and listeners stay the application's.
/// Errors: when the widget has been deleted by a tree that held it, every operation is without effect.
class DISPLAYAPI_EXPORT DetailsWithCommandsPrivateIfc : public DisplayablePrivate {
public:
    // Commands, which may have died

    virtual void setCommands(const std::vector<MenuCommand*>& commands) = 0;
    virtual void updateCommands() = 0;
    virtual int getNumberOfCommands() = 0;

    // The details of a richer screen, and among them the header line

    virtual void setCallContext(int context) = 0;
    virtual void setCallStateText(const std::string& text) = 0;
    virtual void setCallStartTime(long seconds) = 0;
    virtual void setFeatureDialogText(const std::string& text) = 0;
    virtual void clearContacts() = 0;
    virtual void setContactImage(Image* image) = 0;
    virtual void addContactImage(Image* image) = 0;
    virtual void enableIncomingVideoCallIcon(bool enabled) = 0;
    virtual void setContactName(const std::string& name) = 0;
    virtual void addContactName(const std::string& name) = 0;
    virtual void setContactIcon(Icons::IconType icon) = 0;
    virtual void setConferenceParticipantNumber(int number) = 0;
    virtual void setBroadsoftCallLogDateFormat(const std::string& format) = 0;
    virtual void setCallDirection(int direction) = 0;
    virtual void setContactNumber(const std::string& number) = 0;
    virtual void setLineLabel(const std::string& label) = 0;
    virtual void setTopBarLabel(const std::string& label) = 0;
    virtual void setVoicemailDateText(const std::string& text) = 0;
    virtual void setVoicemailDurationText(const std::string& text) = 0;
    virtual void clearHistory() = 0;
    virtual void addHistoryItem(const std::string& text, long seconds) = 0;
    virtual void addHistoryItem(TranslationInfo* text, long seconds) = 0;
    virtual void setHistoryTimeStringFormatter(const std::string& format) = 0;
    virtual void setStatusIcons(const std::vector<Icons::IconType>& icons) = 0;
    virtual void setGroupTotal(int total) = 0;
    virtual std::string getUserEnteredText() = 0;
    virtual void clearUserEnteredText() = 0;
    virtual void setGroupPickupContactName(const std::string& name) = 0;
    virtual void setForwardingContactName(const std::string& name) = 0;
    virtual void setForwardingInfoText(const std::string& text) = 0;
    virtual void setForwardingType(int type) = 0;
    virtual void clearForwardingText() = 0;
    virtual void setBluetoothProfilesIcons(const std::vector<Icons::IconType>& icons) = 0;
    virtual void showErrorStatus(const std::string& text) = 0;
    virtual void clearErrorStatus() = 0;
    virtual void setCommandEventCount(MenuCommand* command, int count) = 0;
    virtual void setRightArrowEqualsOkForCommands(bool equals) = 0;
    virtual void setMobileUserIcon(bool shown) = 0;
    virtual void setConversationNumberTypeIcon(Icons::IconType icon) = 0;
    virtual void useHDIcon(bool use) = 0;

    /// The header line, without a notice.
    virtual void setSystemStatusText1(const std::string& text) = 0;
    virtual void setSystemStatusText2(const std::string& text) = 0;
    virtual void setGroupName(const std::string& name) = 0;
    virtual void setGroupNumber(const std::string& number) = 0;
    virtual void enableSystemStatusTextWrapping(bool enabled) = 0;
    virtual void setSystemStatusTextLeftAligned(bool leftAligned) = 0;
    virtual void setCallPriority(int priority) = 0;
    virtual void setHeldCallPriority(int priority) = 0;
    virtual void setPreemptionWarningMessage(const std::string& text) = 0;
    virtual int getSelectedIndex() = 0;
    virtual void setSelectedIndex(int index) = 0;
    virtual void setSelectedCommand(MenuCommand* command) = 0;
    virtual void setMenuTextAlignment(int alignment) = 0;
    virtual void enableCommandHighlight(bool enabled) = 0;
    virtual void setLogo(Image* logo) = 0;
    virtual void setDTMFDigitsText(const std::string& digits) = 0;
    virtual std::string getDTMFDigitsText() = 0;
    virtual void setEmergencyCallState(bool isEmergency) = 0;
    virtual void setDTMFEnableScreen(bool enabled) = 0;
    virtual void setThermometerInfo(int value, int maximum) = 0;
    virtual void setFavouritesShownOnMenu(bool shown) = 0;
    virtual void setContactName(TranslationInfo* name) = 0;
    virtual void setContactNumber(TranslationInfo* number) = 0;
    virtual MenuCommand* getSelectedCommand() = 0;
    virtual void setSystemStatusTextByPriority(const std::string& text, int priority) = 0;

    /// Takes any event of a row for its choice.
    virtual void event(UEvent* event) = 0;
};

}
