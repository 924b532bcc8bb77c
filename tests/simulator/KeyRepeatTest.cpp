#include "KeyRepeat.h"

#include <gtest/gtest.h>

using Simulator::KeyRepeat;
using namespace std::chrono_literals;

namespace {

constexpr int Ok = UGlobal::KeyOk;
constexpr int Down = UGlobal::KeyDown;
constexpr auto Pressed = UGlobal::KeyPressed;
constexpr auto Held = UGlobal::KeyHeld;
constexpr auto Released = UGlobal::KeyReleased;

using Strokes = std::vector<KeyRepeat::Stroke>;

class KeyRepeatTest : public testing::Test {
protected:
    Strokes typed(int key, std::chrono::milliseconds after) { return mRepeat.typed(key, mNow += after); }
    Strokes tick(std::chrono::milliseconds after) { return mRepeat.tick(mNow += after); }

    KeyRepeat mRepeat;
    KeyRepeat::Clock::time_point mNow;
};

TEST_F(KeyRepeatTest, AKeyIsReleasedWhenItDoesNotComeAgain)
{
    EXPECT_FALSE(mRepeat.timeToTick(mNow));
    EXPECT_EQ(typed(Ok, 1s), Strokes({{Ok, Pressed}}));
    EXPECT_EQ(tick(50ms), Strokes());
    ASSERT_TRUE(mRepeat.timeToTick(mNow));
    EXPECT_EQ(tick(*mRepeat.timeToTick(mNow)), Strokes({{Ok, Released}})) << "at the time that it asked for";
    EXPECT_EQ(tick(1s), Strokes()) << "once";
}

TEST_F(KeyRepeatTest, AKeyThatAKeyboardRepeatsIsHeldOnceUntilItStops)
{
    typed(Down, 5s);
    tick(100ms);
    EXPECT_EQ(typed(Down, 400ms), Strokes({{Down, Pressed}})) << "the delay of the keyboard";
    EXPECT_EQ(typed(Down, 33ms), Strokes({{Down, Held}}));
    EXPECT_EQ(typed(Down, 33ms), Strokes());
    EXPECT_EQ(tick(33ms), Strokes());
    EXPECT_EQ(typed(Down, 0ms), Strokes());
    EXPECT_EQ(tick(100ms), Strokes({{Down, Released}}));
    EXPECT_EQ(typed(Down, 1ms), Strokes({{Down, Pressed}})) << "after its release it is a new press";
}

TEST_F(KeyRepeatTest, AnotherKeyReleasesTheOneThatIsDown)
{
    typed(Ok, 1s);
    EXPECT_EQ(typed(Down, 33ms), Strokes({{Ok, Released}, {Down, Pressed}}));
}

TEST_F(KeyRepeatTest, FastTapsAreNoRepeats)
{
    for (auto gap : {0ms, 5ms, 33ms, 80ms, 120ms}) {
        typed('2', 5s);
        for (int tap = 0; tap < 3; ++tap)
            EXPECT_EQ(typed('2', gap), Strokes({{'2', Released}, {'2', Pressed}})) << gap.count() << " ms";
    }
    typed(Ok, 5s);
    tick(100ms);
    typed(Ok, 400ms);
    EXPECT_EQ(typed(Down, 33ms), Strokes({{Ok, Released}, {Down, Pressed}}));
    EXPECT_EQ(typed(Ok, 33ms), Strokes({{Down, Released}, {Ok, Pressed}}));
}

}
