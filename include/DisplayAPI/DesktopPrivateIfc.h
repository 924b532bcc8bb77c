#pragma once

#include <DisplayAPI/Desktop.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include <list>
#include <string>

class TranslatorIfc;
class UEvent;

namespace DisplayAPI {

/// The status screen on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT DesktopPrivateIfc : public DisplayablePrivate {
public:
    virtual void setLogoText(std::string text) = 0;
    virtual void setExtLabelText(std::string text) = 0;
    virtual void displayKeyLockIcon(bool shown) = 0;
    virtual void displayDNDIcon(bool shown) = 0;
    virtual void displayHeadsetIcon(bool shown) = 0;
    virtual void displayRingerIcon(Desktop::RingerIconType type) = 0;
    virtual void displayMaintenanceIcon(bool shown) = 0;
    virtual void displayMobileUserIcon(bool shown, int icon) = 0;
    virtual void displayCallbacksIcon(bool shown) = 0;
    virtual void displayWifiStrengthIcon(Desktop::WifiIconType type) = 0;
    virtual void displayUsbIcon(bool shown) = 0;
    virtual void displayStatusBarItems(bool shown) = 0;
    virtual void set12HourClockMode(bool is12Hour) = 0;
    virtual void setStatusBarMode(const std::string& mode, const std::string& text) = 0;
    virtual void setStatusBarModePrev(std::string mode) = 0;
    virtual std::string getSBModeText() = 0;
    virtual void screensaverStart() = 0;
    virtual void screensaverStop() = 0;
    virtual void screensaverSetImages(std::list<std::string>* images) = 0;
    virtual void setSBPostTimeIcon(int which, bool on) = 0;
    virtual void setTimeZoneOffset(int minutes) = 0;
    virtual void setDayLabelText(TranslatorIfc* translator) = 0;
    virtual void setStatusBarDayLabels() = 0;
    virtual void screensaverSetImagesTimeout(int seconds) = 0;
    virtual void screensaverSetSlideshowFormat(int format) = 0;
    virtual void setTime(int hours, int minutes, int seconds) = 0;
    virtual void setDate(int day, int month, int year) = 0;
    virtual void setExtensionNumberAndArrowState(bool shown) = 0;
    virtual void setDesktopString(const std::string& text) = 0;
    virtual void event(UEvent* event) = 0;
};

}
