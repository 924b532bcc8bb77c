#pragma once

#include "PhoneObserver.h"

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

namespace Simulator {

class Phone;
class RecordFile;

/// Writes down what is done to a telephone, so that it can be played again: keys, steps and time, and in between the
/// screen text that has to be there.
///
/// A recorded telephone has a manual clock, so that the same happens at the same time when it is played. While a user
/// works it, the recorder moves that clock; it holds it while the phonelet answers a command, since the clock does not
/// move on meanwhile in a replay either.
/// Threads: one of its own.
class Recorder final : private PhoneObserver {
public:
    enum class ClockMover { Recorder, Driver };

    /// Make it when the telephone runs.
    Recorder(Phone& phone, RecordFile& file, ClockMover mover);

    /// What the screen has at the end has been written when the telephone was asked to end, or is written now.
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

private:
    void keyComes(int code, UGlobal::KeyState state) override;
    void stepComes(const std::string& name, const std::string& argument) override;
    void timeMoves(std::chrono::milliseconds time) override;
    void textCame(const std::string& text, bool isThere) override;
    void endComes() override;

    void run();
    void tick();
    bool isQuiet();
    void moveClock();
    void writePress();
    void writeTime();
    void writeScreen();
    void writeState();

    Phone& mPhone;
    RecordFile& mFile;
    ClockMover mMover;
    std::mutex mMutex;
    std::condition_variable mHasEnded;
    bool mMustEnd = false;
    std::chrono::milliseconds mTime{0}; // that has passed and is not written yet
    std::string mWrittenText;
    std::uint64_t mShown = 0;     // the number of the screen at the last look,
    std::uint64_t mDelivered = 0; // and of the last delivery
    bool mIsComplete = false;     // the session is over
    bool mIsAnswering = false;    // the phonelet has been told something, and the screen has not come to rest since
    int mPressed = 0;             // the key that is down, and whose press is not written yet
    std::thread mThread;
};

}
