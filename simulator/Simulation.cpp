#include "Simulation.h"

#include "ControlServer.h"
#include "CutReport.h"
#include "GoldenFolder.h"
#include "Picture.h"
#include "Printable.h"
#include "RecordFile.h"
#include "Recorder.h"
#include "Restart.h"
#include "Script.h"
#include "ScriptRunner.h"
#include "SignalWatch.h"
#include "TerminalSession.h"
#include "TerminalView.h"
#include "UsageError.h"
#include "WakeSignal.h"
#include "WebServer.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <sys/prctl.h>
#include <unistd.h>
#include <utility>

namespace Simulator {

namespace {

void check(const std::vector<CustomStep>& steps)
{
    constexpr int functionKeys = 8;
    for (const CustomStep& step : steps) {
        if (!step.function || !canNameStep(step.name) || ControlCommands::isCommand(step.name) || step.functionKey < 0
            || step.functionKey > functionKeys)
            throw UsageError("\"" + step.name + "\" can't be a step of the phonelet's own");
        if (step.functionKey > 0 && std::ranges::count(steps, step.functionKey, &CustomStep::functionKey) > 1)
            throw UsageError("two steps want the function key F" + std::to_string(step.functionKey));
    }
}

bool hasTerminal()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

/// For a process in which something is still at work that nobody can end.
[[noreturn]] void exitNow(int code)
{
    std::fflush(nullptr);
    std::cout << std::flush;
    std::_Exit(code);
}

int codeOf(int signal)
{
    return signal == 0 ? Simulation::Success : SignalWatch::ExitCodes + signal;
}

}

Simulation::Simulation(Options options, std::vector<CustomStep> steps, std::string tour, Phonelet phonelet,
    std::shared_ptr<DesktopProcess> desktop)
    : mOptions(std::move(options))
    , mSteps(std::move(steps))
    , mTour(std::move(tour))
    , mPhonelet(std::move(phonelet))
    , mDesktop(std::move(desktop))
{
    check(mSteps);
}

int Simulation::run()
{
    // The end of its input tells a desktop that its telephone has gone, but not one that is stopped or hangs.
    if (mOptions.endsWithStarter)
        prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (!mOptions.reportsCuts)
        return runMode();
    const CutReport cuts;
    const int code = runMode();
    cuts.print(std::cerr);
    return code;
}

int Simulation::runMode()
{
    switch (mOptions.mode) {
    case Options::Mode::Help: std::cout << mOptions.help; return Success;
    case Options::Mode::Terminal:
        if (hasTerminal())
            return runTerminal();
        if (!mOptions.record.empty())
            throw UsageError("--record needs a terminal, or --control");
        return runTour();
    case Options::Mode::Script: return runScript(readScript(mOptions.script, stepNames()));
    case Options::Mode::Control: return runControl();
    case Options::Mode::Serve: return runServe();
    case Options::Mode::Once: return runOnce();
    case Options::Mode::Tour: return runTour();
    }
    return Failure;
}

Phone::Settings Simulation::settings(Phone::ClockKind clock) const
{
    // Who has no patience with a text has not said that the telephone hangs.
    constexpr std::chrono::milliseconds leastPatience{1000};
    Phone::Settings settings;
    settings.steps = mSteps;
    settings.fontFile = mOptions.font;
    settings.hardware = mOptions.hardware;
    settings.application = mOptions.application;
    settings.softwareType = mOptions.softwareType;
    settings.desktop = mDesktop;
    settings.clock = clock;
    settings.patience = std::max(mOptions.patience, leastPatience);
    return settings;
}

std::vector<std::string> Simulation::stepNames() const
{
    std::vector<std::string> names;
    for (const CustomStep& step : mSteps)
        names.push_back(step.name);
    return names;
}

/// Runs the phonelet with a driver, for which it must have started.
int Simulation::drive(Phone& phone, const Driver& driver)
{
    int code = Failure;
    phone.run(mPhonelet, [&](Phone& driven) {
        if (driven.finishPosted()) {
            code = driver(driven);
        } else {
            code = Failure;
            std::cerr << mOptions.program << ": " << driven.trouble() << std::endl;
        }
        end(driven, code);
    });
    return code;
}

/// Ends a phonelet for which nobody waits at a terminal. One that hangs must not keep a program running for ever.
void Simulation::end(Phone& phone, int code) const
{
    const bool hasEnded = phone.end();
    const std::string late = phone.lateStep();
    if (hasEnded && late.empty())
        return;
    if (code == Success && !late.empty())
        std::cerr << mOptions.program << ": " << late << std::endl;
    else if (code == Success)
        std::cerr << mOptions.program << ": the phonelet does not end: display.exec() or what stands behind it has not "
                  << "returned for " << inSeconds(phone.patience()) << std::endl;
    exitNow(std::max(code, Failure));
}

/// The same, when a command of the control channel may be stuck in the phonelet: then nothing can be cleaned up.
void Simulation::leave(Phone& phone, int code, bool isStuck) const
{
    if (isStuck)
        std::cerr << mOptions.program << ": a command has not ended; it is left" << std::endl;
    end(phone, isStuck ? std::max(code, Failure) : code);
    if (isStuck)
        std::_Exit(std::max(code, Failure));
}

std::unique_ptr<RecordFile> Simulation::recordFile() const
{
    return mOptions.record.empty() ? nullptr : RecordFile::create(mOptions.record, mOptions.command);
}

int Simulation::runTerminal()
{
    SignalWatch signals(SignalWatch::Of::Terminal);
    const std::unique_ptr<RecordFile> record = recordFile();
    Phone phone(settings(record ? Phone::ClockKind::Manual : Phone::ClockKind::Real));
    int signal = 0;
    {
        WakeSignal wake;
        TerminalSession session([&wake] { wake.set(); });
        TerminalView view(phone, signals, session, wake);
        phone.run(mPhonelet, [&](Phone& driven) {
            std::optional<Recorder> recorder;
            if (record)
                recorder.emplace(driven, *record, Recorder::ClockMover::Recorder);
            signal = view.run();
        });
    }
    if (!phone.hasRun()) {
        std::cerr << mOptions.program << ": " << phone.trouble() << std::endl;
        return Failure;
    }
    if (const std::string late = phone.lateStep(); !late.empty()) {
        std::cerr << mOptions.program << ": " << late << std::endl;
        exitNow(std::max(codeOf(signal), Failure));
    }
    return codeOf(signal);
}

int Simulation::runScript(const Script& script)
{
    std::optional<GoldenFolder> goldens;
    if (!mOptions.golden.empty())
        goldens.emplace(
            mOptions.golden, mOptions.updatesGoldens ? GoldenFolder::Mode::Update : GoldenFolder::Mode::Compare);
    Phone phone(settings(Phone::ClockKind::Manual));
    return drive(phone, [&](Phone& driven) {
        ScriptRunner runner(
            driven, {mOptions.patience, mOptions.scale, goldens ? &*goldens : nullptr}, std::cout, std::cerr);
        const int failures = runner.run(script);
        if (goldens && goldens->hasChanged())
            std::cerr << mOptions.program << ": --update takes over what the screens show now" << std::endl;
        return failures == 0 ? Success : Failure;
    });
}

int Simulation::runTour()
{
    std::istringstream input(mTour.empty() ? "show\n" : mTour);
    return runScript(parseScript(input, "tour", stepNames()));
}

int Simulation::runOnce()
{
    Phone phone(settings(Phone::ClockKind::Manual));
    return drive(phone, [this](Phone& driven) {
        if (const std::string reason = driven.waitForScreen(); !reason.empty()) {
            std::cerr << mOptions.program << ": " << reason << std::endl;
            return Failure;
        }
        driven.settle();
        const Snapshot snapshot = driven.watch().snapshot();
        if (mOptions.text)
            std::cout << snapshot.text << std::flush;
        if (!mOptions.shot.empty())
            writePicture(drawPicture(snapshot.screen, mOptions.scale), mOptions.shot);
        return Success;
    });
}

int Simulation::runControl()
{
    SignalWatch signals(SignalWatch::Of::Program);
    Phone phone(settings(mOptions.isClockReal ? Phone::ClockKind::Real : Phone::ClockKind::Manual));
    const std::unique_ptr<RecordFile> record = recordFile();
    ControlServer server(phone, signals, mOptions.control,
        {mOptions.patience, mOptions.scale, mOptions.programAndVersion, mOptions.variant});
    if (!mOptions.control.empty())
        std::cerr << mOptions.program << ": the control channel is at " << mOptions.control << std::endl;
    int code = Failure;
    phone.run(mPhonelet, [&](Phone& driven) {
        std::optional<Recorder> recorder;
        if (record)
            recorder.emplace(driven, *record, Recorder::ClockMover::Driver);
        code = codeOf(server.run());
        if (!server.isStuck())
            recorder.reset();
        leave(driven, code, server.isStuck());
    });
    if (!phone.hasRun()) {
        std::cerr << mOptions.program << ": " << phone.trouble() << std::endl;
        return Failure;
    }
    return code;
}

int Simulation::runServe()
{
    SignalWatch signals(SignalWatch::Of::Program);
    Phone phone(settings(Phone::ClockKind::Real));
    // The glass of a desktop is the same on every telephone.
    const bool canSwitch = mOptions.application != "DesktopPhonelet";
    WebServer server(phone, signals,
        {mOptions.port, {mOptions.patience, mOptions.scale, mOptions.programAndVersion, mOptions.variant}, canSwitch});
    std::cout << mOptions.program << ": the telephone is at " << server.address() << "; Ctrl-C ends it" << std::endl;
    const int code = drive(phone, [&](Phone& driven) { return servePages(driven, server, signals); });
    const int late = signals.take(); // it has come while the phonelet ended
    if (late != 0)
        Restart::cancel();
    return late != 0 ? codeOf(late) : code;
}

/// When a page wants another variant, the phonelet ends in order, and the process begins anew.
int Simulation::servePages(Phone& phone, WebServer& server, const SignalWatch& signals) const
{
    const int code = codeOf(server.run());
    const std::optional<Variant> wanted = server.wantedVariant();
    if (!wanted || code != Success) {
        if (server.isStuck())
            leave(phone, code, true);
        return code;
    }
    std::vector<std::string> arguments = argumentsFor(*wanted, server.port(), Restart::ownArguments());
    if (server.isStuck() || !phone.end()) {
        std::cerr << mOptions.program << ": the phonelet does not end; it is left, and begins anew" << std::endl;
        signals.release();
        Restart::now(arguments);
    }
    Restart::atExit(std::move(arguments));
    return code;
}

}
