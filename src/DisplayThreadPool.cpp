#include "DisplayThreadPool.h"

#include "DisplayThread.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

// Guards the pointer to the pool. Never destroyed, since a worker may post while the process ends.
Semaphore& instanceLock()
{
    static Semaphore& lock = *new Semaphore(Semaphore::AVAILABLE, 1);
    return lock;
}

}

DisplayThreadPool* DisplayThreadPool::theInstance = nullptr;

DisplayThreadPool* DisplayThreadPool::instance(int maximum)
{
    CriticalSection section(instanceLock());
    if (!theInstance)
        theInstance = new DisplayThreadPool(maximum);
    return theInstance;
}

DisplayThreadPool::DisplayThreadPool(int maximum)
    : mMaximumSize(maximum)
{
}

DisplayThreadPool::~DisplayThreadPool()
{
    {
        CriticalSection section(instanceLock());
        if (theInstance == this)
            theInstance = nullptr;
    }
    for (;;) {
        DisplayThread* thread = nullptr;
        {
            CriticalSection section(mLock);
            if (mThreads.empty())
                return;
            thread = mThreads.front();
            mThreads.pop_front();
        }
        // Outside of the lock: its job may be at the pool's door.
        const bool endsItself = thread->threadId() == Threadable::currentThreadId();
        thread->destroyThread();
        if (!endsItself)
            delete thread;
    }
}

int DisplayThreadPool::poolSize() const
{
    CriticalSection section(mLock);
    return mPoolSize;
}

int DisplayThreadPool::availableThreads()
{
    CriticalSection section(mLock);
    return static_cast<int>(
        std::count_if(mThreads.begin(), mThreads.end(), [](DisplayThread* thread) { return !thread->busy(); }));
}

DisplayThread* DisplayThreadPool::getThread()
{
    DisplayThread* thread = nullptr;
    {
        CriticalSection section(mLock);
        thread = takeFreeThread();
        if (thread)
            return thread;
        thread = newThread();
    }
    if (mThreader->start(thread, "", 1, 0))
        return thread;
    forget(thread);
    return nullptr;
}

/// From the head of the list; it goes to the end, so that the threads are used in turn.
DisplayThread* DisplayThreadPool::takeFreeThread()
{
    auto found = std::find_if(mThreads.begin(), mThreads.end(), [](DisplayThread* thread) { return !thread->busy(); });
    if (found == mThreads.end())
        return nullptr;
    (*found)->setBusy();
    mThreads.splice(mThreads.end(), mThreads, found);
    return mThreads.back();
}

/// Marked as busy before anybody else can find it in the list.
DisplayThread* DisplayThreadPool::newThread()
{
    const bool isPooled = mPoolSize < mMaximumSize;
    auto thread = new DisplayThread(isPooled);
    thread->setBusy();
    if (isPooled) {
        ++mPoolSize;
        mThreads.push_back(thread);
    }
    return thread;
}

void DisplayThreadPool::forget(DisplayThread* thread)
{
    CriticalSection section(mLock);
    if (mThreads.remove(thread) > 0)
        --mPoolSize;
    delete thread;
}

}
