#pragma once

#include "DesktopQueue.h"
#include "ScreenWatch.h"

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace Simulator {

/// The desktop of a telephone: another program, which runs in a process of its own and shows the strip above the glass.
///
/// A thread starts the program with `--desktop --control`, and talks the language of the control channel with it. What
/// goes wrong with it is said on standard error, once; then it is ended, and the telephone goes on without.
///
/// Threads: any, but for start() and end().
class DesktopProcess {
public:
    struct Settings {
        std::string starter;                ///< Who says what is the matter.
        std::string program;                ///< A name with a slash is a path; another one stands beside this program.
        std::vector<std::string> arguments; ///< Of the telephone, for the desktop too.
    };

    explicit DesktopProcess(Settings settings);

    /// Ends the program.
    ~DesktopProcess();
    DesktopProcess(const DesktopProcess&) = delete;
    DesktopProcess& operator=(const DesktopProcess&) = delete;

    enum class Clock { Real, Manual };

    /// Starts the program, and returns at once. `patience` is how long an answer may take.
    void start(Clock clock, std::chrono::milliseconds patience);

    /// Ends the program: by closing its input, and if that does not help, by force. Returns when it has ended.
    void end();

    /// Calls a step of the program, behind what it was told before. Returns at once; without a program nothing happens.
    void tell(const std::string& step, const std::string& argument) { mQueue.tell(step, argument); }

    /// Moves its clock, in the same way.
    void advance(std::chrono::milliseconds time) { mQueue.advance(time); }

    /// Waits until what was told before is in watch(). False without a program that runs and answers.
    bool finish() { return mQueue.finish(FinishLimit); }

    /// What it shows. The number is 0 before the first screen, and when the program has gone.
    ScreenWatch& watch() { return mWatch; }

private:
    static constexpr std::chrono::seconds FinishLimit{60}; // each answer has its own, which is shorter

    void run(Clock clock, std::chrono::milliseconds patience);
    std::string path() const;
    std::vector<std::string> arguments(Clock clock) const;

    Settings mSettings;
    DesktopQueue mQueue;
    ScreenWatch mWatch;
    std::thread mThread; // while the program runs
};

}
