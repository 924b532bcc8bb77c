#include "GlassTest.h"

#include "FPKBarMEG.h"
#include "StatusVolumeMEG.h"

#include <array>

namespace {

std::string lines(const std::vector<std::string>& items)
{
    std::string text;
    for (const std::string& item : items)
        text += item + "\n";
    return text;
}

class BarsTest : public GlassTest {
protected:
    template <typename Widget, typename... Arguments>
    Widget* add(Arguments... arguments)
    {
        auto* widget = new Widget(arguments...);
        root.addWidget(widget);
        return widget;
    }
};

// Function keys

TEST_F(BarsTest, LabelledKeysStandOnTheThirdLineInTheirOrder)
{
    auto* bar = add<FPKBarMEG>();
    EXPECT_EQ(bar->getRect(), URect(0, 32, 161, 46));
    bar->setFPKLabel(4, "Forwarding");
    bar->setFPKLabel(1, "Line1");
    bar->setFPKLabel(2, "Line2");
    bar->setFPKStatus(1, FPKBarMEG::On);
    bar->setFPKStatus(3, FPKBarMEG::On);
    bar->setFPKLabel(-1, "none");
    EXPECT_EQ(line(2), whole("Line1* Line2  Forwar"));
    EXPECT_EQ(line(1), whole("lower"));
    EXPECT_EQ(bar->serialise().toUTF8(),
        lines({"object:", "name:FPKBar", "subitem:", "name:FPKLabel", "icon0:On", "string0:Line1",
            "endsubitem:", "subitem:", "name:FPKLabel", "icon0:Off", "string0:Line2",
            "endsubitem:", "subitem:", "name:FPKLabel", "icon0:Off", "string0:Forwarding", "endsubitem:", "end:"}));
}

TEST_F(BarsTest, ShiftedKeysShowTheirAlternateLabels)
{
    auto* bar = add<FPKBarMEG>();
    bar->setFPKLabel(1, "Line1");
    bar->setFPKLabel(2, "Line2");
    bar->setAlternateLabel(1, "Alt1");
    bar->setAlternateLabel(3, "Alt3");
    EXPECT_EQ(line(2), whole("Line1  Line2"));

    bar->shiftFPKBar(true);
    EXPECT_EQ(line(2), whole("Alt1   Line2  Alt3"));
    bar->shiftFPKBar(false);

    bar->shiftFPKLabel(1);
    EXPECT_EQ(line(2), whole("Alt1   Line2"));
    bar->shiftFPKLabel(1);
    bar->shiftChangeEventForCertainFPKey(true, 3);
    EXPECT_EQ(line(2), whole("Line1  Line2  Alt3"));
    bar->shiftChangeEventForCertainFPKey(false, 3);
    EXPECT_EQ(line(2), whole("Line1  Line2"));
}

TEST_F(BarsTest, AFlashingLightBlinks)
{
    auto* bar = add<FPKBarMEG>();
    bar->setFPKLabel(1, "Two\nrows");
    bar->setFPKStatus(1, FPKBarMEG::Flash);
    EXPECT_NE(bar->serialise().toUTF8().find("icon0:Flash\nstring0:Two rows\n"), std::string::npos);
    bar->setFPKLabel(1, "DND");
    EXPECT_EQ(line(2), whole("DND*"));
    advance(500);
    EXPECT_EQ(line(2), whole("DND"));
    advance(500);
    EXPECT_EQ(line(2), whole("DND*"));
    advance(500);
    bar->setFPKStatus(1, FPKBarMEG::On);
    EXPECT_EQ(line(2), whole("DND*"));
}

// Status message

TEST_F(BarsTest, AStatusMessageReplacesTheFirstLine)
{
    auto* message = add<StatusMessageMEG>("Maintenance tonight", 5000u, 5000u);
    EXPECT_EQ(message->getRect(), URect(0, 0, 161, 14));
    EXPECT_EQ(line(0), whole("Maintenance tonight"));
    EXPECT_EQ(line(1), whole("lower"));
    EXPECT_EQ(manager.focusWidget(), below);
    advance(60000);
    EXPECT_EQ(line(0), whole("Maintenance tonight"));
    delete message;
    EXPECT_EQ(line(0), whole("upper"));
}

TEST_F(BarsTest, ALongStatusMessageIsShownInParts)
{
    const std::string first = "Maintenance tonight between";
    add<StatusMessageMEG>("Maintenance tonight between ten and eleven", 3000u, 5000u);
    EXPECT_EQ(line(0), first);
    advance(2000);
    EXPECT_EQ(line(0), whole(" ten and eleven"));
    advance(5000);
    EXPECT_EQ(line(0), first);
}

TEST_F(BarsTest, AStatusMessageIsABlock)
{
    auto* message = add<StatusMessageMEG>("two\nlines", 0u, 0u);
    EXPECT_EQ(message->text(), "two\nlines");
    const std::string block = lines({"object:", "name:StatusMessage", "string0:two lines", "end:"});
    EXPECT_EQ(message->serialise().toUTF8(), block);
}

// Volume

TEST_F(BarsTest, TheVolumeHidesItselfThreeSecondsAfterItWasSet)
{
    auto* volume = add<VolumeIndicatorMEG>(VolumeIndicatorMEG::Speaker, 3u, 0u, 10u);
    EXPECT_EQ(volume->getRect(), URect(0, 0, 161, 30));
    EXPECT_EQ(line(0), padded("□□Volume", 8));
    EXPECT_TRUE(hasIcon(0, 0, 102));
    advance(2000);
    volume->setVolume(4, 0, 10);
    advance(2999);
    EXPECT_TRUE(volume->isVisible());
    advance(1);
    EXPECT_FALSE(volume->isVisible());
    EXPECT_EQ(line(0), whole("upper"));

    volume->setVolume(5, 0, 10);
    EXPECT_TRUE(volume->isVisible());
    EXPECT_EQ(manager.focusWidget(), below);
}

TEST_F(BarsTest, TheVolumesTextTellsDeviceValueAndRange)
{
    const std::array words = {"Handset", "Headset", "Speaker", "Ringer", "RingerOff", "Volume"};
    auto* volume = add<VolumeIndicatorMEG>(VolumeIndicatorMEG::Volume, 7u, 1u, 10u);
    for (std::size_t icon = 0; icon < words.size(); ++icon) {
        volume->createIcon(static_cast<VolumeIndicatorMEG::VolumePreviewIconType>(icon));
        EXPECT_EQ(volume->serialise().toUTF8(),
            lines({"object:", "name:VolumeIndicator", std::string("icon:") + words[icon], "string0:7", "string1:1",
                "string2:10", "end:"}));
    }
    volume->createIcon(VolumeIndicatorMEG::RingerOff);
    EXPECT_EQ(line(0), padded("□□Ringer off", 12));
}

}
