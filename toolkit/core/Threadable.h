#pragma once

#include "Export.h"

#include <memory>
#include <string>

/// A job with a thread of its own. Derive, implement run(), and hand it to a Threader.
///
/// run() may delete the object, also while another thread is inside waitForThreadCompletion(): what the two
/// share is a body with a count of its own.
class TOOLKIT_EXPORT Threadable {
public:
    Threadable();
    virtual ~Threadable();
    Threadable(const Threadable&) = delete;
    Threadable& operator=(const Threadable&) = delete;

    virtual void run() = 0;
    virtual int getThreadPriorityForPlatform(int priority);
    virtual int type();

    /// The id of the calling thread: a number of the toolkit's own, never 0 and never given twice.
    static unsigned int currentThreadId();

    /// The id of the thread that runs this object; 0 until it has started.
    unsigned int threadId() const;

    /// Returns when run() has returned; at once if it was never started. Never call it from run().
    void waitForThreadCompletion();

private:
    friend class Threader;
    struct Body;
    std::shared_ptr<Body> mBody;
};

/// Starts threads.
class TOOLKIT_EXPORT Threader {
public:
    /// Runs `job` on a new joinable POSIX thread. `name` may be empty; `priority` goes through
    /// getThreadPriorityForPlatform() and counts where the scheduling policy of the caller knows it;
    /// `stackSize` 0 means the platform's own. run() may detach its thread.
    /// Returns false for a job that was started before, or if the platform gives no thread; run() is then not
    /// called.
    bool start(Threadable* job, const std::string& name, int priority, int stackSize);
};
