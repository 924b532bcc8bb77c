#include "Clock.h"

#include <PhoneSimulator/PhoneSimulator.h>

namespace {

constexpr const char* Date = "%Y-%m-%d";

std::string formatted(std::time_t time, const char* format)
{
    std::tm parts{};
    localtime_r(&time, &parts);
    char text[32] = "";
    std::strftime(text, sizeof text, format, &parts);
    return text;
}

}

std::time_t Clock::now()
{
    return PhoneSimulator::now();
}

std::string Clock::momentOf(std::time_t time) const
{
    // The row takes a date and a time in this form apart by itself.
    if (!mHasTwelveHours)
        return formatted(time, "%Y-%m-%d %H:%M");
    const std::string date = formatted(time, Date);
    return date == formatted(now(), Date) ? timeOf(time) : date;
}

std::string Clock::timeOf(std::time_t time) const
{
    return formatted(time, mHasTwelveHours ? "%-I:%M%P" : "%H:%M");
}
