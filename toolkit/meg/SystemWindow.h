#pragma once

#include "TimeOfDay.h"
#include "ULoop.h"
#include "UWidget.h"

#include <array>
#include <cstdint>
#include <string>

/// The lines that a telephone of software type 1 shows over its screens, with clock, timer and icons on the
/// first one.
///
/// A line without a text leaves the glass to what lies below; a blank text covers it. Clock and timer go on by
/// themselves; neither is part of the text of a line. On another software type nothing of it is on the glass.
/// Threads: GUI thread only. Ownership: it stands beside the tree of screens; release() deletes it.
class TOOLKIT_EXPORT SystemWindow : public UWidget {
public:
    static constexpr int LineCount = 6;

    SystemWindow();
    ~SystemWindow() override;

    /// Deletes the window.
    void release();

    /// The widget to show: the window itself.
    SystemWindow* getSystemWindow() { return this; }

    // Lines

    /// How many of the lines are shown, 0 to 6; the glass has room for two. Texts stay.
    void setSystemWindowSize(int lines);

    /// Sets the text of a line, 0 to 5, and keeps `key` with it, the status for which the caller writes. A line has
    /// one text for all of them. Another number is ignored.
    void setSystemWindowText(int line, const std::string& text, const std::string& key);

    /// The text of a line as it was set, whatever the key; empty for a line that does not exist.
    std::string getSystemWindowText(int line, const std::string& key) const;

    /// For which status the text of a line was written; empty for none.
    std::string systemWindowKey(int line) const;

    /// Shows the lines, which is the state at first, or leaves the glass to the screens.
    void showLine(bool shown);

    /// The milliseconds until the window changes by itself, 0 if it won't.
    int getTimeToNextUpdate() const;

    // Clock

    /// Shows the clock once it has been set.
    void showTime(bool shown);

    /// Sets the clock, which goes on from there. A time that no clock shows is ignored.
    void setTime(int hours, int minutes, int seconds);

    // Timer

    /// Sets the time of the timer, of the form hh:mm:ss; a running timer goes on from there. Another text is
    /// ignored.
    void setTimer(const std::string& time);

    /// Starts the timer at a time; an empty text goes on from where it stands.
    void startTimer(const std::string& time);

    /// Stops the timer and sets it to zero.
    void stopTimer();

    /// Stops the timer where it stands.
    void pauseTimer();

    void showTimer();

    /// Takes the timer from the glass; true also stops it.
    void hideTimer(bool stop);

    // Icons

    void setAndUpdateHeadSetIcon(bool shown);
    void setAndUpdateSpeakerIcon(bool shown);
    void setAndUpdateMuteIcon(bool shown);

    // Overrides

    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;
    Layer layer() const override { return Layer::SystemWindow; }

private:
    struct Line {
        std::string text;
        std::string key;
    };
    struct Icon {
        unsigned short number;
        bool isShown;
    };
    static constexpr int TimerColumns = 9; // hh:mm:ss behind a blank
    static constexpr int ClockColumns = 6; // hh:mm behind a blank

    std::uint64_t timerTime() const;
    bool isClockShown() const { return mIsTimeShown && mClock.isSet(); }
    void setIcon(std::size_t index, bool shown);
    void setTimerValue(std::uint64_t value);
    void contentChanged();

    /// The columns that icons, timer and clock take at the right edge of the first line.
    int rightSideColumns() const;
    void paintRightSide(UPainter& painter, int column) const;

    std::array<Line, LineCount> mLines;
    std::array<Icon, 3> mIcons;
    int mSize = 0;
    bool mIsLineShown = true;

    bool mIsTimeShown = false;
    TimeOfDay mClock;

    bool mIsTimerShown = false;
    bool mIsTimerRunning = false;
    std::uint64_t mTimerValue = 0; // while it stands
    std::uint64_t mTimerStart = 0; // while it runs: when it had that value

    UTimer mUpdateTimer;
};
