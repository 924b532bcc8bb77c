#include "DesktopStrip.h"

#include <DisplayAPI/Display.h>
#include <PhoneSimulator/PhoneSimulator.h>

#include <ctime>
#include <stdexcept>
#include <utility>

using namespace DisplayAPI;

namespace {

constexpr unsigned int Minute = 60'000; // milliseconds
constexpr int FirstYear = 1900;         // of std::tm

enum Icon {
    Messages = 7,
    RingerOff = 205,
};

}

DesktopStrip::DesktopStrip(Display& display)
    : mDisplay(display)
    , mClock(Minute)
{
    mDesktop.setDayLabelText(this);
    mClock.addEventListener(this);
}

void DesktopStrip::run()
{
    timerEvent();
    mClock.start(Minute);
    mDisplay.setCurrent(&mDesktop);
    mDisplay.show();
    mDisplay.exec();
}

/// The desktop counts the time by itself, but not that in which the computer slept.
void DesktopStrip::timerEvent()
{
    const std::time_t now = PhoneSimulator::now();
    std::tm time{};
    localtime_r(&now, &time);
    mDesktop.setTime(time.tm_hour, time.tm_min, time.tm_sec);
    mDesktop.setDate(time.tm_mday, time.tm_mon + 1, time.tm_year + FirstYear);
}

std::string DesktopStrip::translate(std::string key)
{
    return mLanguages.translate(std::move(key));
}

void DesktopStrip::setLanguage(const std::string& code)
{
    if (!mLanguages.speak(code))
        throw std::invalid_argument("\"" + code + "\" is not spoken");
    mDesktop.setStatusBarDayLabels();
}

void DesktopStrip::setNumber(const std::string& number)
{
    mNumber = number;
    showText();
}

void DesktopStrip::setForwarding(const std::string& number)
{
    mForwarding = number;
    showText();
}

void DesktopStrip::setRinger(bool isOn)
{
    mIsRingerOn = isOn;
    showOwnIcon();
}

void DesktopStrip::setMessages(int count)
{
    mHasMessages = count > 0;
    showOwnIcon();
}

void DesktopStrip::showText()
{
    mDesktop.setDesktopString(mForwarding.empty() ? mNumber : mNumber + "\u2192" + mForwarding);
    mDesktop.setStatusBarModePrev(""); // a new text gives no notice of its own
}

void DesktopStrip::showOwnIcon()
{
    mDesktop.displayMobileUserIcon(!mIsRingerOn || mHasMessages, mIsRingerOn ? Messages : RingerOff);
}
