#include "PhoneTest.h"

#include <DisplayAPI/List.h>

#include <FPKBarMEG.h>
#include <UScreenWE1.h>
#include <UWindowManager.h>

#include <array>

using namespace DisplayAPI;

// What the display itself lays over the screens, as it is painted.

namespace {

std::string whole(std::string text)
{
    text.resize(27, ' ');
    return text;
}

class SystemWindowGlassTest : public PhoneTest {
protected:
    SystemWindowGlassTest()
        : PhoneTest({.softwareType = "Zelmark QVT"})
    {
        display->setSystemWindowSize(1);
    }
};

class StatusGlassTest : public PhoneTest {
protected:
    StatusGlassTest()
    {
        list.append("upper");
        list.append("lower");
        show(list);
    }
    List list{0};
};

class KeyLabelTest : public PhoneTest {
protected:
    KeyLabelTest()
        : PhoneTest({.applicationName = "CallViewPhonelet", .hardware = {.displayLines = 3, .isRX70 = true}})
    {
        display->setFPKLabel(1, "Line1");
        display->setFPKLabel(2, "Line2");
    }
};

}

TEST_F(SystemWindowGlassTest, ItsLinesStandOverTheScreensOfItsSoftwareTypeAlone)
{
    List list(0);
    list.append("upper");
    list.append("lower");
    show(list);
    display->setSystemWindowSize(2);
    display->setSystemWindowText(0, "4711");
    EXPECT_EQ(glassLine(0), whole("4711"));
    EXPECT_EQ(glassLine(1).substr(0, 5), "lower") << "a line that was never set is the screen's";
    display->setSystemWindowText(1, "");
    EXPECT_EQ(glassLine(1), whole("")) << "a blank one is not";
    display->setSystemWindowSize(0);
    EXPECT_EQ(glassLine(0).substr(0, 5), "upper");
    display->setSystemWindowSize(1);
    display->setSoftwareType("Zelmark SIP");
    EXPECT_EQ(glassLine(0).substr(0, 5), "upper");
}

TEST_F(SystemWindowGlassTest, TheClockGoesOnByItself)
{
    display->setSystemWindowText(0, "4711");
    display->showTimeInSystemWindow(true);
    EXPECT_EQ(glassLine(0), whole("4711")) << "it has not been set";
    display->setTimeInSystemWindow(23, 58, 59);
    EXPECT_EQ(glassLine(0), "4711                  23:58");
    advance(1000);
    EXPECT_EQ(glassLine(0), "4711                  23:59");
    advance(60000);
    EXPECT_EQ(glassLine(0), "4711                  00:00");
    for (auto [hours, minutes, seconds] : {std::array{24, 0, 0}, std::array{0, 60, 0}, std::array{0, 0, -1}})
        display->setTimeInSystemWindow(hours, minutes, seconds);
    EXPECT_EQ(glassLine(0), "4711                  00:00");
    display->showTimeInSystemWindow(false);
    EXPECT_EQ(glassLine(0), whole("4711"));
}

TEST_F(SystemWindowGlassTest, TheTimerCountsWhileItRuns)
{
    const auto timer = [this] { return glassLine(0).substr(19); };
    display->showTimer();
    EXPECT_EQ(timer(), "00:00:00");
    display->setTimer("00:59:58");
    advance(5000);
    EXPECT_EQ(timer(), "00:59:58");
    display->startTimer("");
    advance(2000);
    EXPECT_EQ(timer(), "01:00:00");
    display->pauseTimer();
    advance(5000);
    EXPECT_EQ(timer(), "01:00:00");
    display->startTimer("99:59:58");
    advance(999);
    EXPECT_EQ(timer(), "99:59:58");
    advance(10000);
    EXPECT_EQ(timer(), "99:59:59") << "it stops at its end";
    display->stopTimer();
    EXPECT_EQ(timer(), "00:00:00");
}

TEST_F(SystemWindowGlassTest, IconsTimerAndClockShareTheRightSideAndTheTextGivesWay)
{
    display->setSystemWindowText(0, "A text that needs the whole line");
    display->setAndUpdateHeadSetIcon(true);
    display->setAndUpdateSpeakerIcon(true);
    display->setAndUpdateMuteIcon(true);
    display->showTimer();
    display->showTimeInSystemWindow(true);
    display->setTimeInSystemWindow(10, 42, 0);
    EXPECT_EQ(glassLine(0), "A text\u25A1\u25A1\u25A1\u25A1\u25A1\u25A1 00:00:00 10:42");
    EXPECT_TRUE(hasIcon(0, 6, 90));
    EXPECT_TRUE(hasIcon(0, 8, 102));
    EXPECT_TRUE(hasIcon(0, 10, 46));
    display->setAndUpdateSpeakerIcon(false);
    display->hideTimer(true);
    EXPECT_EQ(glassLine(0), "A text that needs\u25A1\u25A1\u25A1\u25A1 10:42");
    EXPECT_TRUE(hasIcon(0, 19, 46));
}

TEST_F(StatusGlassTest, AStatusMessageTakesTheFirstLineAndALongOneIsShownInParts)
{
    display->setStatusMessage("Maintenance tonight", 5000);
    EXPECT_EQ(glassLine(0), whole("Maintenance tonight"));
    advance(60000);
    EXPECT_EQ(glassLine(0), whole("Maintenance tonight"));
    press(UGlobal::KeyDown);
    EXPECT_EQ(list.getSelectedIndex(), 1) << "the list keeps the keys";
    display->setStatusMessage("Maintenance tonight between ten and eleven", 5000);
    EXPECT_EQ(glassLine(0), "Maintenance tonight between");
    advance(5000);
    EXPECT_EQ(glassLine(0), whole("ten and eleven"));
    advance(5000);
    EXPECT_EQ(glassLine(0), "Maintenance tonight between");
    display->setStatusMessage("two\nlines", 0);
    EXPECT_EQ(screenField("string0"), "two lines");
    display->setStatusMessage("", 0);
    EXPECT_EQ(glassLine(0).substr(0, 5), "upper");
}

TEST_F(StatusGlassTest, TheVolumeHidesItselfThreeSecondsAfterItWasSet)
{
    display->setPreviewVolume(2, 3, 0, 10, 0);
    EXPECT_EQ(glassLine(0).substr(0, 12), "\u25A1\u25A1Volume");
    EXPECT_TRUE(hasIcon(0, 0, 102));
    advance(2000);
    display->setPreviewVolume(2, 4, 0, 10, 0);
    press(UGlobal::KeyDown);
    EXPECT_EQ(list.getSelectedIndex(), 1) << "the list keeps the keys";
    advance(2999);
    EXPECT_EQ(screenField("string0"), " lower");
    EXPECT_NE(
        screenText().find("name:VolumeIndicator\nicon:Speaker\nstring0:4\nstring1:0\nstring2:10\n"), std::string::npos);
    advance(1);
    EXPECT_EQ(screenText().find("VolumeIndicator"), std::string::npos);
    EXPECT_EQ(glassLine(1).substr(0, 5), "lower");
    display->setPreviewVolume(3, 4, 0, 10, 1);
    EXPECT_EQ(glassLine(0), "\u25A1\u25A1" + whole("Ringer off").substr(0, 25));
}

TEST_F(StatusGlassTest, TheLimitIsTheRingersAndTheOthersShowAVolumeOfOne)
{
    const auto inkOf = [this](unsigned int device, unsigned int volume) {
        display->setPreviewVolume(device, volume, 0, 10, 0);
        pump();
        int pixels = 0;
        for (int place = 0; place < 162 * 15; ++place)
            pixels += UWindowManager::instance().screen()->pixel(place % 162, 16 + place / 162) ? 1 : 0;
        return pixels;
    };
    const int empty = inkOf(2, 0);
    display->setRingerVolumeBarLimit(3);
    EXPECT_EQ(inkOf(3, 2), empty);
    EXPECT_GT(inkOf(3, 3), empty);
    EXPECT_GT(inkOf(2, 1), empty);
}

TEST_F(KeyLabelTest, LabelledKeysStandOnTheThirdLineInTheirOrder)
{
    display->setFPKLabel(4, "Forwarding");
    display->setFPKStatus(1, FPKBarMEG::On);
    display->setFPKStatus(3, FPKBarMEG::On);
    display->setFPKLabel(-1, "none");
    EXPECT_EQ(glassLine(2), whole("Line1* Line2  Forwar"));
    EXPECT_EQ(glassLine(1), whole(""));
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FPKBar", "subitem:", "name:FPKLabel", "icon0:On", "string0:Line1",
            "endsubitem:", "subitem:", "name:FPKLabel", "icon0:Off", "string0:Line2",
            "endsubitem:", "subitem:", "name:FPKLabel", "icon0:Off", "string0:Forwarding", "endsubitem:", "end:"}));
}

TEST_F(KeyLabelTest, ShiftedKeysShowTheirAlternateLabels)
{
    display->setAlternateLabel(1, "Alt1");
    display->setAlternateLabel(3, "Alt3");
    EXPECT_EQ(glassLine(2), whole("Line1  Line2"));
    display->shiftFPKBar(true);
    EXPECT_EQ(glassLine(2), whole("Alt1   Line2  Alt3"));
    display->shiftFPKBar(false);
    display->shiftFPKLabel(1);
    EXPECT_EQ(glassLine(2), whole("Alt1   Line2"));
    display->shiftFPKLabel(1);
    display->shiftChangeEventForCertainFPKey(true, 3);
    EXPECT_EQ(glassLine(2), whole("Line1  Line2  Alt3"));
    display->shiftChangeEventForCertainFPKey(false, 3);
    EXPECT_EQ(glassLine(2), whole("Line1  Line2"));
}

TEST_F(KeyLabelTest, AFlashingLightBlinks)
{
    display->setFPKLabel(1, "Two\nrows");
    display->setFPKStatus(1, FPKBarMEG::Flash);
    EXPECT_EQ(screenField("icon0"), "Flash");
    EXPECT_EQ(screenField("string0"), "Two rows");
    display->setFPKLabel(1, "DND");
    for (const char* label : {"DND*   Line2", "DND    Line2", "DND*   Line2", "DND    Line2"}) {
        EXPECT_EQ(glassLine(2), whole(label));
        advance(500);
    }
    advance(500);
    display->setFPKStatus(1, FPKBarMEG::On);
    EXPECT_EQ(glassLine(2), whole("DND*   Line2"));
}
