#include <PhoneSimulator/PhoneSimulator.h>

#include "DesktopProcess.h"
#include "Options.h"
#include "Printable.h"
#include "Simulation.h"
#include "UsageError.h"

#include <ULoop.h>

#include <iostream>
#include <utility>

PhoneSimulator::PhoneSimulator(int argc, const char* const* argv)
    : mArgumentCount(argc)
    , mArguments(argv)
{
}

PhoneSimulator& PhoneSimulator::setVersion(std::string version)
{
    mVersion = std::move(version);
    return *this;
}

PhoneSimulator& PhoneSimulator::setApplicationName(std::string name)
{
    mApplicationName = std::move(name);
    return *this;
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

PhoneSimulator& PhoneSimulator::setDesktop(std::string program)
{
    mDesktopProgram = std::move(program);
    return *this;
}

void PhoneSimulator::tellDesktop(const std::string& step, const std::string& argument)
{
    if (mDesktop)
        mDesktop->tell(step, argument);
}

std::time_t PhoneSimulator::now()
{
    return ULoop::instance().wallClock();
}

int PhoneSimulator::run(const Phonelet& phonelet)
{
    using Simulator::Simulation;
    const auto report = [this](const std::exception& error) {
        std::cerr << Simulator::programName(mArgumentCount, mArguments) << ": " << Simulator::printable(error.what())
                  << std::endl;
    };
    std::vector<Simulator::CustomStep> steps;
    for (const OwnStep& step : mSteps)
        steps.push_back({step.name, step.function, step.functionKey});
    try {
        Simulator::Options options = Simulator::parseOptions(mArgumentCount, mArguments, mVersion);
        if (options.application.empty())
            options.application = mApplicationName;
        mDesktop = nullptr;
        if (!mDesktopProgram.empty() && options.wantsDesktop())
            mDesktop = std::make_shared<Simulator::DesktopProcess>(
                Simulator::DesktopProcess::Settings{options.program, mDesktopProgram, options.desktopArguments});
        return Simulation(std::move(options), std::move(steps), mTour, phonelet, mDesktop).run();
    } catch (const Simulator::UsageError& error) {
        report(error);
        return Simulation::BadUsage;
    } catch (const std::exception& error) {
        report(error);
        return Simulation::Failure;
    }
}
