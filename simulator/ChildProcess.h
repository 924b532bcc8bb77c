#pragma once

#include "Descriptor.h"

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Simulator {

/// A program that was started from here, with pipes to its standard input and output. Standard error is shared; nothing
/// else of this process is open in it.
///
/// It has a process group of its own: Ctrl-C in a terminal is for the process that has started it, and stops it by
/// closing the pipes. Whatever it has started itself in this group ends with it. Threads: one user.
class ChildProcess {
public:
    /// Throws std::system_error for a program that can't be started.
    ChildProcess(const std::string& path, const std::vector<std::string>& arguments);

    /// Kills it, if it still runs.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// The ends of the pipes on this side, to be taken once.
    Descriptor takeInput() { return std::move(mInput); }
    Descriptor takeOutput() { return std::move(mOutput); }

    /// Of the system, as long as it runs.
    pid_t number() const { return mProcess; }

    /// Readable when it has ended.
    int descriptor() const { return mEnd.number(); }

    /// Waits for its end; false if that does not come in time.
    bool waitForEnd(std::chrono::milliseconds limit);

    /// Ends it at once, and waits for that.
    void kill();

    /// How it has ended, such as "has ended with exit code 3". It must have.
    std::string howItEnded() const;

private:
    void reap();

    Descriptor mInput;  // what it reads is written there
    Descriptor mOutput; // what it writes is read there
    Descriptor mEnd;
    pid_t mProcess = 0;
    int mStatus = 0;
    bool mHasEnded = false;
};

}
