#pragma once

#include "TimeOfDay.h"
#include "ULoop.h"
#include "UString.h"
#include "UWidget.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

/// The status strip of the telephone: day, date and clock, a text, and icons at the right edge.
///
/// It takes one line. On a glass of two lines the text and the logo stand in the second one; on a glass of one line
/// the text stands behind the clock, or the logo if there is no text. Where the text would be cut the day goes first,
/// then the date. The clock runs on from the time that was set; each new minute raises ContentChanged.
///
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's.
class TOOLKIT_EXPORT DesktopMEG : public UWidget {
public:
    DesktopMEG();
    ~DesktopMEG() override;

    // Icons

    void setKeyLockIcon(bool shown) { setIcon(KeyLock, shown); }
    void setDNDIcon(bool shown) { setIcon(DoNotDisturb, shown); }
    void setHeadsetIcon(bool shown) { setIcon(Headset, shown); }
    void setRingerAIcon(bool shown) { setIcon(RingerA, shown); }
    void setRingerBIcon(bool shown) { setIcon(RingerB, shown); }
    void setMaintenanceIcon(bool shown) { setIcon(Maintenance, shown); }
    void setCallbacksIcon(bool shown) { setIcon(CallBacks, shown); }
    void setUsbIcon(bool shown) { setIcon(Usb, shown); }

    /// The number is that of the icon to show; a number without a picture shows a mobile telephone.
    void setMobileUserIcon(bool shown, int icon);

    /// The radio signal: whether there is a connection, and its strength in percent. Without connection and
    /// strength there is no icon.
    void setStrength(bool isConnected, int percent);

    /// Shows or hides all icons together; shown at first.
    void setStatusBarItems(bool shown);

    // Clock

    /// False, as at first, counts the hours from 0 to 23.
    void set12HourClockMode(bool is12Hour);

    /// Minutes to add to the time that was set.
    void setTimeZoneOffset(int minutes);

    /// A time or a date that does not exist changes nothing.
    void setTime(int hours, int minutes, int seconds);
    void setDate(int day, int month, int year);

    /// The names of the days, Monday first.
    void setDayLabels(const std::vector<std::string>& labels);

    // Texts

    void setLogoText(const UString& text);
    void setDesktopString(const std::string& text);

    // Screen text

    /// The block of the desktop.
    UString serialise() const;

    /// The same with the lines that one of the rectangles holds; empty if they hold none.
    UString serialise(const std::vector<URect>& rects) const;

    // Overrides

    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;

protected:
    /// Draws clock, text and icons into the first line.
    virtual void paintStrip(UPainter& painter) const;

    UString clockText() const;

    /// Day and date, without the year.
    UString dayText() const;

    /// The text of a one-line desktop: the desktop's own, or the logo's.
    UString stripText() const;

    /// Draws the icons so that the last one ends before `endColumn`, and none before `firstColumn`. Returns the
    /// column of the first.
    int paintIcons(UPainter& painter, int firstColumn, int endColumn) const;

private:
    enum Icon : std::size_t {
        KeyLock,
        DoNotDisturb,
        Headset,
        RingerA,
        RingerB,
        Maintenance,
        CallBacks,
        Usb,
        MobileUser,
        Strength,
        IconCount,
    };
    enum class Year {
        Omitted,
        Given,
    };
    struct Lines {
        bool first;
        bool second;
    };

    void setIcon(Icon icon, bool shown);
    bool isIconShown(std::size_t icon) const { return mAreIconsShown && mIcons[icon]; }
    unsigned short iconNumber(std::size_t icon) const;
    bool hasTwoLines() const;
    std::int64_t minutesSinceMidnight() const;
    std::optional<std::chrono::sys_days> today() const;
    UString dayLabel() const;
    UString dateText(Year year) const;

    /// Clock and text with as much of day and date as goes into this many columns.
    UString stripLine(int columns) const;
    void scheduleMinute();
    std::chrono::days daysPassed() const;
    UString write(Lines lines) const;

    std::array<bool, IconCount> mIcons{};
    bool mAreIconsShown = true;
    int mMobileUserIcon = 0;
    bool mIsConnected = false;
    int mPercent = 0;

    TimeOfDay mClock;
    std::optional<std::chrono::sys_days> mDate; // of the midnight from which the clock counts
    std::vector<UString> mDayLabels;
    bool mIs12Hour = false;
    int mTimeZoneOffset = 0;
    UTimer mMinuteTimer;

    UString mLogoText;
    std::string mDesktopString;
};

/// The desktop of telephones with a system window: the text comes first, or day and date where there is none, and
/// the clock last, where the system window has it too.
class TOOLKIT_EXPORT DesktopMEGQVT : public DesktopMEG {
protected:
    void paintStrip(UPainter& painter) const override;
};
