#include "TimeOfDay.h"

#include "ULoop.h"

bool TimeOfDay::set(int hours, int minutes, int seconds)
{
    if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59 || seconds < 0 || seconds > 59)
        return false;
    mValue = static_cast<std::uint64_t>(hours * 60 + minutes) * Minute + static_cast<std::uint64_t>(seconds) * Second;
    mStart = ULoop::instance().now();
    mIsSet = true;
    return true;
}

std::uint64_t TimeOfDay::sinceMidnight() const
{
    return mValue + ULoop::instance().now() - mStart;
}
