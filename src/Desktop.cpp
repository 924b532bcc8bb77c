#include <DisplayAPI/Desktop.h>
#include <DisplayAPI/DesktopPrivateIfc.h>
#include <DisplayAPI/MenuCommand.h>

#include "DesktopPrivate.h"
#include "LastingCommand.h"
#include "Road.h"

#include <Log.h>

namespace DisplayAPI {

enum class Desktop::Request : int {
    Create = 0,
    Destroy = 1,
    SetLogoText = 2,
    SetExtLabelText = 3,
    DisplayKeyLockIcon = 4,
    DisplayDNDIcon = 5,
    DisplayHeadsetIcon = 6,
    DisplayRingerIcon = 7,
    DisplayMobileUserIcon = 8,
    DisplayUsbIcon = 9,
    Set12HourClockMode = 10,
    SetStatusBarMode = 11,
    SetStatusBarModePrev = 12,
    GetSBModeText = 13,
    SetSBPostTimeIcon = 14,
    SetTimeZoneOffset = 15,
    Show = 23,
    ScreensaverStart = 24,
    ScreensaverStop = 25,
    ScreensaverSetImages = 26,
    SetStatusBarDayLabels = 27,
    SetDayLabelText = 28,
    SetTime = 29,
    SetDate = 30,
    AddCommandListener = 31,
    SetExtensionNumberAndArrowState = 32,
    DisplayMaintenanceIcon = 33,
    DisplayCallbacksIcon = 34,
    DisplayWifiStrengthIcon = 35,
    DisplayStatusBarItems = 36,
    SetDesktopString = 37,
};

namespace {

constexpr const char* LogModule = "MegWidgets";
constexpr int LogLevel = 5;

}

Desktop::Desktop()
{
    const char* message = isGuiThread() ? "Desktop() gui thread" : "Desktop() non gui thread";
    if (loggingOnAppUni(LogModule, LogLevel))
        logAppUni(LogModule, "src/Desktop", LogLevel, __LINE__, "%s", message);
    create();
}

Desktop::~Desktop()
{
    destroy();
}

void Desktop::create()
{
    if (!Road::post(this, Request::Create))
        return;
    mName = "Desktop";
    mPrivate = std::make_unique<DesktopPrivate>(this);
}

void Desktop::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* Desktop::getPrivateImpl()
{
    return mPrivate.get();
}

// Icons

void Desktop::displayKeyLockIcon(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayKeyLockIcon, shown))
        half->displayKeyLockIcon(shown);
}

void Desktop::displayDNDIcon(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayDNDIcon, shown))
        half->displayDNDIcon(shown);
}

void Desktop::displayHeadsetIcon(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayHeadsetIcon, shown))
        half->displayHeadsetIcon(shown);
}

void Desktop::displayRingerIcon(RingerIconType type)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayRingerIcon, type))
        half->displayRingerIcon(type);
}

void Desktop::displayMaintenanceIcon(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayMaintenanceIcon, shown))
        half->displayMaintenanceIcon(shown);
}

void Desktop::displayMobileUserIcon(bool shown, int icon)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayMobileUserIcon, shown, icon))
        half->displayMobileUserIcon(shown, icon);
}

void Desktop::displayCallbacksIcon(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayCallbacksIcon, shown))
        half->displayCallbacksIcon(shown);
}

void Desktop::displayWifiStrengthIcon(WifiIconType type)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayWifiStrengthIcon, type))
        half->displayWifiStrengthIcon(type);
}

void Desktop::displayUsbIcon(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayUsbIcon, shown))
        half->displayUsbIcon(shown);
}

void Desktop::displayStatusBarItems(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::DisplayStatusBarItems, shown))
        half->displayStatusBarItems(shown);
}

void Desktop::setSBPostTimeIcon(int which, bool on)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSBPostTimeIcon, which, on))
        half->setSBPostTimeIcon(which, on);
}

// Clock

void Desktop::set12HourClockMode(bool is12Hour)
{
    if (auto* half = Road::post(this, mPrivate, Request::Set12HourClockMode, is12Hour))
        half->set12HourClockMode(is12Hour);
}

void Desktop::setTimeZoneOffset(int minutes)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetTimeZoneOffset, minutes))
        half->setTimeZoneOffset(minutes);
}

void Desktop::setTime(int hours, int minutes, int seconds)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetTime, hours, minutes, seconds))
        half->setTime(hours, minutes, seconds);
}

void Desktop::setDate(int day, int month, int year)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetDate, day, month, year))
        half->setDate(day, month, year);
}

void Desktop::setDayLabelText(TranslatorIfc* translator)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetDayLabelText, translator))
        half->setDayLabelText(translator);
}

void Desktop::setStatusBarDayLabels()
{
    if (auto* half = Road::post(this, mPrivate, Request::SetStatusBarDayLabels))
        half->setStatusBarDayLabels();
}

// Texts

void Desktop::setLogoText(const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetLogoText, text))
        half->setLogoText(text);
}

void Desktop::setDesktopString(const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetDesktopString, text))
        half->setDesktopString(text);
}

void Desktop::setStatusBarModePrev(std::string mode)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetStatusBarModePrev, mode))
        half->setStatusBarModePrev(mode);
}

// Life on the screen

void Desktop::show()
{
    if (auto* half = Road::post(this, mPrivate, Request::Show))
        half->show();
}

// Without effect on this telephone

void Desktop::setExtLabelText(std::string text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetExtLabelText, text))
        half->setExtLabelText(text);
}

void Desktop::setStatusBarMode(const std::string& mode, const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetStatusBarMode, mode, text))
        half->setStatusBarMode(mode, text);
}

void Desktop::addCommandListener(CommandListener* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddCommandListener, listener))
        half->addCommandListener(listener);
}

void Desktop::setExtensionNumberAndArrowState(bool shown)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetExtensionNumberAndArrowState, shown))
        half->setExtensionNumberAndArrowState(shown);
}

void Desktop::screensaverStart()
{
    if (auto* half = Road::post(this, mPrivate, Request::ScreensaverStart))
        half->screensaverStart();
}

void Desktop::screensaverStop()
{
    if (auto* half = Road::post(this, mPrivate, Request::ScreensaverStop))
        half->screensaverStop();
}

void Desktop::screensaverSetImages(std::list<std::string>* images)
{
    if (auto* half = Road::post(this, mPrivate, Request::ScreensaverSetImages, images))
        half->screensaverSetImages(images);
}

std::string Desktop::getSBModeText()
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSBModeText, result(text)))
        text = half->getSBModeText();
    return text;
}

void Desktop::screensaverSetImagesTimeout(int) { }

void Desktop::screensaverSetSlideshowFormat(int) { }

void Desktop::screensaverUsePixelSaverImages(int) { }

void Desktop::setPreviewVolume(VolumeDevice, int) { }

std::string Desktop::getFPKLabel(int)
{
    return "NOLABEL";
}

bool Desktop::getFPKEnabled(int, bool)
{
    return true;
}

int Desktop::getNumberOfFPKLabels()
{
    return 0;
}

void* Desktop::getFpkBar()
{
    return nullptr;
}

void Desktop::setFPKLabel(int, const std::string&, bool, bool) { }

void Desktop::setFPKEnabled(int, bool, bool) { }

void Desktop::setFPKHighlight(int, bool) { }

void Desktop::setShifted(bool) { }

MenuCommand* Desktop::HIDDEN_COMMAND()
{
    static MenuCommand* command = lastingHiddenCommand();
    return command;
}

// Road across threads

void Desktop::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    const bool flag = event.boolParam1;
    const int number = event.intParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(); break;
    case Request::Destroy: destroy(); break;
    case Request::SetLogoText: setLogoText(text); break;
    case Request::SetExtLabelText: setExtLabelText(text); break;
    case Request::DisplayKeyLockIcon: displayKeyLockIcon(flag); break;
    case Request::DisplayDNDIcon: displayDNDIcon(flag); break;
    case Request::DisplayHeadsetIcon: displayHeadsetIcon(flag); break;
    case Request::DisplayRingerIcon: displayRingerIcon(static_cast<RingerIconType>(number)); break;
    case Request::DisplayMobileUserIcon: displayMobileUserIcon(flag, number); break;
    case Request::DisplayUsbIcon: displayUsbIcon(flag); break;
    case Request::Set12HourClockMode: set12HourClockMode(flag); break;
    case Request::SetStatusBarMode: setStatusBarMode(text, event.stringParam2); break;
    case Request::SetStatusBarModePrev: setStatusBarModePrev(text); break;
    case Request::GetSBModeText: answer(event.stringResult, getSBModeText()); break;
    case Request::SetSBPostTimeIcon: setSBPostTimeIcon(number, flag); break;
    case Request::SetTimeZoneOffset: setTimeZoneOffset(number); break;
    case Request::Show: show(); break;
    case Request::ScreensaverStart: screensaverStart(); break;
    case Request::ScreensaverStop: screensaverStop(); break;
    case Request::ScreensaverSetImages:
        screensaverSetImages(static_cast<std::list<std::string>*>(event.ptrParam1));
        break;
    case Request::SetStatusBarDayLabels: setStatusBarDayLabels(); break;
    case Request::SetDayLabelText: setDayLabelText(static_cast<TranslatorIfc*>(event.ptrParam1)); break;
    case Request::SetTime: setTime(number, event.intParam2, event.intParam3); break;
    case Request::SetDate: setDate(number, event.intParam2, event.intParam3); break;
    case Request::AddCommandListener: addCommandListener(static_cast<CommandListener*>(event.ptrParam1)); break;
    case Request::SetExtensionNumberAndArrowState: setExtensionNumberAndArrowState(flag); break;
    case Request::DisplayMaintenanceIcon: displayMaintenanceIcon(flag); break;
    case Request::DisplayCallbacksIcon: displayCallbacksIcon(flag); break;
    case Request::DisplayWifiStrengthIcon: displayWifiStrengthIcon(static_cast<WifiIconType>(number)); break;
    case Request::DisplayStatusBarItems: displayStatusBarItems(flag); break;
    case Request::SetDesktopString: setDesktopString(text); break;
    }
    signalComplete(event);
}

}
