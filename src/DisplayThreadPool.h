#pragma once

#include <Semaphore.h>
#include <Threadable.h>

#include <list>
#include <memory>

namespace DisplayAPI {

class DisplayThread;

/// The workers of the process. Up to a maximum they stay and are used in turn; a job beyond that gets a thread of
/// its own, so nobody waits for a worker.
///
/// Threads: any. The one pool is made at the first use and lives as long as the process.
class DisplayThreadPool {
public:
    /// The pool; the maximum counts at the call that makes it.
    static DisplayThreadPool* instance(int maximum);

    /// Ends the pooled threads, each behind its job. A later instance() makes a new pool. Nobody else may use
    /// the pool meanwhile.
    virtual ~DisplayThreadPool();
    DisplayThreadPool(const DisplayThreadPool&) = delete;
    DisplayThreadPool& operator=(const DisplayThreadPool&) = delete;

    /// The pooled threads made so far.
    int poolSize() const;
    int maxPoolSize() const { return mMaximumSize; }

    /// The pooled threads without a job.
    int availableThreads();

    /// A thread that is the caller's for one executeRequest(): marked as busy and started. Null if the platform
    /// gives no thread.
    DisplayThread* getThread();

private:
    explicit DisplayThreadPool(int maximum);

    DisplayThread* takeFreeThread() REQUIRES(mLock);
    DisplayThread* newThread() REQUIRES(mLock);
    void forget(DisplayThread* thread);

    static DisplayThreadPool* theInstance;

    const int mMaximumSize;
    // Deleted last: it may be needed until the last thread has gone.
    std::unique_ptr<Threader> mThreader = std::make_unique<Threader>();
    mutable Semaphore mLock{Semaphore::AVAILABLE, 1};
    int mPoolSize GUARDED_BY(mLock) = 0;
    std::list<DisplayThread*> mThreads GUARDED_BY(mLock);
};

}
