#include <PhoneSimulator/PhoneSimulator.h>

#include "Options.h"
#include "Phone.h"
#include "Picture.h"
#include "Script.h"
#include "ScriptRunner.h"
#include "SignalWatch.h"
#include "TerminalView.h"
#include "UsageError.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace Simulator {

namespace {

constexpr int Success = 0;
constexpr int Failure = 1;
constexpr int BadUsage = 2;

using Steps = std::vector<CustomStep>;

Phone::Settings phoneSettings(const Options& options, const Steps& steps)
{
    Phone::Settings settings;
    settings.steps = steps;
    settings.fontFile = options.font;
    settings.hardware = options.hardware;
    if (options.mode != Options::Mode::Terminal)
        settings.clock = Phone::ClockKind::Manual;
    return settings;
}

/// Ends a phonelet for which nobody waits at a terminal. One that hangs must not keep a script running for ever.
void end(Phone& phone)
{
    constexpr int attempts = 10; // a phonelet may run its loop several times
    for (int attempt = 0; attempt < attempts && !phone.watch().hasEnded(); ++attempt) {
        phone.quit();
        phone.watch().waitFor([](const Snapshot&) { return false; }, std::chrono::seconds(1));
    }
    if (phone.watch().hasEnded())
        return;
    std::cerr << "phone: the phonelet does not end" << std::endl;
    std::_Exit(Failure);
}

void check(const Steps& steps)
{
    constexpr int functionKeys = 8;
    for (const CustomStep& step : steps) {
        if (!step.function || !canNameStep(step.name) || step.functionKey < 0 || step.functionKey > functionKeys)
            throw UsageError("\"" + step.name + "\" can't be a step of the phonelet's own");
        if (step.functionKey > 0 && std::ranges::count(steps, step.functionKey, &CustomStep::functionKey) > 1)
            throw UsageError("two steps want the function key F" + std::to_string(step.functionKey));
    }
}

std::vector<std::string> namesOf(const Steps& steps)
{
    std::vector<std::string> names;
    for (const CustomStep& step : steps)
        names.push_back(step.name);
    return names;
}

int runTerminal(const Options& options, const Steps& steps, const Phonelet& phonelet)
{
    SignalWatch signals;
    Phone phone(phoneSettings(options, steps));
    TerminalView view(phone, signals);
    phone.run(phonelet, [&view](Phone&) { view.run(); });
    return Success;
}

int runScript(const Options& options, const Steps& steps, const Script& script, const Phonelet& phonelet)
{
    Phone phone(phoneSettings(options, steps));
    int failures = 0;
    phone.run(phonelet, [&](Phone& driven) {
        failures = ScriptRunner(driven, {options.patience, options.scale}, std::cout, std::cerr).run(script);
        end(driven);
    });
    return failures == 0 ? Success : Failure;
}

int runOnce(const Options& options, const Steps& steps, const Phonelet& phonelet)
{
    Phone phone(phoneSettings(options, steps));
    phone.run(phonelet, [&options](Phone& driven) {
        driven.settle();
        const Snapshot snapshot = driven.watch().snapshot();
        if (options.text)
            std::cout << snapshot.text << std::flush;
        if (!options.shot.empty())
            writePicture(drawPicture(snapshot.screen, options.scale), options.shot);
        end(driven);
    });
    return Success;
}

int runTour(const Options& options, const Steps& steps, const std::string& tour, const Phonelet& phonelet)
{
    std::istringstream input(tour.empty() ? "show\n" : tour);
    return runScript(options, steps, parseScript(input, "tour", namesOf(steps)), phonelet);
}

bool hasTerminal()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

int runAsAsked(const Options& options, const Steps& steps, const std::string& tour, const Phonelet& phonelet)
{
    check(steps);
    switch (options.mode) {
    case Options::Mode::Help: std::cout << options.help; return Success;
    case Options::Mode::Terminal:
        if (hasTerminal())
            return runTerminal(options, steps, phonelet);
        break;
    case Options::Mode::Script: return runScript(options, steps, readScript(options.script, namesOf(steps)), phonelet);
    case Options::Mode::Once: return runOnce(options, steps, phonelet);
    case Options::Mode::Tour: break;
    }
    Options tourOptions = options;
    tourOptions.mode = Options::Mode::Tour;
    return runTour(tourOptions, steps, tour, phonelet);
}

}

}

PhoneSimulator::PhoneSimulator(int argc, const char* const* argv)
    : mArgumentCount(argc)
    , mArguments(argv)
{
}

PhoneSimulator& PhoneSimulator::setTour(std::string script)
{
    mTour = std::move(script);
    return *this;
}

PhoneSimulator& PhoneSimulator::onStep(const std::string& name, StepFunction function, int functionKey)
{
    std::erase_if(mSteps, [&name](const OwnStep& step) { return step.name == name; });
    mSteps.push_back({name, std::move(function), functionKey});
    return *this;
}

int PhoneSimulator::run(const Phonelet& phonelet)
{
    Simulator::Steps steps;
    for (const OwnStep& step : mSteps)
        steps.push_back({step.name, step.function, step.functionKey});
    try {
        return Simulator::runAsAsked(Simulator::parseOptions(mArgumentCount, mArguments), steps, mTour, phonelet);
    } catch (const Simulator::UsageError& error) {
        std::cerr << "phone: " << error.what() << std::endl;
        return Simulator::BadUsage;
    } catch (const std::exception& error) {
        std::cerr << "phone: " << error.what() << std::endl;
        return Simulator::Failure;
    }
}
