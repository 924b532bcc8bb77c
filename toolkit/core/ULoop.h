#pragma once

#include "Export.h"
#include "Gate.h"
#include "UAgent.h"

#include <atomic>
#include <cstdint>
#include <ctime>
#include <map>
#include <utility>

class UEvent;
class UTimer;

/// The event loop: queue, timers and clock. There is one for the process, and it is never destroyed.
///
/// A pass runs what was posted before it, in the order of posting; then the timers that are due, in the
/// order of their time; then the painting, if something asked for it. What is posted meanwhile belongs to
/// the next pass.
class TOOLKIT_EXPORT ULoop {
public:
    static ULoop& instance();

    /// Takes the event over and runs it on the GUI thread. After the end of exec() the queue is closed: the
    /// event is then destroyed at once, without process(). Threads: any.
    void post(UEvent* event);

    /// Opens the queue and runs until quit(); then closes the queue and destroys what is left in it, and returns 0.
    /// Inside itself it returns -1 at once. An exception of an event ends it too, and comes out.
    int exec();

    /// Ends exec() after the event in hand; without effect outside of it. Threads: GUI thread.
    void quit() { mQuit = mIsExecuting; }

    /// Runs one pass, for tests and the simulator. It neither opens nor closes the queue.
    void processEvents();

    /// Opens a closed queue again, for a new application.
    void open();

    /// Closes the queue and destroys what waits in it, for an application that ends without a loop. Inside
    /// exec() it ends that too.
    void close();

    /// Stops the clock, so that only advance() moves it; or lets it run again.
    void setManualClock(bool manual);

    /// Moves the stopped clock, and runs a pass at the time of every timer that becomes due on the way.
    void advance(std::uint64_t milliseconds);

    /// The clock in milliseconds; it never goes back.
    std::uint64_t now() const;

    /// The time of day, in seconds since 1970. While the clock is stopped that is nine o'clock on a Monday, and what
    /// advance() has added: so what a test shows of it is the same on every day. Threads: any.
    std::time_t wallClock() const;

    /// True while some timer is started.
    bool hasTimers() const { return !mTimers.empty(); }

    /// When the next timer is due, in milliseconds from now; -1 if none is started.
    std::int64_t timeToNextTimer() const;

private:
    friend class UTimer;
    using TimerKey = std::pair<std::uint64_t, std::uint64_t>; // due time, order of starting

    ULoop() = default;
    void runQueue();
    void runTimers();
    void sleep();
    void fetchQueue();
    bool hasWork() const;
    void moveTo(std::uint64_t time);
    static UEvent* inOrderOfPosting(UEvent* newest);
    static void destroyAll(UEvent* first);

    // Null, an event (the newest of a chain), or one of the two marks of the source file.
    std::atomic<UEvent*> mNewest = nullptr;
    Gate mGate;
    UEvent* mPass = nullptr; // what is left of the pass in hand, oldest first
    bool mQuit = false;
    bool mIsExecuting = false;
    bool mIsClockManual = false;
    std::uint64_t mManualTime = 0;
    std::uint64_t mManualStart = 0;
    std::atomic<std::time_t> mStoppedWallClock = 0; // 0 while the clock runs
    std::uint64_t mClockOffset = 0;                 // what advance() has added to the real clock
    std::uint64_t mTimerOrder = 0;
    std::map<TimerKey, UTimer*> mTimers;
};

/// A timer of the loop, in milliseconds. It repeats unless it is single shot. Threads: GUI thread only.
class TOOLKIT_EXPORT UTimer {
public:
    /// The expiry comes as timerEvent() of `agent`; a timer whose agent died never fires.
    explicit UTimer(UAgent* agent, unsigned long long interval = 0);
    ~UTimer();
    UTimer(const UTimer&) = delete;
    UTimer& operator=(const UTimer&) = delete;

    /// Takes effect at the next start().
    void setInterval(unsigned long long milliseconds) { mInterval = milliseconds; }
    void setSingleShot(bool singleShot) { mIsSingleShot = singleShot; }

    /// Starts the time; a running timer starts it anew.
    void start();
    void stop();
    bool isRunning() const { return mIsRunning; }

    /// The number that its events carry; never used twice.
    std::uint64_t id() const { return mId; }

private:
    friend class ULoop;

    std::uint64_t step() const;
    void schedule(std::uint64_t due);
    void fire(std::uint64_t now);

    UPointer<UAgent> mAgent;
    std::uint64_t mId;
    unsigned long long mInterval;
    ULoop::TimerKey mKey;
    bool mIsSingleShot = false;
    bool mIsRunning = false;
};
