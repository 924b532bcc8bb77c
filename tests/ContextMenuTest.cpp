#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/MenuCommand.h>

#include "ContextMenuPrivate.h"

#include <Semaphore.h>
#include <UApplication.h>
#include <VantoListBoxMEG.h>

#include <new>

using namespace DisplayAPI;

namespace {

class ContextMenuTest : public PhoneTest {
protected:
    ContextMenuTest()
    {
        menu.addCommandListener(&listener);
        show(below);
    }
    ContextMenuPrivate& half() { return dynamic_cast<ContextMenuPrivate&>(*menu.getPrivateImpl()); }
    void add(MenuCommand& command) { menu.addCommand(&command, nullptr, false, false, ""); }

    std::vector<std::string> log;
    TestScreen below{"below", log};
    RecordingListener listener;
    MenuCommand call{"Call?", 1};
    MenuCommand hold{"Hold?", 2};
    ContextMenu menu{true};
};

std::unique_ptr<ContextMenu> makeMenu(Stage& stage)
{
    auto menu = std::make_unique<ContextMenu>(true);
    menu->addCommandListener(&stage.listener);
    menu->addCommand(&stage.yes, nullptr, false, false, "");
    menu->addCommandWithIcon(&stage.no, nullptr, false);
    menu->setCommandText(&stage.yes, "Yes?", false); // as it was before an earlier menu
    menu->setAutoHideTimeout(3);
    return menu;
}

std::string tell(ContextMenu& menu)
{
    return std::to_string(menu.getSelectedIndex()) + (menu.selectionHasChanged() ? " changed " : " unchanged ")
        + std::to_string(menu.getCommandCount()) + (menu.getSelectedCommand() ? " a command" : " no command");
}

}

INSTANTIATE_TEST_SUITE_P(ContextMenu, EveryScreenTest,
    screenFamily<ContextMenu>(makeMenu,
        {
            {"addCommand", [](auto& menu, auto& stage) { menu.addCommand(&stage.maybe, nullptr, false, false, ""); }},
            {"addCommandWithIcon",
                [](auto& menu, auto& stage) { menu.addCommandWithIcon(&stage.last, nullptr, false); }},
            {"setCommandText", [](auto& menu, auto& stage) { menu.setCommandText(&stage.yes, "Other?", false); },
                false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }, false},
            {"setDefaultCommand", [](auto& menu, auto& stage) { menu.setDefaultCommand(&stage.last); }},
            {"setCommands",
                [](auto& menu, auto& stage) {
                    menu.setCommands({&stage.no, &stage.yes});
                }},
            {"clearCommands", [](auto& menu, auto&) { menu.clearCommands(); }},
            {"auto-hide", [](auto&, auto& stage) { stage.advance(3000); }},
            {"dismiss", [](auto& menu, auto&) { menu.dismiss(); }},
        },
        tell));

TEST_F(ContextMenuTest, TheMenuNamesTheLineOnWhichItBegins)
{
    add(call);
    show(menu);
    EXPECT_EQ(menu.getPrivateImpl()->serialise(),
        lines({"object:", "name:ContextMenu20Line2", "subitem:", "name:VantoListBoxItem", "string0:Call?",
            "endsubitem:", "end:"}));
    EXPECT_EQ(half().serialise(std::vector<URect>{URect(0, 0, 161, 30)}), half().serialise());
    EXPECT_EQ(half().serialise(std::vector<URect>{URect(0, 0, 161, 14)}), "");
    half().setHeight(2);
    EXPECT_EQ(fieldOf(half().serialise(), "name"), "ContextMenu20Line1");
    menu.dismiss();
    EXPECT_EQ(half().serialise(),
        lines({"object:", "subitem:", "name:VantoListBoxItem", "string0:Call?", "endsubitem:", "end:"}));
}

TEST_F(ContextMenuTest, OffTheGuiThreadTheMarksOfTheHandleDecide)
{
    struct Case {
        const char* name;
        bool headset, speaker, mute;
        std::uint16_t icon;
    };
    static_cast<ContextMenuMEG&>(*half().getWidget()).setDrawLineAtTop(false); // the icons stand there alone
    for (const Case& row :
        std::initializer_list<Case>{{"none", false, false, false, 0}, {"mute", false, false, true, 46},
            {"speaker before mute", false, true, true, 102}, {"headset first", true, true, true, 90}}) {
        menu.clearCommands();
        menu.setHeadSetStatus(row.headset);
        menu.setLoudSpeakerStatus(row.speaker);
        menu.setMuteStatus(row.mute);
        elsewhere([&] { menu.addCommand(&call, nullptr, false, !row.mute, "Mute"); });
        show(menu);
        EXPECT_EQ(row.icon != 0, glassLine(1).substr(0, 4) != "Call") << row.name;
        EXPECT_TRUE(row.icon == 0 || hasIcon(1, 0, row.icon)) << row.name;
        menu.clearCommands();
        menu.addCommand(&call, nullptr, false, true, "Speaker");
        EXPECT_TRUE(hasIcon(1, 0, 102)) << "on the GUI thread the arguments decide";
    }
}

TEST_F(ContextMenuTest, OnlyKnownIconTypesGetARowAndOnlySomeCount)
{
    struct Case {
        int iconType;
        int rows;
        unsigned int count;
    };
    for (const Case& row : std::initializer_list<Case>{
             {0, 1, 1}, {1, 0, 0}, {2, 1, 1}, {7, 1, 1}, {8, 1, 0}, {9, 0, 0}, {51, 1, 1}, {52, 1, 1}, {53, 0, 0}}) {
        MenuCommand command("row", static_cast<PhonebookItem::IconType>(row.iconType), 3);
        menu.clearCommands();
        changes.takeNotices();
        menu.addCommandWithIcon(&command, nullptr, false);
        EXPECT_EQ(menu.getSelectedIndex(), row.rows - 1) << row.iconType;
        EXPECT_EQ(menu.getCommandCount(), row.count) << row.iconType;
    }
    Command plain("plain", Command::Select);
    menu.clearCommands();
    menu.addCommand(&plain, nullptr, false, false, "");
    menu.addCommand(nullptr, nullptr, false, false, "");
    menu.addCommandWithIcon(nullptr, nullptr, false);
    EXPECT_EQ(menu.getSelectedIndex(), -1);
}

TEST_F(ContextMenuTest, EachMovementStartsTheTimeAnew)
{
    add(call);
    add(hold);
    menu.setAutoHideTimeout(5);
    advance(10'000);
    show(menu);
    advance(4000);
    press(UGlobal::KeyDown);
    advance(4000);
    EXPECT_EQ(display->getCurrent(), &menu);
    advance(1000);
    EXPECT_EQ(display->getCurrent(), &below);
    EXPECT_EQ(listener.waitFor(1).front().first->getType(), Command::Dismiss);

    show(menu);
    show(below); // takes its place
    advance(10'000);
    EXPECT_EQ(listener.count(), 1U) << "what is not in has no time";
}

TEST_F(ContextMenuTest, ACommandThatHasDiedPostsNothingAlsoWhenAnotherLivesThere)
{
    add(call);
    alignas(MenuCommand) unsigned char place[sizeof(MenuCommand)];
    auto* dying = new (place) MenuCommand("Clear?", 3);
    add(*dying);
    dying->~MenuCommand();
    auto* stranger = new (place) MenuCommand("Delete all?", 4);
    show(menu);
    press(UGlobal::KeyDown);
    EXPECT_EQ(menu.getSelectedCommand(), nullptr);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyUp);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyRight);
    press(UGlobal::KeyLeft);
    const std::vector<Command*> told = listener.commands(3);
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0], &call);
    EXPECT_EQ(told[1]->getType(), Command::Right);
    EXPECT_EQ(told[2]->getType(), Command::Back);
    stranger->~MenuCommand();
}

TEST_F(ContextMenuTest, TheDefaultCommandIsAddedOnceAndTheBackRowStaysLast)
{
    TestTranslator translator;
    translator.words["Back"] = "Return";
    menu.setBackTranslator(&translator);
    add(call);
    menu.setDefaultCommand(&hold);
    menu.setDefaultCommand(&hold);
    EXPECT_EQ(menu.getCommandCount(), 2U);
    show(menu);
    EXPECT_EQ(menu.getSelectedCommand(), &hold);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1).substr(0, 6), "Return");
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.waitFor(1).front().first->getType(), Command::Back);
}

TEST_F(ContextMenuTest, AMenuThatDiesGoesAsOneThatIsDismissed)
{
    auto dying = std::make_unique<ContextMenu>(false);
    show(*dying);
    changes.takeNotices();
    dying.reset();
    EXPECT_EQ(changes.takeNotices(), 1);
    EXPECT_EQ(display->getCurrent(), &below);
}

TEST_F(ContextMenuTest, AnUnknownRequestIsPrintedAndLetsItsCallerGo)
{
    testing::internal::CaptureStderr();
    for (const int number : {17, 21}) {
        bool isReleased = false;
        elsewhere([&] {
            Wait wait;
            auto* event = new GuiRequestEvent(&menu, &wait, number);
            UApplication::instance()->postEvent(event);
            isReleased = !wait.wait();
        });
        EXPECT_TRUE(isReleased) << number;
    }
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_NE(printed.find("received unknown gui request 17\n"), std::string::npos);
    EXPECT_NE(printed.find("received unknown gui request 21\n"), std::string::npos);
}
