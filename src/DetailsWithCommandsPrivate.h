#pragma once

#include <DisplayAPI/DetailsWithCommandsPrivateIfc.h>
#include <DisplayAPI/Living.h>

#include <UAgent.h>

#include <map>
#include <string>
#include <vector>

class DetailsWithCommandListMEG;
class VantoListBoxItemMEG;

namespace DisplayAPI {

class Command;
class Displayable;

/// The details screen on the GUI thread: drives one toolkit widget, and finds the command of a row.
///
/// It deletes its widget in any case. A toolkit tree that holds the widget may have deleted it before; then everything
/// here is without effect.
class DetailsWithCommandsPrivate final : public DetailsWithCommandsPrivateIfc, public UObject {
public:
    explicit DetailsWithCommandsPrivate(Displayable* parent);
    ~DetailsWithCommandsPrivate() override;

    // Commands

    void setCommands(const std::vector<MenuCommand*>& commands) override;
    int getNumberOfCommands() override;

    // Header

    void setSystemStatusText1(const std::string& text) override;

    // Life on the screen

    UWidget* getWidget() override;
    void releaseOwnership() override { }
    void gainOwnership() override { }
    void show() override;
    void lostFocus() override;
    void event(UEvent* event) override;
    void itemSelected(VantoListBoxItemMEG* item);

    // Screen text

    std::string serialise() override;

    /// Empty.
    std::string serialise(const std::vector<Rect>& rects) override;

    // Without effect on this telephone

    void updateCommands() override { }
    void setCallContext(int) override { }
    void setCallStateText(const std::string&) override { }
    void setCallStartTime(long) override { }
    void setFeatureDialogText(const std::string&) override { }
    void clearContacts() override { }
    void setContactImage(Image*) override { }
    void addContactImage(Image*) override { }
    void enableIncomingVideoCallIcon(bool) override { }
    void setContactName(const std::string&) override { }
    void addContactName(const std::string&) override { }
    void setContactIcon(Icons::IconType) override { }
    void setConferenceParticipantNumber(int) override { }
    void setBroadsoftCallLogDateFormat(const std::string&) override { }
    void setCallDirection(int) override { }
    void setContactNumber(const std::string&) override { }
    void setLineLabel(const std::string&) override { }
    void setTopBarLabel(const std::string&) override { }
    void setVoicemailDateText(const std::string&) override { }
    void setVoicemailDurationText(const std::string&) override { }
    void clearHistory() override { }
    void addHistoryItem(const std::string&, long) override { }
    void addHistoryItem(TranslationInfo*, long) override { }
    void setHistoryTimeStringFormatter(const std::string&) override { }
    void setStatusIcons(const std::vector<Icons::IconType>&) override { }
    void setGroupTotal(int) override { }
    std::string getUserEnteredText() override { return {}; }
    void clearUserEnteredText() override { }
    void setGroupPickupContactName(const std::string&) override { }
    void setForwardingContactName(const std::string&) override { }
    void setForwardingInfoText(const std::string&) override { }
    void setForwardingType(int) override { }
    void clearForwardingText() override { }
    void setBluetoothProfilesIcons(const std::vector<Icons::IconType>&) override { }
    void showErrorStatus(const std::string&) override { }
    void clearErrorStatus() override { }
    void setCommandEventCount(MenuCommand*, int) override { }
    void setRightArrowEqualsOkForCommands(bool) override { }
    void setMobileUserIcon(bool) override { }
    void setConversationNumberTypeIcon(Icons::IconType) override { }
    void useHDIcon(bool) override { }
    void setSystemStatusText2(const std::string&) override { }
    void setGroupName(const std::string&) override { }
    void setGroupNumber(const std::string&) override { }
    void enableSystemStatusTextWrapping(bool) override { }
    void setSystemStatusTextLeftAligned(bool) override { }
    void setCallPriority(int) override { }
    void setHeldCallPriority(int) override { }
    void setPreemptionWarningMessage(const std::string&) override { }
    int getSelectedIndex() override { return 0; }
    void setSelectedIndex(int) override { }
    void setSelectedCommand(MenuCommand*) override { }
    void setMenuTextAlignment(int) override { }
    void enableCommandHighlight(bool) override { }
    void setLogo(Image*) override { }
    void setDTMFDigitsText(const std::string&) override { }
    std::string getDTMFDigitsText() override { return {}; }
    void setEmergencyCallState(bool) override { }
    void setDTMFEnableScreen(bool) override { }
    void setThermometerInfo(int, int) override { }
    void setFavouritesShownOnMenu(bool) override { }
    void setContactName(TranslationInfo*) override { }
    void setContactNumber(TranslationInfo*) override { }
    MenuCommand* getSelectedCommand() override { return nullptr; }
    void setSystemStatusTextByPriority(const std::string&, int) override { }

private:
    void addCommand(MenuCommand* command);
    Command* findMenuCommand(VantoListBoxItemMEG* item) const;

    Displayable* mParent;
    UPointer<DetailsWithCommandListMEG> mWidget;
    std::map<VantoListBoxItemMEG*, Living<Command>> mCommands; // by their rows
};

}
