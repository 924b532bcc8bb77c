#include "KeyRepeat.h"

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {

// A keyboard begins to repeat after this time, and then does so every 20 to 60 ms. Fingers are slower, and what a
// program types comes at any pace, but not in this pattern.
constexpr std::chrono::milliseconds ShortestDelay{150};
constexpr std::chrono::milliseconds LongestDelay{1000};
constexpr std::chrono::milliseconds LongestRepeat{80};

}

std::vector<KeyRepeat::Stroke> KeyRepeat::typed(int key, Clock::time_point now)
{
    const auto gap = now - std::exchange(mLastTime, now);
    const bool isSame = std::exchange(mLastKey, key) == key;
    if (mKey && isSame && mMayRepeat && gap <= LongestRepeat) {
        if (std::exchange(mIsHeld, true))
            return {};
        return {{key, UGlobal::KeyHeld}};
    }
    mMayRepeat = isSame && gap >= ShortestDelay && gap <= LongestDelay;
    std::vector<Stroke> strokes;
    if (mKey)
        strokes.push_back({*mKey, UGlobal::KeyReleased});
    strokes.push_back({key, UGlobal::KeyPressed});
    mKey = key;
    mIsHeld = false;
    return strokes;
}

std::vector<KeyRepeat::Stroke> KeyRepeat::tick(Clock::time_point now)
{
    if (!mKey || now - mLastTime <= LongestRepeat)
        return {};
    return {{*std::exchange(mKey, std::nullopt), UGlobal::KeyReleased}};
}

std::optional<std::chrono::milliseconds> KeyRepeat::timeToTick(Clock::time_point now) const
{
    if (!mKey)
        return std::nullopt;
    const auto time = std::chrono::ceil<std::chrono::milliseconds>(mLastTime + LongestRepeat - now);
    return std::max(time + std::chrono::milliseconds(1), std::chrono::milliseconds(0));
}

}
