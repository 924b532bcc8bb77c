#include "GlassTest.h"

#include "SystemWindow.h"
#include "UApplication.h"

#include <array>

namespace {

class SystemWindowTest : public GlassTest {
protected:
    SystemWindowTest()
    {
        application.setSoftwareType(static_cast<VantoUApplication::SoftwareType>(1));
        manager.setScreen(&glass);
    }
    ~SystemWindowTest() override
    {
        if (window)
            window->release();
    }

    void setLine(int number, const std::string& value) { window->setSystemWindowText(number, value, ""); }

    VantoUApplication application{UString(), new UScreenWE1, {}, {}, {}, {}};
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

    application.setSoftwareType(static_cast<VantoUApplication::SoftwareType>(0));
    EXPECT_EQ(line(0), whole("upper")) << "it belongs to one software type";
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
