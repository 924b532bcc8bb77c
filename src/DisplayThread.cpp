#include "DisplayThread.h"

#include <memory>

#include <pthread.h>

namespace DisplayAPI {

DisplayThread::DisplayThread(bool pooled)
    : mPooled(pooled)
{
}

DisplayThread::~DisplayThread()
{
    delete mRunnable.load();
}

void DisplayThread::run()
{
    do {
        mWait.wait();
        if (mStopping)
            break;
        execute();
        clearRequestData();
        mBusy = false;
    } while (!mStopping && mPooled);

    if (!mPooled)
        destroyThread();
    if (mEndsItself)
        delete this;
}

void DisplayThread::executeRequest(Runnable* runnable)
{
    if (!runnable)
        return;
    delete mRunnable.exchange(runnable);
    mWait.release();
}

void DisplayThread::destroyThread()
{
    if (mStopping.exchange(true))
        return;
    if (threadId() == currentThreadId()) {
        mEndsItself = true;
        pthread_detach(pthread_self());
        return;
    }
    mWait.release();
    waitForThreadCompletion();
}

void DisplayThread::setBusy()
{
    mBusy = true;
}

bool DisplayThread::busy()
{
    return mBusy;
}

void DisplayThread::execute()
{
    // Taken out first, so that a job that comes meanwhile is not lost.
    if (const std::unique_ptr<Runnable> job{mRunnable.exchange(nullptr)})
        job->run();
}

void DisplayThread::clearRequestData() { }

}
