#include "Log.h"

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <functional>
#include <map>
#include <mutex>
#include <string_view>
#include <utility>

namespace {

/// The highest level of any module. While everything is off, this one load is all that logging costs.
std::atomic<int> gHighestLevel = INT_MIN;

struct Levels {
    std::mutex mutex;
    std::map<std::string, int, std::less<>> byModule; // guarded by mutex
};

/// Never destroyed: threads log while the process ends.
Levels& levels()
{
    static Levels& theLevels = *new Levels;
    return theLevels;
}

void writeToStandardError(const LogControl::Message& message)
{
    std::string text = message.text;
    std::replace(text.begin(), text.end(), '\n', ' ');
    // One call, so that the lines of two threads do not mix.
    std::fprintf(stderr, "%s(%d) %s:%d: %s\n", message.module.c_str(), message.level, message.file.c_str(),
        message.line, text.c_str());
}

std::atomic<LogControl::Sink> gSink = writeToStandardError;

std::string formatted(const char* format, std::va_list arguments)
{
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0)
        std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

}

bool loggingOnAppUni(const char* module, int level)
{
    if (level > gHighestLevel.load(std::memory_order_relaxed))
        return false;
    Levels& table = levels();
    const std::lock_guard lock(table.mutex);
    auto entry = table.byModule.find(std::string_view(module ? module : ""));
    if (entry == table.byModule.end())
        entry = table.byModule.find("*");
    return entry != table.byModule.end() && level <= entry->second;
}

void logAppUni(const char* module, const char* file, int level, int line, const char* format, ...)
{
    if (!loggingOnAppUni(module, level))
        return;
    std::va_list arguments;
    va_start(arguments, format);
    LogControl::Message message{module ? module : "", file ? file : "", level, line, formatted(format, arguments)};
    va_end(arguments);
    gSink.load()(message);
}

void LogControl::setLevel(const std::string& module, int level)
{
    Levels& table = levels();
    const std::lock_guard lock(table.mutex);
    table.byModule[module] = level;
    int highest = INT_MIN;
    for (const auto& entry : table.byModule)
        highest = std::max(highest, entry.second);
    gHighestLevel = highest;
}

void LogControl::setSink(Sink sink)
{
    gSink = sink ? sink : writeToStandardError;
}

void LogControl::reset()
{
    Levels& table = levels();
    const std::lock_guard lock(table.mutex);
    table.byModule.clear();
    gHighestLevel = INT_MIN;
    gSink = writeToStandardError;
}
