#include "Benchmarks.h"
#include "ChildProcess.h"
#include "Phone.h"
#include "Report.h"

#include <filesystem>
#include <stdexcept>

namespace {

constexpr int Keys = 10'000;

// The keys walk on the idle screen, and open and leave the menu behind it: each is painted.
constexpr const char* KeyLines[] = {
    R"({"do":"key","key":"OK"})",
    R"({"do":"key","key":"DOWN"})",
    R"({"do":"key","key":"UP"})",
    R"({"do":"key","key":"LEFT"})",
};

/// The demonstration telephone stands beside this program.
std::vector<std::string> telephone()
{
    return {std::filesystem::read_symlink("/proc/self/exe").parent_path() / "phone", "--control"};
}

/// Sends a command, and wants it done.
void command(ChildProcess& phone, const std::string& line)
{
    phone.write(line);
    const std::string answer = phone.read();
    if (!answer.starts_with(R"({"ok":true)"))
        throw std::runtime_error("the telephone has answered " + line + " by " + answer);
}

void waitForFirstScreen(ChildProcess& phone)
{
    command(phone, R"({"do":"expect","text":"name:IdleDisplay"})");
}

double firstPaint()
{
    const double start = nowInNanoseconds();
    ChildProcess phone(telephone());
    waitForFirstScreen(phone);
    return nowInNanoseconds() - start;
}

/// What it costs to start any program and to hear of it.
double smallestStart()
{
    const double start = nowInNanoseconds();
    ChildProcess program({"echo"});
    program.read();
    return nowInNanoseconds() - start;
}

double measureStart(const std::string& mode)
{
    const double yardstick = smallestStart();
    const double time = firstPaint();
    Report::addFigure(mode, "telephone: from its start to its first paint", time / 1e6, "ms", Report::NoLimit);
    Report::addFigure(mode, "  beside a program that writes one line", time / yardstick, "x", Report::NoLimit);
    return time;
}

/// A line that goes to another process and comes back.
double echo()
{
    ChildProcess program({"cat"});
    const double start = nowInNanoseconds();
    for (int line = 0; line < Keys; ++line) {
        program.write(KeyLines[0]);
        program.read();
    }
    return (nowInNanoseconds() - start) / Keys;
}

double measureKeys(const std::string& mode)
{
    const double yardstick = echo();
    ChildProcess phone(telephone());
    waitForFirstScreen(phone);
    const double before = phone.privateMemory();
    const double start = nowInNanoseconds();
    for (int key = 0; key < Keys; ++key)
        command(phone, KeyLines[static_cast<std::size_t>(key) % std::size(KeyLines)]);
    const double time = (nowInNanoseconds() - start) / Keys;
    Report::addFigure(mode, "telephone: keys by the control channel", 1e9 / time, "a second", Report::NoLimit);
    Report::addFigure(mode, "  each beside a line through another process", time / yardstick, "x", Report::NoLimit);
    Report::addFigure(mode, "telephone: memory of its own", before, "bytes", Report::NoLimit);
    Report::addFigure(mode, "  more after the keys", phone.privateMemory() - before, "bytes", Report::NoLimit);
    return time;
}

}

void registerTelephoneBenchmarks(const std::string& mode)
{
    registerRounds(mode, "telephone, first paint", 1, [mode] { return measureStart(mode); });
    registerRounds(
        mode, "telephone, keys", Keys, [mode] { return measureKeys(mode); }, 3);
}
