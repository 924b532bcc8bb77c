#include "DesktopProcess.h"

#include "ChildProcess.h"
#include "DesktopTalk.h"
#include "Printable.h"

#include <csignal>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

namespace Simulator {

namespace {

constexpr std::chrono::milliseconds EndLimit{2000};

/// A desktop that has gone must not take the telephone along.
void blockBrokenPipes()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

}

DesktopProcess::DesktopProcess(Settings settings)
    : mSettings(std::move(settings))
{
}

DesktopProcess::~DesktopProcess()
{
    end();
}

void DesktopProcess::start(Clock clock, std::chrono::milliseconds patience)
{
    mQueue.open();
    mThread = std::thread([this, clock, patience] { run(clock, patience); });
}

void DesktopProcess::end()
{
    mQueue.close();
    if (mThread.joinable())
        mThread.join();
}

std::string DesktopProcess::path() const
{
    if (mSettings.program.find('/') != std::string::npos)
        return mSettings.program;
    return std::filesystem::read_symlink("/proc/self/exe").replace_filename(mSettings.program).string();
}

std::vector<std::string> DesktopProcess::arguments(Clock clock) const
{
    std::vector<std::string> words = mSettings.arguments;
    words.insert(words.end(),
        {"--desktop", "--end-with-starter", "--control", "--clock", clock == Clock::Real ? "real" : "manual"});
    return words;
}

void DesktopProcess::run(Clock clock, std::chrono::milliseconds patience)
{
    blockBrokenPipes();
    const auto report = [this](const std::string& what) {
        std::cerr << printable(mSettings.starter + ": the desktop " + mSettings.program + " " + what) + "\n"
                  << std::flush;
    };
    std::string trouble;
    try {
        ChildProcess child(path(), arguments(clock));
        trouble = DesktopTalk(child, mQueue, {mWatch, patience, report}).run();
        if (trouble.empty() && !child.waitForEnd(EndLimit))
            trouble = "has not ended for 2 s; it was killed";
    } catch (const std::system_error& error) {
        trouble = "can't be started: " + error.code().message();
    }
    mQueue.close();
    if (!trouble.empty())
        report(trouble);
    mWatch.clear();
    mWatch.end();
}

}
