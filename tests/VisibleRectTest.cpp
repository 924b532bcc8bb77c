#include "StackFixture.h"
#include "VisibleRectMonitor.h"

using namespace DisplayAPI;

namespace {

const Rect Whole(0, 0, 162, 31);

struct Stack {
    const char* name;
    std::vector<URect> screens; // bottom first
    std::vector<std::vector<Rect>> visible;
};

void PrintTo(const Stack& stack, std::ostream* out)
{
    *out << stack.name;
}

class VisibleRectTest : public StackFixture {
protected:
    VisibleRectTest() { makeDisplay(); }

    TestScreen& push(const URect& rect)
    {
        screens.push_back(makeScreen("screen", screens.empty() ? Kind::Ordinary : Kind::Popup));
        screens.back()->widget().setRect(rect);
        display->setCurrent(screens.back().get());
        return *screens.back();
    }

    std::vector<std::unique_ptr<TestScreen>> screens;
};

class VisibleRectOfStack : public VisibleRectTest, public ::testing::WithParamInterface<Stack> { };

TEST_P(VisibleRectOfStack, IsWhatTheScreensAboveLeave)
{
    for (const URect& rect : GetParam().screens)
        push(rect);
    EXPECT_TRUE(display->findVisibleRects() == GetParam().visible);
}

const URect whole(0, 0, 161, 30);
const URect lower(0, 15, 161, 30);
const URect inner(10, 5, 19, 9);

INSTANTIATE_TEST_SUITE_P(Stacks, VisibleRectOfStack,
    ::testing::Values(Stack{"Empty", {}, {}}, Stack{"One", {whole}, {{Whole}}},
        Stack{"Covered", {whole, whole}, {{}, {Whole}}},
        Stack{"OneLinePopup", {whole, lower}, {{Rect(0, 0, 162, 15)}, {Rect(0, 15, 162, 16)}}},
        Stack{"PopupInTheMiddle", {whole, lower, whole}, {{}, {}, {Whole}}},
        Stack{"Hole", {whole, inner},
            {{Rect(0, 0, 162, 5), Rect(0, 10, 162, 21), Rect(0, 5, 10, 5), Rect(20, 5, 142, 5)}, {Rect(10, 5, 10, 5)}}},
        Stack{"TopWithoutSize", {whole, URect()}, {{Whole}, {Rect(0, 0, 0, 0)}}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(VisibleRectTest, TheDisplayedRectanglesAreWholeAndAbsolute)
{
    display->show();
    push(whole);
    push(lower);
    content()->setRect(URect(3, 4, 164, 34));
    const std::vector<Rect>* rects = display->getDisplayedRects();
    EXPECT_TRUE(*rects == (std::vector{Rect(3, 4, 162, 31), Rect(3, 19, 162, 16)}));
    screens.pop_back();
    EXPECT_EQ(display->getDisplayedRects(), rects) << "the same vector, written again";
    EXPECT_TRUE(*rects == std::vector{Rect(3, 4, 162, 31)});
}

TEST_F(VisibleRectTest, TheMonitorKeepsTheOrderOfUpdating)
{
    VisibleRectMonitor monitor;
    TestScreen& first = push(whole);
    TestScreen& second = push(lower);
    auto without = makeScreen("without widget");
    without->screen().hasWidget = false;
    for (TestScreen* screen : {&first, &second, without.get(), &first})
        monitor.update(*screen);
    const Rect low(0, 15, 162, 16);
    EXPECT_TRUE(*monitor.getVisibleRects() == (std::vector{Whole, low, Whole}));
    monitor.remove(first);
    monitor.remove(*without);
    EXPECT_TRUE(*monitor.getVisibleRects() == (std::vector{low, Whole}));
    monitor.clear();
    EXPECT_TRUE(monitor.getVisibleRects()->empty());
}

// What a screen is asked for

TEST_F(VisibleRectTest, ARequestedRectangleThatHoldsAPartEndsTheSearchForIt)
{
    TestScreen& bottom = push(whole);
    TestScreen& top = push(lower);
    const Rect low(0, 15, 162, 16);
    const Rect left(0, 0, 50, 31);
    const Rect right(40, 0, 122, 31);
    display->serialiseByRect({left, Whole, right}, "");
    EXPECT_TRUE(bottom.screen().askedRects == (std::vector{Rect(0, 0, 50, 15), Rect(0, 0, 162, 15)}));
    EXPECT_TRUE(top.screen().askedRects == (std::vector{Rect(0, 15, 50, 16), low}));
    display->serialiseByRect({left, right}, "");
    EXPECT_TRUE(top.screen().askedRects == (std::vector{Rect(0, 15, 50, 16), Rect(40, 15, 122, 16)}));
}

TEST_F(VisibleRectTest, ACoveredScreenIsStillAskedWithoutARectangle)
{
    TestScreen& bottom = push(whole);
    push(whole);
    bottom.screen().askedRects = {Whole};
    const std::string text = display->serialiseByRect({Whole}, "");
    EXPECT_TRUE(bottom.screen().askedRects.empty());
    EXPECT_EQ(text, screens[0]->screen().text + screens[1]->screen().text);
}

}
