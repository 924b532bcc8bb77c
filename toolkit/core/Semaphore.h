#pragma once

#include "Export.h"
#include "Gate.h"
#include "ThreadSafety.h"

#include <atomic>

/// A counting lock. A plain one has no owner: it may be taken on one thread and given on another. A
/// re-entrant one belongs to the thread that took it, which may take it again; the last give() frees it.
///
/// A waiter may destroy it right after waking.
class TOOLKIT_EXPORT CAPABILITY("semaphore") Semaphore {
public:
    enum State : int {
        NOT_AVAILABLE = 0,
        AVAILABLE = 1,
    };

    explicit Semaphore(int state, int maximum = 1, bool reentrant = false);
    Semaphore(const Semaphore&) = delete;
    Semaphore& operator=(const Semaphore&) = delete;

    /// Takes it, waiting `milliseconds` at most; -1 means without limit. False if the time ran out, or if the
    /// wait was abandoned.
    bool take(int milliseconds = -1) { return mReentrant ? takeAsOwner(milliseconds) : mGate.pass(milliseconds); }

    /// Takes a plain one, and tells how the wait ended.
    Gate::End takeWithin(int milliseconds) { return mGate.passWithin(milliseconds); }

    /// Gives it back; never above the maximum.
    void give()
    {
        if (!mReentrant || leaveAsOwner())
            mGate.open();
    }

    /// Lets a waiter go whose request will never be answered: its take() returns false.
    void abandon() { mGate.abandon(); }

private:
    bool takeAsOwner(int milliseconds);
    bool leaveAsOwner();

    Gate mGate;
    const bool mReentrant;
    std::atomic<unsigned int> mOwner = 0;
    std::atomic<int> mDepth = 0;
};

/// A take of a semaphore for as long as a scope lasts.
class TOOLKIT_EXPORT SCOPED_CAPABILITY CriticalSection {
public:
    explicit CriticalSection(Semaphore& semaphore) ACQUIRE(semaphore)
        : mSemaphore(semaphore)
    {
        mSemaphore.take(-1);
    }
    ~CriticalSection() RELEASE() { mSemaphore.give(); }
    CriticalSection(const CriticalSection&) = delete;
    CriticalSection& operator=(const CriticalSection&) = delete;

private:
    Semaphore& mSemaphore;
};

/// The place where one thread waits for one answer. A release before wait() is kept, two releases merge,
/// and a wait that was let go is closed again.
class TOOLKIT_EXPORT Wait {
public:
    /// Waits for release(). False if the answer will never come.
    bool wait() { return mGate.pass(); }

    /// Waits so long at most, and tells how that ended.
    Gate::End waitWithin(int milliseconds) { return mGate.passWithin(milliseconds); }

    void release() { mGate.open(); }
    void abandon() { mGate.abandon(); }

private:
    Gate mGate;
};
