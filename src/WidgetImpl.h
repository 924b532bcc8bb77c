#pragma once

#include <Semaphore.h>

#include <atomic>

namespace DisplayAPI {

/// What outlives a handle: its lock, and the mark that it is gone.
///
/// It is counted, and shared by the handle, the events that name it and a thread that is inside a call, so that none
/// of them meets a deleted lock.
class WidgetImpl {
public:
    /// A thread inside a call.
    class User {
    public:
        explicit User(WidgetImpl& impl)
            : mImpl(impl)
        {
            mImpl.retain();
        }
        ~User() { mImpl.release(); }
        User(const User&) = delete;
        User& operator=(const User&) = delete;

    private:
        WidgetImpl& mImpl;
    };

    WidgetImpl() = default;
    WidgetImpl(const WidgetImpl&) = delete;
    WidgetImpl& operator=(const WidgetImpl&) = delete;

    void retain() { mReferences.fetch_add(1, std::memory_order_relaxed); }
    void release()
    {
        if (mReferences.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

    void retire() { mIsRetired.store(true, std::memory_order_release); }
    bool isRetired() const { return mIsRetired.load(std::memory_order_acquire); }

    /// The order of the handle's requests. The GUI thread never takes it.
    Semaphore lock{Semaphore::AVAILABLE, 1};

    /// 0 until a thread has been named. There is one for the process.
    static std::atomic<unsigned int> m_GuiThreadId;

private:
    ~WidgetImpl() = default;

    std::atomic<int> mReferences = 1; // the handle's
    std::atomic<bool> mIsRetired = false;
};

}
