#include <PhoneSimulator/PhoneSimulator.h>

#include "Options.h"
#include "Phone.h"
#include "Picture.h"
#include "Script.h"
#include "ScriptRunner.h"
#include "SignalWatch.h"
#include "TerminalView.h"
#include "UsageError.h"

#include <iostream>
#include <sstream>
#include <unistd.h>

namespace Simulator {

namespace {

constexpr int Success = 0;
constexpr int Failure = 1;
constexpr int BadUsage = 2;

Phone::Settings phoneSettings(const Options& options)
{
    Phone::Settings settings;
    settings.fontFile = options.font;
    settings.hardware = options.hardware;
    if (options.mode != Options::Mode::Terminal)
        settings.clock = Phone::ClockKind::Manual;
    return settings;
}

int runTerminal(const Options& options, const Phonelet& phonelet)
{
    SignalWatch signals;
    Phone phone(phoneSettings(options));
    TerminalView view(phone, signals);
    phone.run(phonelet, [&view](Phone&) { view.run(); });
    return Success;
}

int runScript(const Options& options, const Script& script, const Phonelet& phonelet)
{
    Phone phone(phoneSettings(options));
    int failures = 0;
    phone.run(phonelet, [&](Phone& driven) {
        failures = ScriptRunner(driven, {options.patience, options.scale}, std::cout, std::cerr).run(script);
    });
    return failures == 0 ? Success : Failure;
}

int runOnce(const Options& options, const Phonelet& phonelet)
{
    Phone phone(phoneSettings(options));
    phone.run(phonelet, [&options](Phone& driven) {
        driven.settle();
        const Snapshot snapshot = driven.watch().snapshot();
        if (options.text)
            std::cout << snapshot.text << std::flush;
        if (!options.shot.empty())
            writePicture(drawPicture(snapshot.screen, options.scale), options.shot);
    });
    return Success;
}

int runTour(const Options& options, const std::string& tour, const Phonelet& phonelet)
{
    std::istringstream input(tour.empty() ? "show\n" : tour);
    return runScript(options, parseScript(input, "tour"), phonelet);
}

bool hasTerminal()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

int runAsAsked(const Options& options, const std::string& tour, const Phonelet& phonelet)
{
    switch (options.mode) {
    case Options::Mode::Help: std::cout << options.help; return Success;
    case Options::Mode::Terminal:
        if (hasTerminal())
            return runTerminal(options, phonelet);
        break;
    case Options::Mode::Script: return runScript(options, readScript(options.script), phonelet);
    case Options::Mode::Once: return runOnce(options, phonelet);
    case Options::Mode::Tour: break;
    }
    Options tourOptions = options;
    tourOptions.mode = Options::Mode::Tour;
    return runTour(tourOptions, tour, phonelet);
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

int PhoneSimulator::run(const Phonelet& phonelet)
{
    try {
        return Simulator::runAsAsked(Simulator::parseOptions(mArgumentCount, mArguments), mTour, phonelet);
    } catch (const Simulator::UsageError& error) {
        std::cerr << "phone: " << error.what() << std::endl;
        return Simulator::BadUsage;
    } catch (const std::exception& error) {
        std::cerr << "phone: " << error.what() << std::endl;
        return Simulator::Failure;
    }
}
