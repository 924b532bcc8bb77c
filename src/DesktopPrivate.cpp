#include "DesktopPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "WidgetRects.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <vector>

namespace DisplayAPI {

namespace {

constexpr const char* DayKeys[] = {"day.Mon", "day.Tue", "day.Wed", "day.Thu", "day.Fri", "day.Sat", "day.Sun"};

/// What the widget is told for each type of the radio signal.
struct Signal {
    bool isConnected;
    int percent;
};
constexpr Signal Signals[] = {
    {false, 0}, {true, 100}, {true, 75}, {true, 50}, {true, 25}, {false, 100}, {false, 75}, {false, 50}, {false, 25}};

}

DesktopPrivate::DesktopPrivate(Desktop* parent)
    : mWidget(isSoftwareQvt() ? new DesktopMEGQVT : new DesktopMEG)
    , mParent(parent)
{
    assertGuiThread();
    mWidget->setListener(this);
    joinApplication(this);
}

DesktopPrivate::~DesktopPrivate()
{
    assertGuiThread();
}

template <typename... Parameters, typename... Arguments>
void DesktopPrivate::change(void (DesktopMEG::*operation)(Parameters...), Arguments... arguments)
{
    if (mWidget)
        (mWidget->*operation)(arguments...);
    generateDisplayChangedEvent();
}

// Icons

void DesktopPrivate::displayKeyLockIcon(bool shown)
{
    change(&DesktopMEG::setKeyLockIcon, shown);
}

void DesktopPrivate::displayDNDIcon(bool shown)
{
    change(&DesktopMEG::setDNDIcon, shown);
}

void DesktopPrivate::displayHeadsetIcon(bool shown)
{
    change(&DesktopMEG::setHeadsetIcon, shown);
}

void DesktopPrivate::displayMaintenanceIcon(bool shown)
{
    change(&DesktopMEG::setMaintenanceIcon, shown);
}

void DesktopPrivate::displayCallbacksIcon(bool shown)
{
    change(&DesktopMEG::setCallbacksIcon, shown);
}

void DesktopPrivate::displayUsbIcon(bool shown)
{
    change(&DesktopMEG::setUsbIcon, shown);
}

void DesktopPrivate::displayStatusBarItems(bool shown)
{
    change(&DesktopMEG::setStatusBarItems, shown);
}

void DesktopPrivate::displayMobileUserIcon(bool shown, int icon)
{
    change(&DesktopMEG::setMobileUserIcon, shown, icon);
}

void DesktopPrivate::displayRingerIcon(Desktop::RingerIconType type)
{
    if (mWidget) {
        mWidget->setRingerBIcon(type == Desktop::RINGER_B);
        mWidget->setRingerAIcon(type == Desktop::RINGER_A);
    }
    generateDisplayChangedEvent();
}

void DesktopPrivate::displayWifiStrengthIcon(Desktop::WifiIconType type)
{
    const bool isKnown = type >= Desktop::WIFI_100 && type <= Desktop::WIFI_UNCONNECTED_25;
    const Signal& signal = Signals[isKnown ? type : Desktop::WIFI_NONE];
    change(&DesktopMEG::setStrength, signal.isConnected, signal.percent);
}

void DesktopPrivate::setSBPostTimeIcon(int which, bool on)
{
    if (mWidget) {
        switch (which) {
        case 1: mWidget->setKeyLockIcon(on); break;
        case 2: mWidget->setDNDIcon(on); break;
        case 3: mWidget->setRingerAIcon(on); break;
        case 4: mWidget->setRingerBIcon(on); break;
        default: break;
        }
    }
    generateDisplayChangedEvent();
}

// Clock

void DesktopPrivate::set12HourClockMode(bool is12Hour)
{
    change(&DesktopMEG::set12HourClockMode, is12Hour);
}

void DesktopPrivate::setTimeZoneOffset(int minutes)
{
    change(&DesktopMEG::setTimeZoneOffset, minutes);
}

void DesktopPrivate::setTime(int hours, int minutes, int seconds)
{
    if (mWidget)
        mWidget->setTime(hours, minutes, seconds);
}

void DesktopPrivate::setDate(int day, int month, int year)
{
    if (mWidget)
        mWidget->setDate(day, month, year);
}

void DesktopPrivate::setDayLabelText(TranslatorIfc* translator)
{
    mTranslator = translator;
    setStatusBarDayLabels();
}

void DesktopPrivate::setStatusBarDayLabels()
{
    for (std::size_t day = 0; mTranslator && day < mDayNames.size(); ++day)
        mDayNames[day].take(new TranslationInfo(DayKeys[day], mTranslator));
    localeChanged("");
}

void DesktopPrivate::localeChanged(std::string)
{
    if (!mDayNames.front() || !mWidget)
        return;
    std::vector<std::string> labels;
    for (const TranslationHolder& name : mDayNames)
        labels.push_back(name.string());
    mWidget->setDayLabels(labels);
}

// Texts

void DesktopPrivate::setLogoText(std::string text)
{
    if (mWidget)
        mWidget->setLogoText(UString(text));
    generateDisplayChangedEvent();
}

void DesktopPrivate::setDesktopString(const std::string& text)
{
    if (mWidget)
        mWidget->setDesktopString(text);
}

void DesktopPrivate::setStatusBarModePrev(std::string)
{
    if (mWidget)
        mWidget->refresh();
    generateDisplayChangedEvent();
}

// Life on the screen

void DesktopPrivate::show()
{
    if (mWidget)
        mWidget->show();
}

void DesktopPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::ContentChanged: generateDisplayChangedEvent(); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

// Screen text

std::string DesktopPrivate::serialise()
{
    return mWidget ? mWidget->serialise().toUTF8() : std::string();
}

std::string DesktopPrivate::serialise(const std::vector<Rect>& rects)
{
    return mWidget ? mWidget->serialise(widgetRects(rects)).toUTF8() : std::string();
}

}
