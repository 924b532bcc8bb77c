#include "GlassTest.h"

#include "SystemWindow.h"

#include <array>

namespace {

class SystemWindowTest : public GlassTest {
protected:
    ~SystemWindowTest() override
    {
        if (window)
            window->release();
    }

    void setLine(int number, const std::string& value) { window->setSystemWindowText(number, value, ""); }

    UPointer<SystemWindow> window = new SystemWindow;
};

TEST_F(SystemWindowTest, ItsLinesStandOverTheScreens)
{
    setLine(0, "4711");
    EXPECT_EQ(line(0), whole("upper"));
    window->setSystemWindowSize(1);
    EXPECT_EQ(line(0), whole("4711"));
    EXPECT_EQ(line(1), whole("lower"));

    // A line without a text is left to the screen, a blank one is not.
    window->setSystemWindowSize(2);
    EXPECT_EQ(line(1), whole("lower"));
    setLine(1, " ");
    EXPECT_EQ(line(1), whole(""));

    window->showLine(false);
    EXPECT_EQ(line(0), whole("upper"));
    window->showLine(true);
    EXPECT_EQ(line(0), whole("4711"));
}

TEST_F(SystemWindowTest, ItCoversThePopupsToo)
{
    class Popup : public PlainScreen {
    public:
        void paint(UPainter& painter) override { painter.text(0, 0, UString(std::string("popup"))); }
        Layer layer() const override { return Layer::Popup; }
    };
    auto* popup = new Popup;
    root.addWidget(popup);
    manager.raisePopup(popup);
    EXPECT_EQ(line(0), whole("popup"));
    window->setSystemWindowSize(1);
    setLine(0, "4711");
    EXPECT_EQ(line(0), whole("4711"));
}

TEST_F(SystemWindowTest, EachLineHasOneTextForAllKeys)
{
    window->setSystemWindowText(5, "last", "10:42");
    EXPECT_EQ(window->getSystemWindowText(5, ""), "last");
    EXPECT_EQ(window->getSystemWindowText(5, "10:42"), "last");
    setLine(6, "none");
    setLine(-1, "none");
    EXPECT_EQ(window->getSystemWindowText(6, ""), "");
    EXPECT_EQ(window->getSystemWindowText(-1, ""), "");

    // Sizes leave the texts alone.
    window->setSystemWindowSize(0);
    EXPECT_EQ(window->getSystemWindowText(5, ""), "last");
}

TEST_F(SystemWindowTest, ItsRectangleFollowsTheNumberOfLines)
{
    struct Case {
        int lines;
        int bottom;
    };
    for (const Case& test : {Case{0, -1}, Case{1, 14}, Case{2, 29}, Case{3, 30}, Case{6, 30}, Case{99, 30}}) {
        window->setSystemWindowSize(test.lines);
        EXPECT_EQ(window->getRect(), URect(0, 0, 161, test.bottom)) << test.lines;
    }
    window->setSystemWindowSize(-1);
    EXPECT_TRUE(window->getRect().isEmpty());
}

TEST_F(SystemWindowTest, TheClockGoesOnByItself)
{
    window->setSystemWindowSize(1);
    setLine(0, "4711");
    window->showTime(true);
    EXPECT_EQ(line(0), whole("4711"));
    EXPECT_EQ(window->getTimeToNextUpdate(), 0);

    window->setTime(23, 58, 59);
    EXPECT_EQ(line(0), "4711                  23:58");
    EXPECT_EQ(window->getTimeToNextUpdate(), 1000);
    advance(1000);
    EXPECT_EQ(line(0), "4711                  23:59");
    advance(60000);
    EXPECT_EQ(line(0), "4711                  00:00");
    EXPECT_EQ(window->getTimeToNextUpdate(), 60000);

    for (auto [hours, minutes, seconds] : {std::array{24, 0, 0}, std::array{0, 60, 0}, std::array{0, 0, -1}})
        window->setTime(hours, minutes, seconds);
    EXPECT_EQ(line(0), "4711                  00:00");
    window->showTime(false);
    EXPECT_EQ(line(0), whole("4711"));
}

TEST_F(SystemWindowTest, TheTimerCountsWhileItRuns)
{
    const std::string start = "                   ";
    window->setSystemWindowSize(1);
    window->showTimer();
    EXPECT_EQ(line(0), start + "00:00:00");
    window->setTimer("00:59:58");
    advance(5000);
    EXPECT_EQ(line(0), start + "00:59:58");

    window->startTimer("");
    advance(2000);
    EXPECT_EQ(line(0), start + "01:00:00");
    window->pauseTimer();
    advance(5000);
    EXPECT_EQ(line(0), start + "01:00:00");
    window->startTimer("99:59:58");
    advance(999);
    EXPECT_EQ(line(0), start + "99:59:58");
    EXPECT_EQ(window->getTimeToNextUpdate(), 1);
    advance(10000);
    EXPECT_EQ(line(0), start + "99:59:59");
    window->stopTimer();
    EXPECT_EQ(line(0), start + "00:00:00");
}

TEST_F(SystemWindowTest, AHiddenTimerRunsOnUnlessItIsStopped)
{
    window->setSystemWindowSize(1);
    window->startTimer("00:00:10");
    window->showTimer();
    window->hideTimer(false);
    EXPECT_EQ(line(0), whole("upper"));
    EXPECT_EQ(window->getTimeToNextUpdate(), 0);
    advance(5000);
    window->showTimer();
    EXPECT_EQ(line(0), "                   00:00:15");
    window->hideTimer(true);
    window->showTimer();
    advance(5000);
    EXPECT_EQ(line(0), "                   00:00:00");
}

TEST_F(SystemWindowTest, ATimeThatIsNoneChangesNothing)
{
    window->setSystemWindowSize(1);
    window->showTimer();
    window->setTimer("01:02:03");
    for (const char* time : {"", "1:02:03", "01:60:00", "01:00:60", "01-02-03", "-1:02:03", "01:02:03x", "ab:cd:ef"}) {
        window->setTimer(time);
        EXPECT_EQ(line(0), "                   01:02:03") << time;
    }
}

TEST_F(SystemWindowTest, IconsTimerAndClockShareTheRightSideAndTheTextGivesWay)
{
    window->setSystemWindowSize(1);
    setLine(0, "A text that needs the whole line");
    window->setAndUpdateHeadSetIcon(true);
    window->setAndUpdateSpeakerIcon(true);
    window->setAndUpdateMuteIcon(true);
    window->showTimer();
    window->showTime(true);
    window->setTime(10, 42, 0);
    EXPECT_EQ(line(0), "A text□□□□□□ 00:00:00 10:42");
    EXPECT_TRUE(hasIcon(0, 6, 90));
    EXPECT_TRUE(hasIcon(0, 8, 102));
    EXPECT_TRUE(hasIcon(0, 10, 46));

    window->setAndUpdateSpeakerIcon(false);
    window->hideTimer(true);
    EXPECT_EQ(line(0), "A text that needs□□□□ 10:42");
    EXPECT_TRUE(hasIcon(0, 19, 46));
}

TEST_F(SystemWindowTest, ReleaseDeletesItWhateverRuns)
{
    window->setSystemWindowSize(1);
    window->showTimer();
    window->startTimer("00:00:00");
    EXPECT_EQ(window->getSystemWindow(), window.get());
    window->release();
    EXPECT_FALSE(window);
    advance(5000);
    EXPECT_EQ(line(0), whole("upper"));
}

}
