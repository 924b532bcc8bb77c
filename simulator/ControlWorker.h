#pragma once

#include "WakeSignal.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace Simulator {

class ControlCommands;

/// Carries out commands of the control channel on a thread of its own, one after the other, so that whoever carries
/// the lines can go on listening. Threads: one user.
class ControlWorker {
public:
    /// `onAnswer` is called on the thread of the worker whenever an answer is there.
    explicit ControlWorker(ControlCommands& commands, std::function<void()> onAnswer = {});

    /// Cancels the command in hand, and waits until it has ended.
    ~ControlWorker();
    ControlWorker(const ControlWorker&) = delete;
    ControlWorker& operator=(const ControlWorker&) = delete;

    /// Begins with a line, while none is in hand.
    void begin(std::string line);

    /// True from begin() until the answer has been taken.
    bool isBusy() const { return mIsBusy; }

    /// Waits for the answer of the command in hand; false if it does not come.
    bool waitUntilDone(std::chrono::milliseconds limit);

    /// The answer, once it is there.
    std::optional<std::string> takeAnswer();

    /// Readable when an answer is there.
    int descriptor() const { return mWake.descriptor(); }

private:
    void run();

    ControlCommands& mCommands;
    std::function<void()> mOnAnswer;
    WakeSignal mWake;
    std::mutex mMutex;
    std::condition_variable mHasWork;
    std::optional<std::string> mLine;
    std::optional<std::string> mAnswer;
    bool mMustEnd = false;
    bool mIsBusy = false; // of the user's side
    std::thread mThread;
};

}
