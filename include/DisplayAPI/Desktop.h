#pragma once

#include <DisplayAPI/Displayable.h>

#include <list>
#include <memory>
#include <string>

class TranslatorIfc;

namespace DisplayAPI {

class CommandListener;
class DesktopPrivateIfc;
class MenuCommand;

/// The status screen of the telephone: clock, date, day, a text, the logo's text, and a row of icons.
///
/// It lies over what is there, as popups do. It posts no commands.
///
/// Threads: any. Every call but getSBModeText() returns at once.
/// Ownership: the translator and a list of images stay the application's, and must live until the call has run, the
/// translator as long as the desktop.
/// Screen text: an object "Desktop" with clock, date, texts and the icons that are on.
class DISPLAYAPI_EXPORT Desktop : public Displayable {
public:
    /// The icon of a changed ringer; another number takes both away.
    enum RingerIconType : int {
        RINGER_NORMAL = 0,
        RINGER_A = 1,
        RINGER_B = 2,
    };

    /// The strength of the radio signal, with and without a connection; another number is no signal.
    enum WifiIconType : int {
        WIFI_NONE = 0,
        WIFI_100 = 1,
        WIFI_75 = 2,
        WIFI_50 = 3,
        WIFI_25 = 4,
        WIFI_UNCONNECTED_100 = 5,
        WIFI_UNCONNECTED_75 = 6,
        WIFI_UNCONNECTED_50 = 7,
        WIFI_UNCONNECTED_25 = 8,
    };

    /// No operation reads it.
    enum VolumeDevice : int {};

    Desktop();

    /// Waits until the desktop has gone from the GUI thread.
    ~Desktop() override;

    // Icons

    void displayKeyLockIcon(bool shown);
    void displayDNDIcon(bool shown);
    void displayHeadsetIcon(bool shown);
    void displayRingerIcon(RingerIconType type);
    void displayMaintenanceIcon(bool shown);

    /// The number is that of the icon to show.
    void displayMobileUserIcon(bool shown, int icon);
    void displayCallbacksIcon(bool shown);
    void displayWifiStrengthIcon(WifiIconType type);
    void displayUsbIcon(bool shown);

    /// Shows or hides all icons together.
    void displayStatusBarItems(bool shown);

    /// One icon by its number: 1 key lock, 2 do not disturb, 3 and 4 the two ringers; another changes none.
    void setSBPostTimeIcon(int which, bool on);

    // Clock. It gives no notice of a change, but each new minute does

    void set12HourClockMode(bool is12Hour);

    /// Minutes to add to the time that was set.
    void setTimeZoneOffset(int minutes);
    void setTime(int hours, int minutes, int seconds);
    void setDate(int day, int month, int year);

    /// Names the translator of the days, by the keys "day.Mon" to "day.Sun".
    void setDayLabelText(TranslatorIfc* translator);

    /// Reads the names of the days again; without effect before there is a translator.
    void setStatusBarDayLabels();

    // Texts

    void setLogoText(const std::string& text);

    /// Gives no notice of a change.
    void setDesktopString(const std::string& text);

    /// Draws the desktop anew; the text has no effect.
    void setStatusBarModePrev(std::string mode);

    // Life on the screen

    void show();

    /// What other telephones tell when their desktop has gone.
    static MenuCommand* HIDDEN_COMMAND();

    // Without effect on this telephone; the answers are fixed

    void setExtLabelText(std::string text);
    void setStatusBarMode(const std::string& mode, const std::string& text);

    /// An empty text, once earlier calls have run.
    std::string getSBModeText();
    void addCommandListener(CommandListener* listener);
    void setExtensionNumberAndArrowState(bool shown);
    void screensaverStart();
    void screensaverStop();
    void screensaverSetImages(std::list<std::string>* images);
    void screensaverSetImagesTimeout(int seconds);
    void screensaverSetSlideshowFormat(int format);
    void screensaverUsePixelSaverImages(int use);
    void setPreviewVolume(VolumeDevice device, int volume);

    /// Always "NOLABEL", true, 0 and null.
    std::string getFPKLabel(int key);
    bool getFPKEnabled(int key, bool shifted);
    int getNumberOfFPKLabels();
    void* getFpkBar();
    void setFPKLabel(int key, const std::string& label, bool shifted, bool enabled);
    void setFPKEnabled(int key, bool shifted, bool enabled);
    void setFPKHighlight(int key, bool highlight);
    void setShifted(bool shifted);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create();
    void destroy();

    std::unique_ptr<DesktopPrivateIfc> mPrivate;
};

}
