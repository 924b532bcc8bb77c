#pragma once

#include "CallService.h"
#include "Parties.h"

#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerEvent.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

/// A clock that calls a function once, on the GUI thread.
class OneShot final : public DisplayAPI::TimerEvent {
public:
    explicit OneShot(std::function<void()> due)
        : mDue(std::move(due))
    {
        mTimer.enableSingleShot(true);
        mTimer.addEventListener(this);
    }

    /// Starts anew. Threads: any.
    void start(int milliseconds) { mTimer.start(std::max(1, milliseconds)); }
    void stop() { mTimer.stop(); }
    void timerEvent() override { mDue(); }

private:
    std::function<void()> mDue;
    DisplayAPI::Timer mTimer{0}; // the first to go: then no event comes any more
};

/// One call of the exchange: its state, what the other end does next, and the clocks of both.
///
/// The exchange's lock guards everything but the clocks.
struct ExchangeLine {
    CallService::Call call;
    Parties::Plan plan;
    bool isKnown = true;     // to the listener; a call that comes later is not
    std::string forwardedTo; // if nobody answers
    OneShot next;
    OneShot reminder; // of a call that is held
};
