#pragma once

#include "ControlClient.h"
#include "ControlRequest.h"
#include "DesktopQueue.h"

#include <chrono>
#include <functional>
#include <optional>
#include <set>
#include <string>

namespace Simulator {

class ChildProcess;
class ScreenWatch;

/// The talk with the program of a desktop, in the language of the control channel: one command after the other, each
/// with its answer, and between them the news that its screen has changed.
///
/// Whatever the program does, it can't keep the talk waiting for longer than the patience. Threads: one.
class DesktopTalk {
public:
    struct Settings {
        ScreenWatch& watch; ///< What it shows goes there.
        std::chrono::milliseconds patience;
        std::function<void(const std::string&)> report; ///< Says what it does wrong, behind its name.
    };

    DesktopTalk(ChildProcess& child, DesktopQueue& queue, Settings settings);

    /// Talks until the queue is closed; the end of this object closes the pipes. Answers what has gone wrong with the
    /// program, which then has ended, or nothing.
    std::string run();

private:
    using Command = DesktopQueue::Command;
    using Clock = std::chrono::steady_clock;

    void begin(const Command& command);
    void beginNext();
    void waitForSomething();
    void takeLine(const LineBuffer::Line& line);
    void takeAnswer(const Json& answer);
    void noteRefusal(const Command& command, const Json& answer);
    std::string howItWent();

    ChildProcess& mChild;
    DesktopQueue& mQueue;
    Settings mSettings;
    ControlClient mClient;
    std::optional<Command> mCommand;     // in hand
    bool mIsLookAsked = false;           // somebody waits for the look in hand
    bool mIsStale = false;               // the screen has changed since it was last looked at
    std::chrono::milliseconds mWaited{}; // for its answer
    std::chrono::milliseconds mLimit{};
    std::set<std::string> mRefused; // steps of which that was said
};

}
