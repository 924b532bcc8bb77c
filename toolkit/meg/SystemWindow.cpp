#include "SystemWindow.h"

#include "UApplication.h"
#include "UPainter.h"
#include "UString.h"
#include "UWindowManager.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

constexpr int GlassLines = 2;
constexpr std::uint64_t Second = TimeOfDay::Second;
constexpr std::uint64_t Minute = TimeOfDay::Minute;
constexpr std::uint64_t LongestTime = Minute * 60 * 100 - Second; // 99:59:59

constexpr unsigned short HeadsetIcon = 90;
constexpr unsigned short SpeakerIcon = 102;
constexpr unsigned short MuteIcon = 46;
enum : std::size_t { Headset, Speaker, Mute };

bool isLine(int line)
{
    return line >= 0 && line < SystemWindow::LineCount;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Reads "hh:mm:ss" into milliseconds.
std::optional<std::uint64_t> parseTime(const std::string& text)
{
    if (text.size() != 8 || text[2] != ':' || text[5] != ':')
        return std::nullopt;
    std::uint64_t fields[3];
    for (std::size_t index = 0; index < 3; ++index) {
        const char tens = text[3 * index];
        const char ones = text[3 * index + 1];
        if (!isDigit(tens) || !isDigit(ones))
            return std::nullopt;
        const int number = (tens - '0') * 10 + (ones - '0');
        fields[index] = static_cast<std::uint64_t>(number);
    }
    if (fields[1] > 59 || fields[2] > 59)
        return std::nullopt;
    return (fields[0] * 60 + fields[1]) * Minute + fields[2] * Second;
}

UString clockText(std::uint64_t milliseconds)
{
    const unsigned minutes = static_cast<unsigned>(milliseconds % TimeOfDay::Day / Minute);
    char text[8];
    std::snprintf(text, sizeof text, "%02u:%02u", minutes / 60, minutes % 60);
    return UString(std::string(text));
}

UString timerText(std::uint64_t milliseconds)
{
    const unsigned seconds = static_cast<unsigned>(std::min(milliseconds, LongestTime) / Second);
    char text[16];
    std::snprintf(text, sizeof text, "%02u:%02u:%02u", seconds / 3600, seconds / 60 % 60, seconds % 60);
    return UString(std::string(text));
}

}

SystemWindow::SystemWindow()
    : mIcons{{{HeadsetIcon, false}, {SpeakerIcon, false}, {MuteIcon, false}}}
    , mUpdateTimer(this)
{
    mUpdateTimer.setSingleShot(true);
    setSystemWindowSize(0);
    UWindowManager::instance().addOverlay(this);
}

SystemWindow::~SystemWindow() = default;

void SystemWindow::release()
{
    delete this;
}

// Lines

void SystemWindow::setSystemWindowSize(int lines)
{
    mSize = std::clamp(lines, 0, LineCount);
    setCoordinates(0, 0, 161, std::min(15 * mSize - 1, 30));
    refresh();
}

void SystemWindow::setSystemWindowText(int line, const std::string& text, const std::string& key)
{
    if (!isLine(line))
        return;
    mLines[static_cast<std::size_t>(line)] = {text, key};
    refresh();
}

std::string SystemWindow::getSystemWindowText(int line, const std::string&) const
{
    return isLine(line) ? mLines[static_cast<std::size_t>(line)].text : std::string();
}

std::string SystemWindow::systemWindowKey(int line) const
{
    return isLine(line) ? mLines[static_cast<std::size_t>(line)].key : std::string();
}

void SystemWindow::showLine(bool shown)
{
    mIsLineShown = shown;
    refresh();
}

// Clock

void SystemWindow::showTime(bool shown)
{
    mIsTimeShown = shown;
    contentChanged();
}

void SystemWindow::setTime(int hours, int minutes, int seconds)
{
    if (mClock.set(hours, minutes, seconds))
        contentChanged();
}

// Timer

void SystemWindow::setTimer(const std::string& time)
{
    if (const auto value = parseTime(time))
        setTimerValue(*value);
}

void SystemWindow::startTimer(const std::string& time)
{
    setTimerValue(parseTime(time).value_or(timerTime()));
    mIsTimerRunning = true;
    contentChanged();
}

void SystemWindow::stopTimer()
{
    mIsTimerRunning = false;
    setTimerValue(0);
}

void SystemWindow::pauseTimer()
{
    setTimerValue(timerTime());
    mIsTimerRunning = false;
    contentChanged();
}

void SystemWindow::showTimer()
{
    mIsTimerShown = true;
    contentChanged();
}

void SystemWindow::hideTimer(bool stop)
{
    mIsTimerShown = false;
    if (stop)
        stopTimer();
    contentChanged();
}

void SystemWindow::setTimerValue(std::uint64_t value)
{
    mTimerValue = value;
    mTimerStart = ULoop::instance().now();
    contentChanged();
}

std::uint64_t SystemWindow::timerTime() const
{
    return mIsTimerRunning ? mTimerValue + ULoop::instance().now() - mTimerStart : mTimerValue;
}

// Updates

int SystemWindow::getTimeToNextUpdate() const
{
    std::uint64_t time = 0;
    if (isClockShown())
        time = mClock.toNextMinute();
    if (mIsTimerShown && mIsTimerRunning && timerTime() < LongestTime) {
        const std::uint64_t timer = Second - timerTime() % Second;
        time = time == 0 ? timer : std::min(time, timer);
    }
    return static_cast<int>(time);
}

void SystemWindow::contentChanged()
{
    const int time = getTimeToNextUpdate();
    mUpdateTimer.stop();
    if (time > 0) {
        mUpdateTimer.setInterval(static_cast<unsigned long long>(time));
        mUpdateTimer.start();
    }
    refresh();
}

void SystemWindow::timerEvent(UTimerEvent*)
{
    contentChanged();
}

// Icons

void SystemWindow::setAndUpdateHeadSetIcon(bool shown)
{
    setIcon(Headset, shown);
}

void SystemWindow::setAndUpdateSpeakerIcon(bool shown)
{
    setIcon(Speaker, shown);
}

void SystemWindow::setAndUpdateMuteIcon(bool shown)
{
    setIcon(Mute, shown);
}

void SystemWindow::setIcon(std::size_t index, bool shown)
{
    mIcons[index].isShown = shown;
    refresh();
}

// Painting

int SystemWindow::rightSideColumns() const
{
    const auto icons = std::count_if(mIcons.begin(), mIcons.end(), [](const Icon& icon) { return icon.isShown; });
    return 2 * static_cast<int>(icons) + (mIsTimerShown ? TimerColumns : 0) + (isClockShown() ? ClockColumns : 0);
}

void SystemWindow::paintRightSide(UPainter& painter, int column) const
{
    for (const Icon& icon : mIcons) {
        if (icon.isShown)
            column += painter.icon(0, column, icon.number);
    }
    if (mIsTimerShown) {
        painter.text(0, column + 1, timerText(timerTime()));
        column += TimerColumns;
    }
    if (isClockShown())
        painter.text(0, column + 1, clockText(mClock.sinceMidnight()));
}

void SystemWindow::paint(UPainter& painter)
{
    if (!mIsLineShown || !VantoUApplication::isSoftwareQvt())
        return;
    for (int line = 0; line < std::min(mSize, GlassLines); ++line) {
        const std::string& text = mLines[static_cast<std::size_t>(line)].text;
        const int right = line == 0 ? rightSideColumns() : 0;
        if (text.empty() && right == 0)
            continue;
        painter.clearLine(line);
        painter.text(line, 0, UString(text), UPainter::Columns - right);
        if (right > 0)
            paintRightSide(painter, UPainter::Columns - right);
    }
}
