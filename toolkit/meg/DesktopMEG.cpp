#include "DesktopMEG.h"

#include "EventTypes.h"
#include "Icons.h"
#include "TextBlock.h"
#include "TextCells.h"
#include "UPainter.h"
#include "UScreenWE1.h"
#include "UWindowManager.h"

#include <algorithm>
#include <cstdio>
#include <initializer_list>

namespace {

const URect FirstLine(0, 0, 161, 14);
const URect SecondLine(0, 15, 161, 30);
constexpr int IconColumns = 2;
constexpr int MinutesOfHour = 60;
constexpr int MinutesOfDay = 24 * MinutesOfHour;

/// What the screen text and the glass show for each icon, in the order of the enumeration.
struct Picture {
    const char* word;
    unsigned short number;
};
constexpr Picture pictures[] = {
    {"KeyLock", Icons::KeyLock},
    {"DoNotDisturb", 2},
    {"Headset", 90},
    {"RingerA", Icons::RingerA},
    {"RingerB", Icons::RingerB},
    {"Maintenance", Icons::Maintenance},
    {"CallBack", 6},
    {"Usb", Icons::Usb},
    {"MobileUser", Icons::MobileTelephone},
    {"Wifi", Icons::Signal100},
};

UString joined(std::initializer_list<UString> parts)
{
    UString text;
    for (const UString& part : parts) {
        if (!text.isEmpty() && !part.isEmpty())
            text.append(' ');
        text += part;
    }
    return text;
}

template <typename... Numbers>
UString formatted(const char* format, Numbers... numbers)
{
    char text[32];
    std::snprintf(text, sizeof text, format, numbers...);
    return UString(std::string(text));
}

int columnsOf(const UString& text)
{
    return TextCells::count(text, UPainter::Columns);
}

bool isLineIn(const std::vector<URect>& rects, const URect& line)
{
    return std::any_of(rects.begin(), rects.end(), [&line](const URect& rect) { return rect.contains(line); });
}

}

DesktopMEG::DesktopMEG()
    : mMinuteTimer(this)
{
    const UScreenWE1* screen = UWindowManager::instance().screen();
    setCoordinates(0, 0, 161, screen && screen->height() <= SecondLine.top() + 1 ? 15 : 30);
    mMinuteTimer.setSingleShot(true);
}

DesktopMEG::~DesktopMEG() = default;

bool DesktopMEG::hasTwoLines() const
{
    return getRect().bottom() >= SecondLine.bottom();
}

// Icons

void DesktopMEG::setIcon(Icon icon, bool shown)
{
    mIcons[icon] = shown;
    refresh();
}

void DesktopMEG::setMobileUserIcon(bool shown, int icon)
{
    mMobileUserIcon = icon;
    setIcon(MobileUser, shown);
}

void DesktopMEG::setStrength(bool isConnected, int percent)
{
    mIsConnected = isConnected;
    mPercent = percent;
    setIcon(Strength, isConnected || percent != 0);
}

void DesktopMEG::setStatusBarItems(bool shown)
{
    mAreIconsShown = shown;
    refresh();
}

unsigned short DesktopMEG::iconNumber(std::size_t icon) const
{
    if (icon == MobileUser) {
        const auto number = static_cast<unsigned short>(mMobileUserIcon);
        if (number == mMobileUserIcon && Icons::picture(number))
            return number;
    }
    if (icon == Strength) {
        if (!mIsConnected)
            return Icons::NoSignal;
        const int bars = std::clamp((mPercent + 24) / 25, 1, 4);
        return static_cast<unsigned short>(Icons::Signal25 + bars - 1);
    }
    return pictures[icon].number;
}

// Clock

void DesktopMEG::set12HourClockMode(bool is12Hour)
{
    mIs12Hour = is12Hour;
    refresh();
}

void DesktopMEG::setTimeZoneOffset(int minutes)
{
    mTimeZoneOffset = minutes;
    refresh();
}

void DesktopMEG::setTime(int hours, int minutes, int seconds)
{
    const std::chrono::days passed = daysPassed();
    if (!mClock.set(hours, minutes, seconds))
        return;
    if (mDate)
        *mDate += passed;
    scheduleMinute();
    refresh();
}

void DesktopMEG::setDate(int day, int month, int year)
{
    const std::chrono::year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
        std::chrono::day(static_cast<unsigned>(day)));
    if (!date.ok())
        return;
    mDate = std::chrono::sys_days(date) - daysPassed();
    refresh();
}

void DesktopMEG::setDayLabels(const std::vector<std::string>& labels)
{
    mDayLabels.clear();
    for (const std::string& label : labels)
        mDayLabels.emplace_back(TextBlock::oneLine(label));
    refresh();
}

void DesktopMEG::scheduleMinute()
{
    mMinuteTimer.setInterval(mClock.toNextMinute());
    mMinuteTimer.start();
}

void DesktopMEG::timerEvent(UTimerEvent*)
{
    scheduleMinute();
    refresh();
    emit(EventType::ContentChanged, this);
}

std::chrono::days DesktopMEG::daysPassed() const
{
    return std::chrono::days(mClock.isSet() ? mClock.sinceMidnight() / TimeOfDay::Day : 0);
}

std::int64_t DesktopMEG::minutesSinceMidnight() const
{
    return static_cast<std::int64_t>(mClock.sinceMidnight() / TimeOfDay::Minute) + mTimeZoneOffset;
}

std::optional<std::chrono::sys_days> DesktopMEG::today() const
{
    if (!mDate || !mClock.isSet())
        return mDate;
    return *mDate + std::chrono::floor<std::chrono::days>(std::chrono::minutes(minutesSinceMidnight()));
}

UString DesktopMEG::clockText() const
{
    if (!mClock.isSet())
        return {};
    const int minute = static_cast<int>((minutesSinceMidnight() % MinutesOfDay + MinutesOfDay) % MinutesOfDay);
    const int hour = minute / MinutesOfHour;
    if (!mIs12Hour)
        return formatted("%02d:%02d", hour, minute % MinutesOfHour);
    return formatted("%d:%02d%s", hour % 12 == 0 ? 12 : hour % 12, minute % MinutesOfHour, hour < 12 ? "am" : "pm");
}

UString DesktopMEG::dayLabel() const
{
    const std::optional<std::chrono::sys_days> date = today();
    if (!date)
        return {};
    const std::size_t day = std::chrono::weekday(*date).iso_encoding() - 1;
    return day < mDayLabels.size() ? mDayLabels[day] : UString();
}

UString DesktopMEG::dateText(Year year) const
{
    const std::optional<std::chrono::sys_days> date = today();
    if (!date)
        return {};
    const std::chrono::year_month_day parts(*date);
    const unsigned day = static_cast<unsigned>(parts.day());
    const unsigned month = static_cast<unsigned>(parts.month());
    if (year == Year::Omitted)
        return formatted("%02u.%02u.", day, month);
    return formatted("%02u.%02u.%04d", day, month, static_cast<int>(parts.year()));
}

// Texts

void DesktopMEG::setLogoText(const UString& text)
{
    mLogoText = text;
    refresh();
}

void DesktopMEG::setDesktopString(const std::string& text)
{
    mDesktopString = text;
    refresh();
}

// Screen text

UString DesktopMEG::serialise() const
{
    return write({true, true});
}

UString DesktopMEG::serialise(const std::vector<URect>& rects) const
{
    return write({isLineIn(rects, FirstLine), isLineIn(rects, hasTwoLines() ? SecondLine : FirstLine)});
}

UString DesktopMEG::write(Lines lines) const
{
    if (!lines.first && !lines.second)
        return {};
    TextBlock block("Desktop");
    if (lines.second && !mLogoText.isEmpty())
        block.field("caption", mLogoText.toUTF8());
    if (lines.first) {
        block.field("string0", joined({clockText(), dayLabel()}).toUTF8());
        if (const UString date = dateText(Year::Given); !date.isEmpty())
            block.field("string1", date.toUTF8());
    }
    if (lines.second && !mDesktopString.empty())
        block.field("string2", mDesktopString);
    for (std::size_t icon = 0; lines.first && icon < IconCount; ++icon) {
        if (!isIconShown(icon))
            continue;
        block.beginSubitem("DesktopIcon");
        block.field("icon0", icon == Strength && !mIsConnected ? "NoWifi" : pictures[icon].word);
        if (icon == Strength)
            block.field("string0", std::to_string(mPercent));
        block.endSubitem();
    }
    return block.finish();
}

// Painting

void DesktopMEG::paint(UPainter& painter)
{
    painter.clearLine(0);
    paintStrip(painter);
    if (!hasTwoLines())
        return;
    painter.clearLine(1);
    const int logoColumns = std::min(columnsOf(mLogoText), UPainter::Columns / 2);
    const int room = UPainter::Columns - logoColumns - (logoColumns > 0 ? 1 : 0);
    const int taken = painter.text(1, 0, UString(TextBlock::oneLine(mDesktopString)), room);
    painter.textRight(1, UPainter::Columns - 1, mLogoText, taken > 0 ? logoColumns : UPainter::Columns);
}

UString DesktopMEG::stripLine(int columns) const
{
    const UString clock = clockText();
    const UString date = dateText(Year::Omitted);
    const UString text = stripText();
    UString longest;
    for (const UString& head : {joined({dayLabel(), date, clock}), joined({date, clock}), clock}) {
        const UString line = joined({head, text});
        if (columnsOf(line) <= columns)
            return line;
        if (longest.isEmpty() && columnsOf(head) <= columns)
            longest = line;
    }
    return longest;
}

UString DesktopMEG::dayText() const
{
    return joined({dayLabel(), dateText(Year::Omitted)});
}

UString DesktopMEG::stripText() const
{
    if (hasTwoLines())
        return {};
    return mDesktopString.empty() ? mLogoText : UString(TextBlock::oneLine(mDesktopString));
}

int DesktopMEG::paintIcons(UPainter& painter, int firstColumn, int endColumn) const
{
    int count = 0;
    for (std::size_t icon = 0; icon < IconCount; ++icon)
        count += isIconShown(icon) ? 1 : 0;
    const int first = endColumn - std::min(count, std::max(endColumn - firstColumn, 0) / IconColumns) * IconColumns;
    int column = first;
    for (std::size_t icon = 0; icon < IconCount && column < endColumn; ++icon) {
        if (isIconShown(icon))
            column += painter.icon(0, column, iconNumber(icon));
    }
    return first;
}

void DesktopMEG::paintStrip(UPainter& painter) const
{
    // The clock keeps its place; the icons come next, and the rest takes what they leave.
    const int clockColumns = columnsOf(clockText());
    const int icons = paintIcons(painter, clockColumns > 0 ? clockColumns + 1 : 0, UPainter::Columns);
    painter.text(0, 0, stripLine(icons), icons);
}

void DesktopMEGQVT::paintStrip(UPainter& painter) const
{
    const UString clock = clockText();
    const int clockColumns = columnsOf(clock);
    painter.textRight(0, UPainter::Columns - 1, clock);
    const int icons = paintIcons(painter, 0, UPainter::Columns - (clockColumns > 0 ? clockColumns + 1 : 0));
    const UString text = stripText();
    painter.text(0, 0, text.isEmpty() ? dayText() : text, icons);
}
