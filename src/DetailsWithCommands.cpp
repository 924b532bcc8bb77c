#include <DisplayAPI/DetailsWithCommands.h>
#include <DisplayAPI/DetailsWithCommandsPrivateIfc.h>

#include "DetailsWithCommandsPrivate.h"
#include "Road.h"

#include <Log.h>

namespace DisplayAPI {

enum class DetailsWithCommands::Request : int {
    Create = 0,
    Destroy = 1,
    SetCommands = 2,
    GetNumberOfCommands = 3,
    AddCommandListener = 4,
    RemoveCommandListener = 5,
    ClearCommandListeners = 6,
    SetSystemStatusText1 = 7,
    Dismiss = 9,
};

namespace {

constexpr const char* LogModule = "DisplayAPI";
constexpr int LogLevel = 5;

}

DetailsWithCommands::DetailsWithCommands()
{
    create();
}

DetailsWithCommands::~DetailsWithCommands()
{
    destroy();
}

void DetailsWithCommands::create()
{
    if (!Road::wait(this, Request::Create))
        return;
    mName = "DetailsWithCommands";
    mPrivate = std::make_unique<DetailsWithCommandsPrivate>(this);
}

void DetailsWithCommands::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* DetailsWithCommands::getPrivateImpl()
{
    return mPrivate.get();
}

// Commands

void DetailsWithCommands::setCommands(const std::vector<MenuCommand*>& commands)
{
    showCommands(new std::vector<MenuCommand*>(commands));
}

void DetailsWithCommands::showCommands(std::vector<MenuCommand*>* commands)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetCommands, copied(commands))) {
        const std::unique_ptr<std::vector<MenuCommand*>> copy(commands);
        if (copy)
            half->setCommands(*copy);
    }
}

int DetailsWithCommands::getNumberOfCommands() const
{
    int count = 0;
    if (auto* half = Road::wait(this, mPrivate, Request::GetNumberOfCommands, result(count)))
        count = half->getNumberOfCommands();
    return count;
}

// Header

void DetailsWithCommands::setSystemStatusText1(const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSystemStatusText1, text))
        half->setSystemStatusText1(text);
}

// Life on the screen

void DetailsWithCommands::dismiss()
{
    if (auto* half = Road::post(this, mPrivate, Request::Dismiss))
        half->widgetDismissed(half);
}

// Listeners

void DetailsWithCommands::addCommandListener(CommandListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommandListener, listener))
        half->addCommandListener(listener);
}

void DetailsWithCommands::removeCommandListener(CommandListener* listener)
{
    if (auto* half = Road::wait(this, mPrivate, Request::RemoveCommandListener, listener))
        half->removeCommandListener(listener);
}

void DetailsWithCommands::clearCommandListeners()
{
    if (auto* half = Road::post(this, mPrivate, Request::ClearCommandListeners))
        half->clearCommandListeners();
}

// Fixed answers

std::string DetailsWithCommands::getUserEnteredText() const
{
    return {};
}

std::string DetailsWithCommands::getDTMFDigitsText() const
{
    return {};
}

MenuCommand* DetailsWithCommands::getSelectedCommand() const
{
    return nullptr;
}

int DetailsWithCommands::getSelectedIndex() const
{
    return 0;
}

// Road across threads

void DetailsWithCommands::processGuiRequest(GuiRequestEvent& event)
{
    auto* listener = static_cast<CommandListener*>(event.ptrParam1);
    if (loggingOnAppUni(LogModule, LogLevel)) {
        logAppUni(LogModule, "src/DetailsWithCommands", LogLevel, __LINE__, "DetailsWithCommands::processGuiRequest %d",
            event.getType());
    }

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(); break;
    case Request::Destroy: destroy(); break;
    case Request::SetCommands: showCommands(static_cast<std::vector<MenuCommand*>*>(event.ptrParam1)); break;
    case Request::GetNumberOfCommands: answer(event.intResult, getNumberOfCommands()); break;
    case Request::AddCommandListener: addCommandListener(listener); break;
    case Request::RemoveCommandListener: removeCommandListener(listener); break;
    case Request::ClearCommandListeners: clearCommandListeners(); break;
    case Request::SetSystemStatusText1: setSystemStatusText1(event.stringParam1); break;
    case Request::Dismiss: dismiss(); break;
    }
    signalComplete(event);
}

// Without effect on this telephone: the details of a richer screen

void DetailsWithCommands::updateCommands() { }
void DetailsWithCommands::setCallContext(int) { }
void DetailsWithCommands::setCallStateText(const std::string&) { }
void DetailsWithCommands::setCallStartTime(long) { }
void DetailsWithCommands::setConferenceParticipantNumber(int) { }
void DetailsWithCommands::setBroadsoftCallLogDateFormat(const std::string&) { }
void DetailsWithCommands::setCallDirection(int) { }
void DetailsWithCommands::setFeatureDialogText(const std::string&) { }
void DetailsWithCommands::clearContacts() { }
void DetailsWithCommands::setContactIcon(Icons::IconType) { }
void DetailsWithCommands::setContactImage(Image*) { }
void DetailsWithCommands::addContactImage(Image*) { }
void DetailsWithCommands::setContactName(const std::string&) { }
void DetailsWithCommands::setContactName(TranslationInfo*) { }
void DetailsWithCommands::addContactName(const std::string&) { }
void DetailsWithCommands::setContactNumber(const std::string&) { }
void DetailsWithCommands::setContactNumber(TranslationInfo*) { }
void DetailsWithCommands::setLineLabel(const std::string&) { }
void DetailsWithCommands::setTopBarLabel(const std::string&) { }
void DetailsWithCommands::setVoicemailDateText(const std::string&) { }
void DetailsWithCommands::setVoicemailDurationText(const std::string&) { }
void DetailsWithCommands::setGroupName(const std::string&) { }
void DetailsWithCommands::setGroupNumber(const std::string&) { }
void DetailsWithCommands::setCallPriority(int) { }
void DetailsWithCommands::setHeldCallPriority(int) { }
void DetailsWithCommands::clearHistory() { }
void DetailsWithCommands::addHistoryItem(const std::string&, long) { }
void DetailsWithCommands::addHistoryItem(TranslationInfo*, long) { }
void DetailsWithCommands::setHistoryTimeStringFormatter(const std::string&) { }
void DetailsWithCommands::setStatusIcons(const std::vector<Icons::IconType>&) { }
void DetailsWithCommands::setGroupTotal(int) { }
void DetailsWithCommands::clearUserEnteredText() { }
void DetailsWithCommands::setForwardingContactName(const std::string&) { }
void DetailsWithCommands::setGroupPickupContactName(const std::string&) { }
void DetailsWithCommands::setDSSCallingForName(const std::string&) { }
void DetailsWithCommands::setForwardingInfoText(const std::string&) { }
void DetailsWithCommands::setForwardingType(int) { }
void DetailsWithCommands::clearForwardingText() { }
void DetailsWithCommands::clearDSSText() { }
void DetailsWithCommands::setBluetoothProfilesIcons(const std::vector<Icons::IconType>&) { }
void DetailsWithCommands::showErrorStatus(const std::string&) { }
void DetailsWithCommands::clearErrorStatus() { }
void DetailsWithCommands::setCommandEventCount(MenuCommand*, int) { }
void DetailsWithCommands::setSelectedCommand(MenuCommand*) { }
void DetailsWithCommands::setRightArrowEqualsOkForCommands(bool) { }
void DetailsWithCommands::setMobileUserIcon(bool) { }
void DetailsWithCommands::setConversationNumberTypeIcon(Icons::IconType) { }
void DetailsWithCommands::useHDIcon(bool) { }
void DetailsWithCommands::setSystemStatusText2(const std::string&) { }
void DetailsWithCommands::enableSystemStatusTextWrapping(bool) { }
void DetailsWithCommands::setSystemStatusTextLeftAligned(bool) { }
void DetailsWithCommands::enableIncomingVideoCallIcon(bool) { }
void DetailsWithCommands::setPreemptionWarningMessage(const std::string&) { }
void DetailsWithCommands::setSelectedIndex(int) { }
void DetailsWithCommands::setMenuTextAlignment(int) { }
void DetailsWithCommands::enableCommandHighlight(bool) { }
void DetailsWithCommands::setLogo(Image*) { }
void DetailsWithCommands::setDTMFDigitsText(const std::string&) { }
void DetailsWithCommands::setEmergencyCallState(bool) { }
void DetailsWithCommands::setVideoCallScreen(bool) { }
void DetailsWithCommands::setDTMFEnableScreen(bool) { }
void DetailsWithCommands::setThermometerInfo(int, int) { }
void DetailsWithCommands::setFavouritesShownOnMenu(bool) { }
void DetailsWithCommands::setSystemStatusTextByPriority(const std::string&, int) { }

}
