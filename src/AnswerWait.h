#pragma once

#include <Semaphore.h>

#include <atomic>
#include <string>
#include <typeinfo>

namespace DisplayAPI {

/// Which request of which handle a thread waits for. The handle is known by its class: it may go meanwhile, and its
/// name is the GUI thread's.
class WaitingRequest {
public:
    /// The class itself, or its enumeration of requests; null where it is not known.
    WaitingRequest(const std::type_info* handle, int type)
        : mHandle(handle)
        , mType(type)
    {
    }

    /// The class, as "PopupConfirm".
    std::string handle() const;
    int type() const { return mType; }

    /// Tells the log, the first time, that the GUI thread does not answer.
    void logDelay();

private:
    const std::type_info* mHandle;
    int mType;
    bool mIsLogged = false;
};

/// After how many milliseconds without an answer a line in the log tells who waits.
extern std::atomic<int> answerPatience;

// What may keep the GUI thread from answering, of the whole process

/// Whether a display runs the loop.
extern std::atomic<bool> isLoopRunning;

/// Whether there is a subscriber, whose code runs on the GUI thread and may wait for the caller.
extern std::atomic<bool> isSubscribed;

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
bool awaitAnswer(Answer& answer, WaitingRequest& request)
{
    // A timer for each call would be a tenth of its cost, so it is set only where something may keep the answer back.
    constexpr auto relaxed = std::memory_order_relaxed;
    const bool mayBeKept = !isLoopRunning.load(relaxed) || isSubscribed.load(relaxed);
    Gate::End end = waitWithin(answer, mayBeKept ? answerPatience.load(relaxed) : -1);
    if (end == Gate::End::TimeUp) {
        request.logDelay();
        end = waitWithin(answer, -1);
    }
    return end == Gate::End::Passed;
}

}
