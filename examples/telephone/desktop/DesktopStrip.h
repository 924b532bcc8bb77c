#pragma once

#include "Languages.h"

#include <DisplayAPI/Desktop.h>
#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerEvent.h>
#include <DisplayAPI/TranslationInfo.h>

#include <string>

namespace DisplayAPI {
class Display;
}

/// The strip above the glass: day, date and clock, whose telephone it is, where calls go, and an icon for whatever
/// else is on.
///
/// Messages and a ringer that is off share a place, since the desktop has one for an icon of one's own. The ringer has
/// it, since the idle screen tells of messages too.
///
/// Threads: any, one at a time, but for run().
class DesktopStrip final : private DisplayAPI::TimerEvent, private TranslatorIfc {
public:
    explicit DesktopStrip(DisplayAPI::Display& display);

    /// Shows the strip until the display is shut down. Threads: GUI thread.
    void run();

    // Texts

    void setNumber(const std::string& number);

    /// Is seen where there is no number.
    void setName(const std::string& name) { mDesktop.setLogoText(name); }

    /// Where calls go; empty for nowhere else.
    void setForwarding(const std::string& number);

    /// Speaks a language, by its code. Throws std::invalid_argument for one that it does not.
    void setLanguage(const std::string& code);

    /// Counts the hours to 12 or to 24.
    void setClock(int hours) { mDesktop.set12HourClockMode(hours == 12); }

    // Icons

    void setRinger(bool isOn);
    void setMessages(int count);
    void setMissedCalls(int count) { mDesktop.displayCallbacksIcon(count > 0); }
    void setDoNotDisturb(bool isOn) { mDesktop.displayDNDIcon(isOn); }
    void setHeadset(bool isOn) { mDesktop.displayHeadsetIcon(isOn); }
    void setLock(bool isOn) { mDesktop.displayKeyLockIcon(isOn); }

private:
    void timerEvent() override;
    std::string translate(std::string key) override;
    void showText();
    void showOwnIcon();

    DisplayAPI::Display& mDisplay;
    Languages mLanguages;
    std::string mNumber;
    std::string mForwarding;
    bool mIsRingerOn = true;
    bool mHasMessages = false;
    DisplayAPI::Desktop mDesktop;
    DisplayAPI::Timer mClock;
};
