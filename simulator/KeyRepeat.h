#pragma once

#include <Types.h>

#include <chrono>
#include <optional>
#include <vector>

namespace Simulator {

/// Makes presses, holds and releases from the characters of a terminal, which has no releases: a key counts as
/// released when it has not come again for a moment, and as held when it repeats as a keyboard does: again after a
/// while, and then faster than fingers.
class KeyRepeat {
public:
    using Clock = std::chrono::steady_clock;

    struct Stroke {
        int key;
        UGlobal::KeyState state;
        bool operator==(const Stroke&) const = default;
    };

    /// The strokes that follow from a key that came now.
    std::vector<Stroke> typed(int key, Clock::time_point now);

    /// The release, if the time has come.
    std::vector<Stroke> tick(Clock::time_point now);

    /// The key that is down.
    std::optional<int> pressedKey() const { return mKey; }

    /// How long to wait for tick(); nothing while no key is down.
    std::optional<std::chrono::milliseconds> timeToTick(Clock::time_point now) const;

private:
    std::optional<int> mKey; // the one that is down
    int mLastKey = 0;
    Clock::time_point mLastTime;
    bool mMayRepeat = false; // the last key came after the delay with which keyboards begin to repeat
    bool mIsHeld = false;
};

}
