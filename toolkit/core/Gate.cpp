#include "Gate.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Sleeps while the word has this value, until the deadline. Returns false when the time is up.
bool sleepOn(std::atomic<std::uint32_t>* word, std::uint32_t value, const timespec* deadline)
{
    const long result
        = syscall(SYS_futex, word, FUTEX_WAIT_BITSET_PRIVATE, value, deadline, nullptr, FUTEX_BITSET_MATCH_ANY);
    return !(result == -1 && errno == ETIMEDOUT);
}

timespec deadlineIn(int milliseconds)
{
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    time.tv_sec += milliseconds / 1000;
    time.tv_nsec += static_cast<long>(milliseconds % 1000) * 1'000'000;
    if (time.tv_nsec >= 1'000'000'000) {
        time.tv_nsec -= 1'000'000'000;
        ++time.tv_sec;
    }
    return time;
}

}

Gate::Gate(std::uint32_t count, std::uint32_t maximum)
    : mMaximum(std::min(maximum, CountMask))
    , mWord(std::min(count, mMaximum))
{
}

Gate::End Gate::passSlowly(int milliseconds)
{
    timespec deadline = {};
    if (milliseconds >= 0)
        deadline = deadlineIn(milliseconds);
    std::uint32_t word = mWord.fetch_add(OneSleeper, std::memory_order_relaxed) + OneSleeper;
    bool isTimeLeft = true;
    for (;;) {
        if (word & CountMask) {
            if (mWord.compare_exchange_weak(
                    word, word - OneSleeper - 1, std::memory_order_acquire, std::memory_order_relaxed))
                return End::Passed;
        } else if (word & Abandoned) {
            if (mWord.compare_exchange_weak(
                    word, word - OneSleeper - Abandoned, std::memory_order_acquire, std::memory_order_relaxed))
                return End::Abandoned;
        } else if (!isTimeLeft) {
            if (mWord.compare_exchange_weak(
                    word, word - OneSleeper, std::memory_order_relaxed, std::memory_order_relaxed))
                return End::TimeUp;
        } else {
            isTimeLeft = sleepOn(&mWord, word, milliseconds >= 0 ? &deadline : nullptr);
            word = mWord.load(std::memory_order_relaxed);
        }
    }
}

// The address alone: the object behind it may be gone when the kernel looks for sleepers.
void Gate::wakeOne(std::atomic<std::uint32_t>* word)
{
    syscall(SYS_futex, word, FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0);
}

void Gate::abandon()
{
    const std::uint32_t word = mWord.fetch_or(Abandoned, std::memory_order_release);
    if (word >= OneSleeper)
        wakeOne(&mWord);
}
