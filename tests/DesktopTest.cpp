#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/Desktop.h>
#include <DisplayAPI/GuiRequestEvent.h>

#include "DesktopPrivate.h"

#include <Semaphore.h>
#include <UApplication.h>

using namespace DisplayAPI;

namespace {

class DesktopTest : public PhoneTest {
protected:
    /// The words of the icons that are on, as one text.
    std::string icons()
    {
        const std::string text = screenText();
        std::string words;
        for (std::size_t at = text.find("icon0:"); at != std::string::npos; at = text.find("icon0:", at + 1))
            words += text.substr(at + 6, text.find('\n', at) - at - 6) + " ";
        return words;
    }
};

}

INSTANTIATE_TEST_SUITE_P(Desktop, EveryScreenTest,
    screenFamily<Desktop>([](Stage&) { return std::make_unique<Desktop>(); },
        {
            {"displayKeyLockIcon", [](auto& desktop, auto&) { desktop.displayKeyLockIcon(true); }},
            {"displayDNDIcon", [](auto& desktop, auto&) { desktop.displayDNDIcon(true); }},
            {"displayHeadsetIcon", [](auto& desktop, auto&) { desktop.displayHeadsetIcon(true); }},
            {"displayRingerIcon", [](auto& desktop, auto&) { desktop.displayRingerIcon(Desktop::RINGER_A); }},
            {"displayMaintenanceIcon", [](auto& desktop, auto&) { desktop.displayMaintenanceIcon(true); }},
            {"displayMobileUserIcon", [](auto& desktop, auto&) { desktop.displayMobileUserIcon(true, 81); }},
            {"displayCallbacksIcon", [](auto& desktop, auto&) { desktop.displayCallbacksIcon(true); }},
            {"displayWifiStrengthIcon",
                [](auto& desktop, auto&) { desktop.displayWifiStrengthIcon(Desktop::WIFI_50); }},
            {"displayUsbIcon", [](auto& desktop, auto&) { desktop.displayUsbIcon(true); }},
            {"setSBPostTimeIcon", [](auto& desktop, auto&) { desktop.setSBPostTimeIcon(4, true); }},
            {"set12HourClockMode", [](auto& desktop, auto&) { desktop.set12HourClockMode(true); }},
            {"setTimeZoneOffset", [](auto& desktop, auto&) { desktop.setTimeZoneOffset(60); }},
            {"setTime", [](auto& desktop, auto&) { desktop.setTime(23, 59, 0); }, false},
            {"setDate", [](auto& desktop, auto&) { desktop.setDate(28, 2, 2026); }, false},
            {"setDayLabelText", [](auto& desktop, auto& stage) { desktop.setDayLabelText(&stage.translator); }, false},
            {"setLogoText", [](auto& desktop, auto&) { desktop.setLogoText("Example Ltd."); }},
            {"setDesktopString", [](auto& desktop, auto&) { desktop.setDesktopString("4711"); }, false},
            {"setStatusBarModePrev", [](auto& desktop, auto&) { desktop.setStatusBarModePrev("x"); }},
            {"displayStatusBarItems", [](auto& desktop, auto&) { desktop.displayStatusBarItems(false); }},
        },
        [](Desktop& desktop) { return desktop.getSBModeText() + desktop.getFPKLabel(1); }));

TEST_F(DesktopTest, ClockDayTextsAndIconsAreWrittenInTheirOrder)
{
    TestTranslator translator;
    translator.words = {{"day.Sat", "Sat"}, {"day.Sun", "Sun"}};
    Desktop desktop;
    show(desktop);
    EXPECT_EQ(screenText(), lines({"object:", "name:Desktop", "string0:", "end:"}));
    desktop.setTime(23, 59, 30);
    desktop.setDate(28, 2, 2026);
    desktop.setDayLabelText(&translator);
    desktop.setLogoText("Example Ltd.");
    desktop.setDesktopString("4711");
    desktop.displayWifiStrengthIcon(Desktop::WIFI_75);
    const std::string icon = lines({"subitem:", "name:DesktopIcon", "icon0:Wifi", "string0:75", "endsubitem:", "end:"});
    EXPECT_EQ(screenText(),
        lines({"object:", "name:Desktop", "caption:Example Ltd.", "string0:23:59 Sat", "string1:28.02.2026",
            "string2:4711"})
            + icon);
    changes.takeNotices();
    advance(30'000);
    EXPECT_EQ(changes.takeNotices(), 1) << "each new minute tells";
    EXPECT_EQ(screenField("string0"), "00:00 Sun");
    EXPECT_EQ(screenField("string1"), "01.03.2026");
    translator.words["day.Sun"] = "Dim";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string0"), "00:00 Dim");
    EXPECT_EQ(desktop.getPrivateImpl()->serialise(std::vector<Rect>{Rect(0, 0, 162, 15)}),
        lines({"object:", "name:Desktop", "string0:00:00 Dim", "string1:01.03.2026"}) + icon);
    EXPECT_EQ(desktop.getPrivateImpl()->serialise(std::vector<Rect>{Rect(0, 0, 80, 31)}), "");
}

TEST(DesktopGlassTest, EachTelephoneHasItsPlaceForClockDayAndTexts)
{
    struct Telephone : PhoneTest {
        explicit Telephone(const PhoneSetup& setup)
            : PhoneTest(setup)
        {
        }
        void TestBody() override { }
        std::string paintedDesktop()
        {
            TestTranslator translator;
            translator.words = {{"day.Fri", "Fri"}};
            Desktop desktop;
            desktop.setTime(10, 41, 0);
            desktop.setDate(27, 2, 2026);
            desktop.setDayLabelText(&translator);
            desktop.setLogoText("Example");
            desktop.setDesktopString("4711");
            desktop.displayHeadsetIcon(true);
            show(desktop);
            return glassLine(0) + "|" + glassLine(1);
        }
    };
    EXPECT_EQ(Telephone({}).paintedDesktop(), "Fri 27.02. 10:41         \u25A1\u25A1|4711                Example");
    EXPECT_EQ(Telephone({.softwareType = "Zelmark QVT"}).paintedDesktop(),
        "Fri 27.02.         \u25A1\u25A1 10:41|4711                Example");
    EXPECT_EQ(Telephone({.applicationName = "DesktopPhonelet"}).paintedDesktop().substr(0, 31),
        "Fri 27.02. 10:41 4711    \u25A1\u25A1");
}

TEST_F(DesktopTest, NumbersOfIconsOutsideTheirTablesTurnThemOff)
{
    Desktop desktop;
    show(desktop);
    const std::pair<int, const char*> ringers[] = {{1, "RingerA "}, {2, "RingerB "}, {0, ""}, {1, "RingerA "}, {7, ""}};
    for (const auto& [type, words] : ringers) {
        desktop.displayRingerIcon(static_cast<Desktop::RingerIconType>(type));
        EXPECT_EQ(icons(), words) << type;
    }
    for (const auto& [type, percent] : std::initializer_list<std::pair<int, const char*>>{
             {1, "100"}, {2, "75"}, {3, "50"}, {4, "25"}, {5, "100"}, {6, "75"}, {7, "50"}, {8, "25"}}) {
        desktop.displayWifiStrengthIcon(static_cast<Desktop::WifiIconType>(type));
        EXPECT_EQ(icons(), type <= 4 ? "Wifi " : "NoWifi ") << type;
        EXPECT_NE(screenText().find(std::string("string0:") + percent + "\n"), std::string::npos) << type;
    }
    desktop.displayWifiStrengthIcon(static_cast<Desktop::WifiIconType>(9));
    EXPECT_EQ(icons(), "");
    for (const auto& [which, words] : std::initializer_list<std::pair<int, const char*>>{{5, ""}, {0, ""},
             {1, "KeyLock "}, {2, "KeyLock DoNotDisturb "}, {3, "KeyLock DoNotDisturb RingerA "},
             {4, "KeyLock DoNotDisturb RingerA RingerB "}}) {
        changes.takeNotices();
        desktop.setSBPostTimeIcon(which, true);
        EXPECT_EQ(icons(), words) << which;
        EXPECT_EQ(changes.takeNotices(), 1) << "also where nothing has changed";
    }
}

TEST_F(DesktopTest, TheRequestsThatNobodyHasAndTheEmptyOnesComplete)
{
    Desktop desktop;
    show(desktop);
    const std::string before = screenText();
    elsewhere([&] {
        desktop.setExtLabelText("x");
        desktop.setStatusBarMode("x", "y");
        desktop.screensaverStart();
        desktop.screensaverSetImages(nullptr);
        desktop.addCommandListener(nullptr);
        desktop.setExtensionNumberAndArrowState(true);
        for (const int number : {16, 22, 38}) {
            Wait wait;
            UApplication::instance()->postEvent(new GuiRequestEvent(&desktop, &wait, number));
            EXPECT_TRUE(wait.wait()) << number;
        }
        EXPECT_EQ(desktop.getSBModeText(), "");
    });
    EXPECT_EQ(screenText(), before);
}
