#pragma once

#include <Semaphore.h>
#include <Threadable.h>

#include <atomic>

namespace DisplayAPI {

/// A job for a DisplayThread, which deletes it after run().
class Runnable {
public:
    virtual ~Runnable() = default;
    virtual void run() = 0;
};

/// A worker: sleeps until it gets a job, runs it, and then waits for the next one or ends.
///
/// Ownership: it deletes its jobs. One that ends by its own call of destroyThread(), as every thread outside of
/// the pool does behind its job, deletes itself; whoever ends it from another thread deletes it behind the call.
class DisplayThread : public Threadable {
public:
    /// `pooled`: it waits for the next job behind each job.
    explicit DisplayThread(bool pooled);

    /// The thread must have ended, or not have been started.
    ~DisplayThread() override;

    void run() override;

    /// Hands a job over; null is ignored. A job that comes while another one runs is kept and runs next; one that
    /// has not begun by then is replaced and deleted. Threads: any.
    virtual void executeRequest(Runnable* runnable);

    /// Ends the thread behind the job at hand. From another thread it returns when the thread has ended; a second
    /// call returns at once. Threads: any.
    virtual void destroyThread();

    virtual void setBusy();
    virtual bool busy();

    /// Runs the job at hand, on this thread.
    virtual void execute();

    /// Called behind each job.
    virtual void clearRequestData();

private:
    std::atomic<bool> mBusy = false;
    const bool mPooled;
    std::atomic<bool> mStopping = false;
    bool mEndsItself = false; // of this thread
    Wait mWait;
    std::atomic<Runnable*> mRunnable = nullptr;
};

}
