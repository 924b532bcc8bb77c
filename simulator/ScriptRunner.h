#pragma once

#include "Script.h"

#include <chrono>
#include <iosfwd>
#include <string>

namespace Simulator {

class GoldenFolder;
class Phone;
class ScreenWatch;
struct Snapshot;

/// Plays a script on a telephone.
class ScriptRunner {
public:
    struct Settings {
        std::chrono::milliseconds patience{5000}; ///< How long an expected text may take.
        int scale = 4;                            ///< Of the pictures.
        GoldenFolder* goldens = nullptr;          ///< What the pictures should be, if somebody wants to know.
    };

    /// What the script prints goes to `output`, a line for each failed step to `errors`.
    ScriptRunner(Phone& phone, const Settings& settings, std::ostream& output, std::ostream& errors);

    /// Plays every step, also after a failed one. Returns how many failed; none are played once the phonelet
    /// has ended. A golden that no step has asked for is a failure too. Threads: not the GUI thread.
    int run(const Script& script);

private:
    /// Plays the step; a failure's reason, or nothing.
    std::string play(const Step& step);
    std::string playChecked(const Step& step);
    void show();
    std::string expect(const Step& step, const ScreenWatch& watch);
    std::string expectOnDesktop(const Step& step);
    std::string shoot(const Step& step);
    int reportUnusedGoldens(const Script& script);
    std::string reasonUnless(bool hasAnswered);
    Snapshot settledScreen();

    Phone& mPhone;
    Settings mSettings;
    std::ostream& mOutput;
    std::ostream& mErrors;
    bool mIsStuck = false; // the telephone has not answered; it will not answer the next steps either
};

/// Prints the screen, drawn in a frame and as text.
void printScreen(const Snapshot& snapshot, std::ostream& output);

}
