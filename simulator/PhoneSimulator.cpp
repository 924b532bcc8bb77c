#include <PhoneSimulator/PhoneSimulator.h>

#include "Options.h"
#include "Phone.h"
#include "Picture.h"
#include "Script.h"
#include "ScriptRunner.h"
#include "SignalWatch.h"
#include "TerminalView.h"
#include "UsageError.h"

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

Phone::Settings phoneSettings(const Options& options)
{
    Phone::Settings settings;
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
        end(driven);
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
        end(driven);
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
