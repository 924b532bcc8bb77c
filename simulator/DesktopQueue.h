#pragma once

#include "WakeSignal.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

namespace Simulator {

/// What a desktop is to be told, in the order in which it was said. It holds a thousand commands; what is said beyond
/// that takes the place of the oldest, since the newest tells how things are. Threads: any.
class DesktopQueue {
public:
    struct Command {
        enum class Kind {
            Watch, ///< Asks to be told of changes.
            Step,
            Advance,
            Look, ///< Asks for the screen.
        };
        Kind kind = Kind::Look;
        std::string step = {};
        std::string argument = {};
        std::chrono::milliseconds time{};
    };

    /// From now on it takes commands.
    void open();

    /// Takes no more, and releases those who wait.
    void close();

    // For those who tell

    void tell(const std::string& step, const std::string& argument);
    void advance(std::chrono::milliseconds time);

    /// Waits until the screen was looked at behind what was told before. False when that does not come in time, or the
    /// queue is closed.
    bool finish(std::chrono::milliseconds limit);

    // For the one who carries it out

    /// The next command, if there is one.
    std::optional<Command> take();

    /// A command of the kind Look has been carried out.
    void noteLook();

    bool isOpen() const;

    /// Readable when there is something to take, or the queue was closed.
    const WakeSignal& wake() const { return mWake; }

private:
    void add(Command command);

    WakeSignal mWake;
    mutable std::mutex mMutex;
    std::condition_variable mHasLooked;
    std::deque<Command> mCommands;
    std::uint64_t mLooksAsked = 0;
    std::uint64_t mLooksDone = 0;
    bool mIsOpen = false;
};

}
