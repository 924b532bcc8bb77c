#pragma once

#include <functional>
#include <string>

namespace DisplayAPI {
class Display;
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

    /// The script that `--tour` plays, in the language of script files. Without one, the tour shows the first
    /// screen. Returns the simulator itself.
    PhoneSimulator& setTour(std::string script);

    /// Runs the phonelet until the user or the script leaves, and gives the exit code of the program: 0, 1 after
    /// a failed step or a failed phonelet, 2 for an option, script, or font that can't be used.
    int run(const Phonelet& phonelet);

private:
    int mArgumentCount;
    const char* const* mArguments;
    std::string mTour;
};
