#include "KeyRepeat.h"

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {

// Keyboards repeat every 20 to 60 ms; fingers are slower, and pasted characters come at once.
constexpr std::chrono::milliseconds ShortestRepeat{10};
constexpr std::chrono::milliseconds LongestRepeat{80};

}

std::vector<KeyRepeat::Stroke> KeyRepeat::typed(int key, Clock::time_point now)
{
    const auto gap = now - std::exchange(mLastTime, now);
    if (mKey == key && gap >= ShortestRepeat && gap <= LongestRepeat) {
        if (std::exchange(mIsHeld, true))
            return {};
        return {{key, UGlobal::KeyHeld}};
    }
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
