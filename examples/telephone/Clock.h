#pragma once

#include <ctime>
#include <string>

/// The telephone's time, in the user's way of writing it.
class Clock {
public:
    static std::time_t now();

    void setTwelveHours(bool on) { mHasTwelveHours = on; }
    bool hasTwelveHours() const { return mHasTwelveHours; }

    /// A moment for a row of the call log, which shows the time if it was today, else the date.
    std::string momentOf(std::time_t time) const;

    /// The time of day.
    std::string timeOf(std::time_t time) const;

private:
    bool mHasTwelveHours = false;
};
