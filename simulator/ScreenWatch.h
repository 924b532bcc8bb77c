#pragma once

#include <UScreenWE1.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>

namespace Simulator {

/// What the telephone shows at one moment.
struct Snapshot {
    UScreenWE1 screen;
    std::string text;
    std::uint64_t number = 0; ///< Grows with each change; 0 before the first.
};

/// Carries what is on the screen from the GUI thread to those who look at it. Threads: any.
class ScreenWatch {
public:
    using Clock = std::chrono::steady_clock;

    /// Takes the screen over, if anything on it has changed. Threads: one, the GUI thread for the telephone.
    void publish(const UScreenWE1& screen, const std::string& text);

    /// Shows nothing any more, as before the first screen. Threads: the one that publishes.
    void clear();

    /// Lets everybody who waits look again.
    void wake();

    /// Releases everybody who waits, for good.
    void end();
    bool hasEnded() const;

    Snapshot snapshot() const;

    /// Waits until the screen is as wanted; false at the time limit or the end. The function is called under the
    /// lock of this object: it must only look.
    bool waitFor(const std::function<bool(const Snapshot&)>& isWanted, std::chrono::milliseconds limit) const;

    /// Waits until something has been shown and nothing has changed for a while; at the limit it gives up.
    void waitUntilQuiet(std::chrono::milliseconds quiet, std::chrono::milliseconds limit) const;

    /// Called after each change, and at the end, on the thread that publishes. Set it before the telephone runs.
    void setObserver(std::function<void()> observer) { mObserver = std::move(observer); }

private:
    mutable std::mutex mMutex;
    mutable std::condition_variable mHasChanged;
    Snapshot mSnapshot;
    bool mHasEnded = false;
    std::function<void()> mObserver;
};

}
