#pragma once

#include <Semaphore.h>

#include <atomic>

namespace DisplayAPI {

/// What outlives a handle: its lock, and the mark that it is gone.
///
/// It is counted, and shared by the handle, the events that name it and a thread that is inside a call, so that none
/// of them meets a deleted lock. The count is cheap where calls pass: an event that a handle posts is counted under
/// the handle's lock and counted off on the GUI thread, both without an atomic exchange; a thread inside a call is
/// known by the lock being taken. Whoever drops the last reference while one of the two is still under way leaves the
/// deletion to a later one.
class WidgetImpl {
public:
    WidgetImpl() = default;
    WidgetImpl(const WidgetImpl&) = delete;
    WidgetImpl& operator=(const WidgetImpl&) = delete;

    // The handle, and events that somebody else posts

    void retain() { mReferences.fetch_add(1, std::memory_order_relaxed); }
    void release()
    {
        if (mReferences.fetch_sub(1, std::memory_order_acq_rel) == 1)
            deleteWhenIdle();
    }

    // Events that the handle posts

    /// Counts an event. The caller holds the lock, so that there is one writer.
    void eventPosted() { mPosted.store(mPosted.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed); }

    /// The event has ended: on the GUI thread, or on the thread of a poster that was refused.
    void eventEnded(bool isOnGuiThread)
    {
        if (isOnGuiThread)
            mEndedOnGui.store(mEndedOnGui.load(std::memory_order_relaxed) + 1, std::memory_order_release);
        else
            mEndedElsewhere.fetch_add(1, std::memory_order_release);
    }

    void retire() { mIsRetired.store(true, std::memory_order_release); }
    bool isRetired() const { return mIsRetired.load(std::memory_order_acquire); }

    /// The order of the handle's requests. The GUI thread never takes it.
    Semaphore lock{Semaphore::AVAILABLE, 1};

    /// 0 until a thread has been named. There is one for the process.
    static std::atomic<unsigned int> m_GuiThreadId;

private:
    ~WidgetImpl() = default;
    bool isIdle();
    void deleteWhenIdle();

    std::atomic<int> mReferences = 1;
    std::atomic<unsigned int> mPosted = 0;
    std::atomic<unsigned int> mEndedOnGui = 0;
    std::atomic<unsigned int> mEndedElsewhere = 0;
    std::atomic<bool> mIsRetired = false;
};

}
