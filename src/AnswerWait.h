#pragma once

#include <Semaphore.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <string_view>

namespace DisplayAPI {

/// Which request of which handle a thread waits for. It holds copies, since the handle may go meanwhile.
class WaitingRequest {
public:
    WaitingRequest(std::string_view handle, int type)
        : mType(type)
    {
        std::copy_n(handle.begin(), std::min(handle.size(), mHandle.size() - 1), mHandle.begin());
    }

    const char* handle() const { return mHandle.data(); }
    int type() const { return mType; }

private:
    std::array<char, 32> mHandle{};
    int mType;
};

/// After how many milliseconds without an answer a line in the log tells who waits.
extern std::atomic<int> answerPatience;

// What may keep the GUI thread from answering, of the whole process

/// Whether a display runs the loop.
extern std::atomic<bool> isLoopRunning;

/// Whether there is a subscriber, whose code runs on the GUI thread and may wait for the caller.
extern std::atomic<bool> isSubscribed;

/// Tells the log that the GUI thread does not answer.
void logMissingAnswer(const WaitingRequest& request);

inline Gate::End waitWithin(Wait& answer, int milliseconds)
{
    return answer.waitWithin(milliseconds);
}

inline Gate::End waitWithin(Semaphore& answer, int milliseconds)
{
    return answer.takeWithin(milliseconds);
}

/// Waits for the GUI thread's answer, without limit. False if it will never come.
template <typename Answer>
bool awaitAnswer(Answer& answer, const WaitingRequest& request)
{
    // A timer for each call would be a tenth of its cost, so it is set only where something may keep the answer back.
    constexpr auto relaxed = std::memory_order_relaxed;
    const bool mayBeKept = !isLoopRunning.load(relaxed) || isSubscribed.load(relaxed);
    Gate::End end = waitWithin(answer, mayBeKept ? answerPatience.load(relaxed) : -1);
    if (end == Gate::End::TimeUp) {
        logMissingAnswer(request);
        end = waitWithin(answer, -1);
    }
    return end == Gate::End::Passed;
}

}
