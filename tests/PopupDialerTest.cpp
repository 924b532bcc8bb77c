#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupDialer.h>

#include "PopupDialerPrivate.h"

#include <Log.h>
#include <VantoListBoxMEG.h>

#include <atomic>
#include <cstddef>
#include <memory>

using namespace DisplayAPI;

namespace {

class PopupDialerTest : public PhoneTest {
protected:
    PopupDialerPrivate& half() { return dynamic_cast<PopupDialerPrivate&>(*dialer.getPrivateImpl()); }

    RecordingListener listener;
    MenuCommand call{"Call?", 1};
    MenuCommand save{"Save?", 2};
    PopupDialer dialer{true, 3};
};

std::unique_ptr<PopupDialer> makeDialer(Stage& stage)
{
    auto dialer = std::make_unique<PopupDialer>(true, 3);
    dialer->addCommandListener(&stage.listener);
    dialer->addCommand(&stage.yes);
    dialer->addCommand(&stage.no);
    dialer->setText("Dial:");
    dialer->setMode(PopupDialer::LABEL);
    return dialer;
}

std::string tell(PopupDialer& dialer)
{
    return std::to_string(dialer.getSelectedIndex()) + (dialer.selectionHasChanged() ? " changed " : " unchanged ")
        + dialer.getLineEditText();
}

}

INSTANTIATE_TEST_SUITE_P(PopupDialer, EveryScreenTest,
    screenFamily<PopupDialer>(makeDialer,
        {
            {"setText", [](auto& dialer, auto&) { dialer.setText("Number:"); }, false},
            {"a translation", [](auto& dialer, auto& stage) { dialer.setText(stage.translation("dial")); }, false},
            {"setLine1PrefixText",
                [](auto& dialer, auto& stage) { dialer.setLine1PrefixText(stage.translation("to")); }, false},
            {"setLine2Text", [](auto& dialer, auto& stage) { dialer.setLine2Text(stage.translation("hint")); }, false},
            {"a digit", [](auto&, auto& stage) { stage.press('5'); }},
            {"setLineEditText", [](auto& dialer, auto&) { dialer.setLineEditText("0123"); }},
            {"its translation", [](auto& dialer, auto& stage) { dialer.setLineEditText(stage.translation("0800")); }},
            {"setMode", [](auto& dialer, auto&) { dialer.setMode(PopupDialer::LABEL); }, false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"setDefaultCommand", [](auto& dialer, auto& stage) { dialer.setDefaultCommand(&stage.last); }},
            {"removeCommand", [](auto& dialer, auto& stage) { dialer.removeCommand(&stage.yes); }},
            {"setEditMode", [](auto& dialer, auto&) { dialer.setEditMode(); }, false},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }, false},
            {"setIgnoreKeypadEvents", [](auto& dialer, auto&) { dialer.setIgnoreKeypadEvents(true); }, false},
            {"setAltEditPrefixText",
                [](auto& dialer, auto& stage) { dialer.setAltEditPrefixText(stage.translation("gone")); }, false},
            {"clearCommands", [](auto& dialer, auto&) { dialer.clearCommands(); }},
            {"dismiss", [](auto& dialer, auto&) { dialer.dismiss(); }},
        },
        tell));

TEST_F(PopupDialerTest, LinesAndChoicesAreWrittenAndPainted)
{
    TestTranslator translator;
    dialer.setText("Redial list");
    dialer.setMode(PopupDialer::LABEL);
    dialer.setLine1PrefixText(new TranslationInfo("", "Call", "", &translator));
    dialer.addCommand(&call);
    dialer.addCommand(&save);
    show(dialer);
    EXPECT_EQ(
        screenText(), lines({"object:", "name:PopupDialler", "caption:Call: Redial list", "string0:Call? ", "end:"}));
    EXPECT_EQ(glassLine(0), "Call: Redial list          ");
    EXPECT_EQ(glassLine(1), "Call?                     v");

    type("0");
    type("*1#");
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenText(), lines({"object:", "name:PopupDialler", "caption:Call: 0*1#", "string1:Save? ", "end:"}));
    EXPECT_EQ(half().serialise(std::vector<URect>{URect(0, 0, 161, 30)}),
        lines({"object:", "name:PopupDialler", "caption:0*1#", "string1:Save?", "end:"}));
    EXPECT_EQ(half().serialise(std::vector<URect>{URect(0, 0, 161, 29)}), "") << "not wholly inside";
    EXPECT_EQ(dialer.getLineEditText(), "0*1#");

    dialer.setLine1PrefixText("Dial");
    EXPECT_EQ(screenField("caption"), "0*1#") << "a prefix without a translation is on the glass alone";
    EXPECT_EQ(glassLine(0).substr(0, 10), "Dial: 0*1#");
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenText(), lines({"object:", "name:PopupDialler", "caption:0*1#", "end:"}))
        << "the row that deletes is not written";
}

TEST_F(PopupDialerTest, TypingMovingAndChoosingAreToldInOrder)
{
    RecordingListener typing;
    std::atomic<bool> isAnItem = false;
    typing.changeReaction = [&isAnItem](Item* item) { isAnItem = item && !item->getPrivateImpl(); };
    // Each change is waited for, since one that still waits is not queued twice.
    std::size_t heard = 0;
    const auto hears = [&] {
        ++heard;
        return typing.told(heard).size() == heard;
    };
    dialer.addItemStateListener(&typing);
    dialer.addItemStateListener(&typing);
    dialer.addCommandListener(&listener);
    dialer.addCommandListener(&listener);
    dialer.getPrivateImpl()->removeCommandListener(&listener);
    dialer.addCommand(&call);
    dialer.addCommand(&save);
    dialer.setMode(PopupDialer::LABEL);
    show(dialer);
    for (const char* key : {"1", "2"}) {
        type(key);
        EXPECT_TRUE(hears());
    }
    EXPECT_TRUE(isAnItem);
    EXPECT_FALSE(dialer.selectionHasChanged());
    press(UGlobal::KeyDown);
    EXPECT_TRUE(dialer.selectionHasChanged());
    EXPECT_FALSE(dialer.selectionHasChanged());
    press(UGlobal::KeyOk);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk); // the row that deletes
    EXPECT_EQ(dialer.getLineEditText(), "1");
    EXPECT_TRUE(hears());
    press(UGlobal::KeyLeft);
    EXPECT_TRUE(hears());
    dialer.removeItemStateListener(&typing);
    type("3");
    press(UGlobal::KeyLeft);
    press(UGlobal::KeyLeft);
    const std::vector<Command*> told{PopupDialer::EditFieldShownCommand(), &save, PopupDialer::BackCommand()};
    EXPECT_EQ(listener.commands(3), told);
    EXPECT_EQ(typing.count(), 4U) << "once for each change, although it was added twice";
    EXPECT_EQ(display->getCurrent(), &dialer) << "the application dismisses the dialer, nobody else";
}

TEST_F(PopupDialerTest, TheRowThatDeletesStaysBelowTheChoices)
{
    show(dialer);
    type("7");
    dialer.addCommand(&call);
    dialer.setDefaultCommand(&save);
    EXPECT_EQ(dialer.getSelectedIndex(), 1);
    EXPECT_EQ(screenField("string1"), "Save? ");
    int before = changes.count;
    dialer.removeCommand(&save);
    dialer.removeCommand(&save);
    EXPECT_EQ(changes.count, before + 2) << "also for a command that is not there";
    EXPECT_EQ(half().dialerWidget()->listbox()->count(), 2);

    dialer.clearCommands();
    EXPECT_EQ(half().dialerWidget()->listbox()->count(), 1) << "the number can still be deleted";
    dialer.setDefaultCommand(&call);
    EXPECT_EQ(screenField("string0"), "Call? ");
    dialer.setLineEditText("");
    dialer.clearCommands();
    EXPECT_EQ(dialer.getSelectedIndex(), -1);
}

TEST_F(PopupDialerTest, AChoiceWhoseCommandHasDiedPostsNothing)
{
    // The allocator gives addresses away again.
    alignas(MenuCommand) std::byte memory[sizeof(MenuCommand)];
    auto* gone = new (memory) MenuCommand("Gone?", 5);
    dialer.addCommandListener(&listener);
    dialer.addCommand(gone);
    dialer.addCommand(nullptr);
    show(dialer);
    std::destroy_at(gone);
    auto* other = new (memory) MenuCommand("Other?", 6);
    press(UGlobal::KeyOk);
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string0"), "Gone? ");
    dialer.setDefaultCommand(other);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{other});
    dialer.removeCommand(other);
    std::destroy_at(other);
    EXPECT_EQ(screenField("string0"), "Gone? ");
    dialer.removeCommand(other);
    EXPECT_EQ(screenField("string0"), "(no such field)") << "a dead command can be removed by its address";
}

TEST_F(PopupDialerTest, AChangeOfLocaleReadsLinesAndChoicesAgain)
{
    TestTranslator dictionary;
    MenuCommand translated(new TranslationInfo("", "go", "!", &dictionary), 3);
    dialer.setText(new TranslationInfo("", "text", "", &dictionary));
    dialer.setLine1PrefixText(new TranslationInfo("<", "to", ">", &dictionary));
    dialer.setLine2Text(new TranslationInfo("", "hint", "", &dictionary));
    dialer.setLineEditText(new TranslationInfo("", "edit", "", &dictionary));
    show(dialer);
    type("1");
    EXPECT_EQ(screenField("caption"), "<to>: edit1");
    dictionary.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("caption"), "<fr to>: fr edit") << "what was typed is overwritten";
    EXPECT_EQ(half().dialerWidget()->getText().toUTF8(), "fr text");
    dialer.addCommand(&call);
    dialer.setDefaultCommand(&translated);
    dictionary.prefix = "de ";
    display->localeChanged("de");
    EXPECT_EQ(screenField("string1"), "de go! ");
    dialer.setMode(PopupDialer::LABEL);
    EXPECT_EQ(glassLine(1).substr(0, 7), "de hint");
}

TEST_F(PopupDialerTest, AnUnknownModeIsToldToTheLogAlone)
{
    static std::string told;
    LogControl::setLevel("PopupDialerPrivate", 2);
    LogControl::setSink([](const LogControl::Message& message) { told += message.text; });
    dialer.setLineEditText("5");
    show(dialer);
    dialer.setMode(static_cast<PopupDialer::eMode>(7));
    LogControl::reset();
    EXPECT_EQ(told, "setMode: unknown mode 7");
    EXPECT_EQ(screenField("caption"), "5");
}

TEST_F(PopupDialerTest, TheSystemWindowsTextStandsInTheLines)
{
    PopupDialerPrivate& screen = half();
    dialer.setMode(PopupDialer::LABEL);
    show(dialer);
    screen.setSysWindowText("first", 0);
    screen.setSysWindowText("second", 1);
    screen.setSysWindowText("third", 2);
    EXPECT_EQ(glassLine(0).substr(0, 6), "first ");
    EXPECT_EQ(glassLine(1).substr(0, 7), "second ");
    dialer.setText("own");
    screen.setSysWindowText("first", 0);
    pump();
    EXPECT_EQ(glassLine(0).substr(0, 4), "own ") << "the same text is not set twice";
}
