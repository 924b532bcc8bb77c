#pragma once

#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}
namespace Simulator {
class DesktopProcess;
}

/// An application of the telephone: it builds its screens on the display, runs `display.exec()`, and lets its
/// screens go before it returns.
///
/// It is called on the GUI thread, with a display that nothing has been shown on yet.
using Phonelet = std::function<void(DisplayAPI::Display& display)>;

/// The telephone on a workstation, with a phonelet in it.
///
///     int main(int argc, char** argv) { return PhoneSimulator(argc, argv).run(myPhonelet); }
///
/// The command line decides how the telephone is worked: by the keys of a terminal, by a script, or for one
/// picture or text. `--help` lists the options.
///
/// Threads: the thread that calls run() becomes the GUI thread. There is one telephone in a process at a time.
class PhoneSimulator {
public:
    /// Keeps the arguments, which run() reads.
    PhoneSimulator(int argc, const char* const* argv);

    /// The version of the program, which --version prints behind its name. Returns the simulator itself.
    PhoneSimulator& setVersion(std::string version);

    /// The script that `--tour` plays, in the language of script files. Without one, the tour shows the first
    /// screen. Returns the simulator itself.
    PhoneSimulator& setTour(std::string script);

    /// Names the application of the telephone that the phonelet is; it has no name at first. "CallViewPhonelet" has
    /// the labels of the function keys on a display of three lines. `--desktop` goes before the name. Returns the
    /// simulator itself.
    PhoneSimulator& setApplicationName(std::string name);

    /// What a step of the phonelet's own does; the argument is what stands behind its name in the script.
    using StepFunction = std::function<void(const std::string& argument)>;

    /// Adds a step to those of the scripts, for what reaches a telephone from outside: a line `NAME ARGUMENT` calls
    /// the function, and pressing function key 1 to 8 too, with an empty argument. Without a key (0) it is for
    /// scripts alone. A key that no step has taken stays a function key of the telephone. A second step of the same
    /// name takes the place of the first. Returns the simulator itself.
    ///
    /// The function is called off the GUI thread, one call at a time, between the first turn of the phonelet's loop
    /// and the end of run(); it should return soon. What it throws fails the script's step; in the terminal it ends
    /// the telephone. One that does not return for the time of `--timeout` is a failure too: nothing else is called
    /// meanwhile, and if it is still at work at the end, the process ends with it. So what it uses is made before run()
    /// and may find the phonelet's screens gone.
    /// Errors: an empty function, a name that has blanks or that a step of every script or a command of the control
    /// channel has, a key outside 0 to 8 and one key for two steps end run() with 2.
    PhoneSimulator& onStep(const std::string& name, StepFunction function, int functionKey = 0);

    /// Gives the telephone a desktop: another program with a PhoneSimulator in it, which stands beside this one. It runs
    /// as the application "DesktopPhonelet" in a process of its own while the phonelet runs, and ends with it; its strip
    /// of glass is shown above that of the phonelet. A name with a slash is a path. A desktop that can't be started, or
    /// dies, is missing, and that is said on standard error. Returns the simulator itself.
    PhoneSimulator& setDesktop(std::string program);

    /// Calls a step that the desktop has registered with onStep(), behind those that were called before. Returns at
    /// once; without a desktop nothing happens. Threads: any, while run() runs.
    void tellDesktop(const std::string& step, const std::string& argument = "");

    /// The time of day of the telephone, in seconds since 1970. Where scripts move the clock it starts at nine o'clock
    /// on the same Monday each time, so that what a screen shows of it can be compared. Threads: any.
    static std::time_t now();

    /// Runs the phonelet until the user or the script leaves, and gives the exit code of the program: 0, 1 after
    /// a failed step or a failed phonelet, 2 for an option, script, or font that can't be used, 128 and the number of
    /// the signal that ended it. A phonelet that does not return when its telephone must end is ended with the
    /// process.
    int run(const Phonelet& phonelet);

private:
    int mArgumentCount;
    const char* const* mArguments;
    std::string mVersion;
    std::string mTour;
    std::string mApplicationName;
    std::string mDesktopProgram;
    std::shared_ptr<Simulator::DesktopProcess> mDesktop;
    struct OwnStep {
        std::string name;
        StepFunction function;
        int functionKey;
    };
    std::vector<OwnStep> mSteps;
};
