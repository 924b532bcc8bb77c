#pragma once

#include "Options.h"
#include "Phone.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Simulator {

class RecordFile;
class SignalWatch;
class WebServer;
struct Script;

/// A phonelet run as the command line asks. Each way to run it is an operation that answers the exit code of the
/// program; errors are thrown.
class Simulation {
public:
    static constexpr int Success = 0;
    static constexpr int Failure = 1;
    static constexpr int BadUsage = 2;

    /// Throws UsageError for steps of the phonelet that can't be.
    Simulation(Options options, std::vector<CustomStep> steps, std::string tour, Phonelet phonelet,
        std::shared_ptr<DesktopProcess> desktop);

    int run();

private:
    using Driver = std::function<int(Phone& phone)>;

    int runMode();
    Phone::Settings settings(Phone::ClockKind clock) const;
    int runTerminal();
    int runScript(const Script& script);
    int runTour();
    int runOnce();
    int runControl();
    int runServe();
    int servePages(Phone& phone, WebServer& server, const SignalWatch& signals) const;
    int drive(Phone& phone, const Driver& driver);
    void end(Phone& phone, int code) const;
    void leave(Phone& phone, int code, bool isStuck) const;
    std::unique_ptr<RecordFile> recordFile() const;
    std::vector<std::string> stepNames() const;

    Options mOptions;
    std::vector<CustomStep> mSteps;
    std::string mTour;
    Phonelet mPhonelet;
    std::shared_ptr<DesktopProcess> mDesktop; // may be null
};

}
