#include "ScreenWatch.h"

#include <algorithm>

namespace Simulator {

void ScreenWatch::publish(const UScreenWE1& screen, const std::string& text)
{
    {
        const std::lock_guard lock(mMutex);
        if (mSnapshot.number != 0 && mSnapshot.screen == screen && mSnapshot.text == text)
            return;
        mSnapshot.screen = screen;
        mSnapshot.text = text;
        ++mSnapshot.number;
    }
    mHasChanged.notify_all();
    if (mObserver)
        mObserver();
}

void ScreenWatch::clear()
{
    {
        const std::lock_guard lock(mMutex);
        mSnapshot = Snapshot();
    }
    mHasChanged.notify_all();
    if (mObserver)
        mObserver();
}

void ScreenWatch::wake()
{
    {
        const std::lock_guard lock(mMutex);
    }
    mHasChanged.notify_all();
}

void ScreenWatch::end()
{
    {
        const std::lock_guard lock(mMutex);
        mHasEnded = true;
    }
    mHasChanged.notify_all();
    if (mObserver)
        mObserver();
}

bool ScreenWatch::hasEnded() const
{
    const std::lock_guard lock(mMutex);
    return mHasEnded;
}

Snapshot ScreenWatch::snapshot() const
{
    const std::lock_guard lock(mMutex);
    return mSnapshot;
}

bool ScreenWatch::waitFor(const std::function<bool(const Snapshot&)>& isWanted, std::chrono::milliseconds limit) const
{
    const auto deadline = Clock::now() + limit;
    std::unique_lock lock(mMutex);
    mHasChanged.wait_until(lock, deadline, [&] { return mHasEnded || isWanted(mSnapshot); });
    return isWanted(mSnapshot);
}

void ScreenWatch::waitUntilQuiet(std::chrono::milliseconds quiet, std::chrono::milliseconds limit) const
{
    const auto deadline = Clock::now() + limit;
    std::unique_lock lock(mMutex);
    mHasChanged.wait_until(lock, deadline, [&] { return mHasEnded || mSnapshot.number != 0; });
    while (!mHasEnded && Clock::now() < deadline) {
        const std::uint64_t number = mSnapshot.number;
        const auto until = std::min(deadline, Clock::now() + quiet);
        if (!mHasChanged.wait_until(lock, until, [&] { return mHasEnded || mSnapshot.number != number; }))
            return;
    }
}

}
