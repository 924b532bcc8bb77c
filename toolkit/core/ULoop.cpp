#include "ULoop.h"

#include "Disturb.h"
#include "UEvent.h"
#include "UWindowManager.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <memory>
#include <sched.h>
#include <utility>

namespace {

// What the queue holds instead of an event: nobody reads or writes through these addresses.
UEvent* const Sleeping = reinterpret_cast<UEvent*>(std::uintptr_t{1});
UEvent* const Closed = reinterpret_cast<UEvent*>(std::uintptr_t{2});

std::uint64_t realTime()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

/// When a stopped clock starts: the same day and hour wherever the machine stands.
std::time_t mondayMorning()
{
    std::tm morning{};
    morning.tm_year = 2024 - 1900;
    morning.tm_mday = 1;
    morning.tm_hour = 9;
    morning.tm_isdst = -1;
    return std::mktime(&morning);
}

}

ULoop& ULoop::instance()
{
    static ULoop& loop = *new ULoop;
    return loop;
}

void ULoop::post(UEvent* event)
{
    if (!event)
        return;
    disturb();
    // Who is refused may destroy what the loop's last events worked on: he must see their end.
    UEvent* newest = mNewest.load(std::memory_order_acquire);
    do {
        if (newest == Closed) {
            delete event;
            return;
        }
        event->mNext = newest == Sleeping ? nullptr : newest;
    } while (!mNewest.compare_exchange_weak(newest, event, std::memory_order_acq_rel, std::memory_order_acquire));
    // Only the post that ends the sleep wakes the loop.
    if (newest == Sleeping)
        mGate.open();
}

int ULoop::exec()
{
    if (mIsExecuting)
        return -1;
    open();
    mIsExecuting = true;
    mQuit = false;
    // On every way out, an exception of an event included: nobody may wait for a loop that doesn't run.
    struct End {
        ~End()
        {
            loop.mIsExecuting = false;
            loop.mQuit = false;
            loop.close();
        }
        ULoop& loop;
    } end{*this};
    while (!mQuit) {
        processEvents();
        if (!mQuit)
            sleep();
    }
    return 0;
}

void ULoop::processEvents()
{
    runQueue();
    if (mQuit)
        return;
    runTimers();
    if (!mQuit)
        UWindowManager::instance().paintIfNeeded();
}

void ULoop::open()
{
    UEvent* expected = Closed;
    mNewest.compare_exchange_strong(expected, nullptr, std::memory_order_acq_rel);
}

void ULoop::close()
{
    // A loop whose queue is closed under it would never hear of its end.
    quit();
    UEvent* newest = mNewest.exchange(Closed, std::memory_order_acq_rel);
    destroyAll(std::exchange(mPass, nullptr));
    if (newest != Sleeping && newest != Closed)
        destroyAll(inOrderOfPosting(newest));
}

void ULoop::fetchQueue()
{
    UEvent* newest = mNewest.load(std::memory_order_relaxed);
    do {
        if (!newest || newest == Sleeping || newest == Closed)
            return;
    } while (!mNewest.compare_exchange_weak(newest, nullptr, std::memory_order_acquire, std::memory_order_relaxed));
    UEvent** end = &mPass;
    while (*end)
        end = &(*end)->mNext;
    *end = inOrderOfPosting(newest);
}

UEvent* ULoop::inOrderOfPosting(UEvent* newest)
{
    UEvent* oldest = nullptr;
    while (newest) {
        UEvent* next = newest->mNext;
        newest->mNext = oldest;
        oldest = newest;
        newest = next;
    }
    return oldest;
}

void ULoop::destroyAll(UEvent* first)
{
    while (first) {
        UEvent* next = first->mNext;
        delete first;
        first = next;
    }
}

void ULoop::runQueue()
{
    fetchQueue();
    while (mPass && !mQuit) {
        const std::unique_ptr<UEvent> event(mPass);
        mPass = event->mNext;
        event->process();
    }
}

bool ULoop::hasWork() const
{
    return mNewest.load(std::memory_order_relaxed) != nullptr || timeToNextTimer() == 0;
}

void ULoop::sleep()
{
    // Who was just answered often calls again at once. Letting it run first saves both the loop's sleep and
    // the caller's waking of it; a burst of posts gathers meanwhile, and one pass takes it all.
    if (!hasWork())
        sched_yield();
    if (hasWork())
        return;
    UEvent* expected = nullptr;
    if (!mNewest.compare_exchange_strong(expected, Sleeping, std::memory_order_acq_rel))
        return;
    const std::int64_t time = timeToNextTimer();
    mGate.pass(static_cast<int>(std::min<std::int64_t>(time, std::numeric_limits<int>::max())));
    expected = Sleeping;
    mNewest.compare_exchange_strong(expected, nullptr, std::memory_order_acq_rel);
}

void ULoop::setManualClock(bool manual)
{
    if (manual == mIsClockManual)
        return;
    if (manual) {
        mManualStart = now();
        moveTo(mManualStart);
    } else {
        mClockOffset = mManualTime - realTime(); // may wrap; the sum in now() wraps back
        mStoppedWallClock = 0;
    }
    mIsClockManual = manual;
}

void ULoop::moveTo(std::uint64_t time)
{
    mManualTime = time;
    mStoppedWallClock = mondayMorning() + static_cast<std::time_t>((time - mManualStart) / 1000);
}

std::time_t ULoop::wallClock() const
{
    const std::time_t stopped = mStoppedWallClock;
    return stopped != 0 ? stopped : std::time(nullptr);
}

std::uint64_t ULoop::now() const
{
    return mIsClockManual ? mManualTime : realTime() + mClockOffset;
}

void ULoop::advance(std::uint64_t milliseconds)
{
    if (!mIsClockManual)
        return;
    const std::uint64_t end = mManualTime + milliseconds;
    while (!mQuit && !mTimers.empty() && mTimers.begin()->first.first <= end) {
        moveTo(std::max(mManualTime, mTimers.begin()->first.first));
        processEvents();
    }
    moveTo(std::max(mManualTime, end));
    processEvents();
}

std::int64_t ULoop::timeToNextTimer() const
{
    if (mTimers.empty())
        return -1;
    const std::uint64_t due = mTimers.begin()->first.first;
    if (mIsClockManual)
        return due <= mManualTime ? 0 : -1;
    const std::uint64_t time = now();
    return due <= time ? 0 : static_cast<std::int64_t>(due - time);
}

void ULoop::runTimers()
{
    if (mTimers.empty())
        return;
    const std::uint64_t time = now();
    // What a handler starts meanwhile comes later in order, so a repeat never fires twice in one pass.
    const std::uint64_t lastOrder = mTimerOrder;
    auto next = mTimers.begin();
    while (!mQuit && next != mTimers.end() && next->first.first <= time) {
        const TimerKey key = next->first;
        if (key.second <= lastOrder)
            next->second->fire(time);
        next = mTimers.upper_bound(key);
    }
}

UTimer::UTimer(UAgent* agent, unsigned long long interval)
    : mAgent(agent)
    , mInterval(interval)
{
    static std::uint64_t lastId = 0;
    mId = ++lastId;
}

UTimer::~UTimer()
{
    stop();
}

void UTimer::start()
{
    stop();
    schedule(ULoop::instance().now() + step());
}

void UTimer::stop()
{
    if (!mIsRunning)
        return;
    ULoop::instance().mTimers.erase(mKey);
    mIsRunning = false;
}

std::uint64_t UTimer::step() const
{
    // A longer interval never ends either, and no sum of times wraps.
    constexpr unsigned long long longest = 1ULL << 62;
    return std::clamp(mInterval, 1ULL, longest);
}

void UTimer::schedule(std::uint64_t due)
{
    ULoop& loop = ULoop::instance();
    mKey = {due, ++loop.mTimerOrder};
    loop.mTimers.emplace(mKey, this);
    mIsRunning = true;
}

void UTimer::fire(std::uint64_t now)
{
    const std::uint64_t due = mKey.first;
    stop();
    UAgent* agent = mAgent.get();
    if (!agent)
        return;
    // Set up first: the handler may stop, restart or delete this timer.
    if (!mIsSingleShot)
        schedule(due + step() > now ? due + step() : now + step());
    UTimerEvent event(mId);
    agent->timerEvent(&event);
}
