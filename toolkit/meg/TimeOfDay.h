#pragma once

#include "Export.h"

#include <cstdint>

/// A clock that was set once and runs on with the loop's time. It shows nothing until it has been set.
class TOOLKIT_EXPORT TimeOfDay {
public:
    static constexpr std::uint64_t Second = 1000; // milliseconds
    static constexpr std::uint64_t Minute = 60 * Second;
    static constexpr std::uint64_t Day = 24 * (60 * Minute);

    /// Sets the time of now. Returns false, and changes nothing, for a time that no day has.
    bool set(int hours, int minutes, int seconds);
    bool isSet() const { return mIsSet; }

    /// Milliseconds since the midnight before the clock was set: more than a day after the next one.
    std::uint64_t sinceMidnight() const;

    /// Milliseconds until the minute changes, never 0.
    std::uint64_t toNextMinute() const { return Minute - sinceMidnight() % Minute; }

private:
    std::uint64_t mValue = 0;
    std::uint64_t mStart = 0;
    bool mIsSet = false;
};
