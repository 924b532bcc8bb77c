#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/DisplayablePrivateIfc.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>

#include "PopupConfirmPrivate.h"

#include <UApplication.h>
#include <UWidget.h>

#include <functional>

using namespace DisplayAPI;

namespace {

class PopupConfirmTest : public PhoneTest {
protected:
    ~PopupConfirmTest() override
    {
        if (display)
            display->setCurrent(nullptr);
    }

    PopupConfirmPrivate& half(PopupConfirm& popup)
    {
        return dynamic_cast<PopupConfirmPrivate&>(*popup.getPrivateImpl());
    }

    RecordingListener listener;
    MenuCommand yes{"Yes?", 1};
    MenuCommand no{"No?", 2};
};

}

TEST_F(PopupConfirmTest, ThePopupIsWrittenWithIconQuestionAndCurrentChoice)
{
    PopupConfirm popup(true);
    popup.setState(PopupConfirm::Question);
    popup.setLine1PrefixText("Delete");
    popup.setText("entry\nof Anna?");
    popup.setLine2PrefixText("Number");
    popup.addCommand(&yes);
    popup.addCommand(&no);
    show(popup);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupDialog", "icon:Question", "caption:Delete: entry of Anna? Number: ", "subitem:",
            "name:VantoListBoxItem", "string0:Yes?", "endsubitem:", "end:"}));
    EXPECT_EQ(half(popup).serialise(std::vector<URect>{URect(0, 0, 161, 30)}),
        lines({"object:", "name:PopupDialog", "icon:Question", "string0:Delete: entry of Anna? Number: ", "subitem:",
            "name:VantoListBoxItem", "string0:Yes?", "endsubitem:", "end:"}));
    EXPECT_EQ(half(popup).serialise(std::vector<URect>{URect(0, 0, 161, 14)}), "") << "the popup is not wholly inside";
}

TEST_F(PopupConfirmTest, TheQuestionAndTheCurrentChoiceArePainted)
{
    PopupConfirm popup(true);
    popup.setState(PopupConfirm::Question);
    popup.setText("Delete entry?");
    popup.addCommand(&yes);
    popup.addCommand(&no);
    show(popup);
    EXPECT_EQ(glassLine(0).substr(glassLine(0).find("Delete"), 13), "Delete entry?");
    EXPECT_EQ(glassLine(1), "Yes?                      v");
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "No?                       ^");
}

TEST_F(PopupConfirmTest, EachStateHasItsIconWord)
{
    struct Case {
        int state;
        const char* word;
        const char* wordWithRects;
    };
    const Case cases[] = {{0, "Info", "Info"}, {1, "Question", "Question"}, {5, "Recall", "Recall"},
        {6, "(no such field)", "(no such field)"}, {7, "Mobile User Changes", "(no such field)"},
        {99, "(no such field)", "(no such field)"}};
    PopupConfirm popup(true);
    show(popup);
    EXPECT_EQ(screenField("icon"), "Info") << "before a state is set";
    for (const Case& row : cases) {
        popup.setState(static_cast<PopupConfirm::PopupState>(row.state));
        EXPECT_EQ(screenField("icon"), row.word) << "state " << row.state;
        EXPECT_EQ(fieldOf(half(popup).serialise(std::vector<URect>{URect(0, 0, 161, 30)}), "icon"), row.wordWithRects)
            << "state " << row.state;
    }
}

TEST_F(PopupConfirmTest, AChangeOfLocaleReadsTheTranslationsAndTheChoicesAgain)
{
    TestTranslator dictionary;
    dictionary.words = {{"delete", "Delete"}, {"entry", "entry"}, {"really", "Really"}, {"ok", "OK"}};
    MenuCommand first(new TranslationInfo("", "ok", "?", &dictionary), 3);
    PopupConfirm popup(true);
    popup.setLine1PrefixText(new TranslationInfo("<", "delete", ">", &dictionary));
    popup.setText(new TranslationInfo("entry", &dictionary));
    popup.setLine2Text(new TranslationInfo("really", &dictionary));
    popup.addCommand(&yes);
    popup.addCommand(&first);
    popup.removeCommand(&yes); // its row stays, so rows and commands differ in position
    popup.setDefaultCommand(&first);
    show(popup);
    EXPECT_EQ(screenField("caption"), "Delete: entry Really ") << "the prefix is read without its own prefix";

    dictionary.words = {{"delete", "Supprimer"}, {"entry", "entrée"}, {"really", "Vraiment"}, {"ok", "Oui"}};
    display->localeChanged("fr");
    EXPECT_EQ(screenField("caption"), "<Supprimer>: entrée Vraiment") << "each text in its own line";
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenField("string0"), "Oui?");
    press(UGlobal::KeyUp);
    EXPECT_EQ(screenField("string0"), "Yes?") << "the row of the removed command keeps its text";
}

TEST_F(PopupConfirmTest, APartyIsShownByNameElseByNumberElseAsUnknown)
{
    struct Case {
        const char* name;
        const char* number;
        const char* caption;
    };
    const Case cases[] = {{"Anna", "4711", "Anna "}, {"Caller.Unknown.XXX", "4711", "4711 "}, {"Anna", "", "Anna "},
        {"Caller.Unknown.XXX", "Caller.Unknown.XXX", "Unknown caller "}, {"", "", "Unknown caller "}};
    TestTranslator dictionary;
    dictionary.words = {{"Caller.Unknown.XXX", "Unknown caller"}};
    display->setTranslator(&dictionary);
    PopupConfirm popup(true);
    show(popup);
    for (const Case& row : cases) {
        popup.setPartyDetails(CallPartyIdentifier(row.name, row.number), 0);
        EXPECT_EQ(screenField("caption"), row.caption) << row.name << ", " << row.number;
    }
    display->setTranslator(nullptr);
}

TEST_F(PopupConfirmTest, OnlyLivingMenuCommandsGetARow)
{
    PopupConfirm popup(true);
    Command plain("Plain", Command::Select);
    auto* dead = new MenuCommand("Dead?", 4);
    delete dead;
    const int before = changes.count;
    popup.addCommand(nullptr);
    popup.addCommand(dead);
    EXPECT_EQ(changes.count, before);
    show(popup);
    popup.addCommand(&plain);
    EXPECT_EQ(screenField("string0"), "(no such field)");
    popup.setDefaultCommand(&plain);
    popup.addCommand(&no);
    popup.setDefaultCommand(&yes);
    popup.show();
    EXPECT_EQ(screenField("string0"), "Yes?") << "the default command was added, and is current";
    EXPECT_EQ(popup.getSelectedIndex(), 1);
    popup.clearCommands();
    EXPECT_EQ(screenField("string0"), "(no such field)");
}

TEST_F(PopupConfirmTest, MovingMarksTheSelectionAsChangedOnce)
{
    PopupConfirm popup(true);
    popup.addCommand(&yes);
    popup.addCommand(&no);
    show(popup);
    EXPECT_FALSE(popup.selectionHasChanged());
    const int before = changes.count;
    press(UGlobal::KeyDown);
    EXPECT_EQ(changes.count, before + 1);
    EXPECT_EQ(popup.getSelectedIndex(), 1);
    EXPECT_TRUE(popup.selectionHasChanged());
    EXPECT_FALSE(popup.selectionHasChanged());
}

TEST_F(PopupConfirmTest, ChoiceBackAndRemovedRowsReachTheListenersInOrder)
{
    PopupConfirm popup(true);
    popup.addCommandListener(&listener);
    popup.addCommand(&yes);
    popup.addCommand(&no);
    show(popup);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyLeft);
    popup.removeCommand(&no);
    press(UGlobal::KeyOk);
    const auto commands = listener.commands(3);
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_EQ(commands[0], &no);
    EXPECT_EQ(commands[1]->getType(), Command::Back);
    EXPECT_EQ(commands[2], &no) << "a removed command keeps its row";
    EXPECT_EQ(display->getCurrent(), &popup) << "the application dismisses the popup, nobody else";
    EXPECT_EQ(listener.waitFor(3)[0].second, &popup);
}

TEST_F(PopupConfirmTest, AChoiceWhoseCommandHasDiedPostsNothing)
{
    PopupConfirm popup(true);
    auto shortLived = std::make_unique<MenuCommand>("Gone?", 5);
    popup.addCommandListener(&listener);
    popup.addCommand(shortLived.get());
    popup.addCommand(&yes);
    show(popup);
    shortLived.reset();
    press(UGlobal::KeyOk);
    display->localeChanged("fr");
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{&yes});
}

TEST_F(PopupConfirmTest, GoingDownShowsTheScreenBelowAndThenTellsTheListeners)
{
    List below(0);
    below.setTitle("Below");
    PopupConfirm popup(true);
    popup.addCommandListener(&listener);
    popup.addCommand(&yes);
    popup.setTimeout(3000);
    show(below);

    show(popup);
    advance(2000);
    popup.addCommand(&no);
    press(UGlobal::KeyDown); // starts the time anew
    advance(2500);
    EXPECT_EQ(display->getCurrent(), &popup);
    advance(500);
    EXPECT_EQ(display->getCurrent(), &below);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{PopupConfirm::HIDDEN_COMMAND()});

    show(popup);
    popup.dismiss();
    EXPECT_EQ(display->getCurrent(), &below);
    EXPECT_EQ(listener.commands(2).size(), 2u);
    EXPECT_EQ(screenField("caption"), "Below");
    popup.dismiss();
    EXPECT_EQ(display->getCurrent(), &below) << "a popup that is down already changes nothing";
}

TEST_F(PopupConfirmTest, NoOrderOfDestructionIsFatal)
{
    {
        PopupConfirm shown(true);
        shown.addCommand(&yes);
        show(shown);
    }
    EXPECT_EQ(display->getCurrent(), nullptr) << "the display forgets a popup that dies on the stack";
    EXPECT_EQ(screenText(), "");
    press(UGlobal::KeyOk);

    PopupConfirm outlives(true);
    outlives.addCommand(&yes);
    show(outlives);
    endDisplay();
    outlives.setText("still usable");
    outlives.addCommand(&no);
    EXPECT_EQ(outlives.getSelectedIndex(), 0);
}

TEST_F(PopupConfirmTest, ASubscriberMayDeleteThePopupInAnyNotice)
{
    std::unique_ptr<PopupConfirm> popup;
    using Change = std::function<void(PopupConfirm&)>;
    const std::pair<const char*, Change> table[] = {
        {"setLine1PrefixText", [](PopupConfirm& dying) { dying.setLine1PrefixText("Delete"); }},
        {"setText", [](PopupConfirm& dying) { dying.setText(new TranslationInfo("entry?", nullptr)); }},
        {"setLine2Text", [](PopupConfirm& dying) { dying.setLine2Text("Anna"); }},
        {"setState", [](PopupConfirm& dying) { dying.setState(PopupConfirm::Recall); }},
        {"addCommand", [this](PopupConfirm& dying) { dying.addCommand(&no); }},
        {"setDefaultCommand", [this](PopupConfirm& dying) { dying.setDefaultCommand(&no); }},
        {"removeCommand", [this](PopupConfirm& dying) { dying.removeCommand(&yes); }},
        {"clearCommands", [](PopupConfirm& dying) { dying.clearCommands(); }},
        {"dismiss", [](PopupConfirm& dying) { dying.dismiss(); }},
        {"time-out", [this](PopupConfirm&) { advance(3000); }},
        {"Ok", [this](PopupConfirm&) { press(UGlobal::KeyOk); }},
    };
    for (const auto& [name, change] : table) {
        SCOPED_TRACE(name);
        popup = std::make_unique<PopupConfirm>(true);
        popup->setTimeout(3000);
        popup->addCommandListener(&listener);
        popup->addCommand(&yes);
        show(*popup);
        changes.onNextNotice = [&] { popup.reset(); };
        change(*popup);
        EXPECT_EQ(popup, nullptr);
        EXPECT_EQ(display->getCurrent(), nullptr);
    }
}

TEST_F(PopupConfirmTest, APopupWhoseWidgetHasGoneIsQuiet)
{
    PopupConfirm popup(true);
    popup.addCommand(&yes);
    PopupConfirmPrivate& whole = half(popup);
    whole.releaseOwnership();
    delete whole.getWidget();
    popup.setText(new TranslationInfo("entry?", nullptr));
    popup.setLine2Text("Anna");
    popup.setState(PopupConfirm::Question);
    popup.setDefaultCommand(&no);
    popup.removeCommand(&yes);
    popup.clearCommands();
    popup.setTimeout(1000);
    popup.show();
    popup.dismiss();
    display->localeChanged("fr");
    show(popup);
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_EQ(popup.getSelectedIndex(), -1);
    EXPECT_EQ(whole.serialise(), "");
    EXPECT_EQ(whole.serialise(std::vector<URect>{URect(0, 0, 161, 30)}), "");
}

TEST_F(PopupConfirmTest, OddTextsAreTakenAsTheyAre)
{
    PopupConfirm popup(true);
    show(popup);
    const std::string long1 = std::string(1 << 20, 'x');
    popup.setText(long1);
    EXPECT_EQ(screenField("caption").size(), long1.size() + 1);
    popup.setText("\xff\xfe"
                  "A");
    EXPECT_EQ(screenField("caption"),
        "\xEF\xBF\xBD\xEF\xBF\xBD"
        "A ");
    popup.setText(std::string("a\0b", 3));
    EXPECT_EQ(screenField("caption"), std::string("a\0b ", 4));
}

TEST(PopupConfirmRoads, BothRoadsGiveTheSame)
{
    const std::string text = onBothRoads([](Display& display) {
        MenuCommand yes("Yes?", 1);
        MenuCommand no("No?", 2);
        PopupConfirm popup(true);
        popup.setState(PopupConfirm::Recall);
        popup.setLine1PrefixText("Call");
        popup.setText("Anna");
        popup.setLine2PrefixText("again");
        popup.setLine2Text("now?");
        popup.addCommand(&yes);
        popup.setDefaultCommand(&no);
        popup.setTimeout(5000);
        display.setCurrent(&popup);
        std::string seen = display.serialiseByRect({wholeGlass()}, "");
        seen
            += std::to_string(popup.getSelectedIndex()) + (popup.selectionHasChanged() ? " changed\n" : " unchanged\n");
        popup.removeCommand(&yes);
        popup.clearCommands();
        popup.dismiss();
        return seen + display.serialiseByRect({wholeGlass()}, "");
    });
    EXPECT_EQ(text,
        lines({"object:", "name:PopupDialog", "icon:Recall", "caption:Call: Anna now? again: ", "subitem:",
            "name:VantoListBoxItem", "string0:No?", "endsubitem:", "end:", "1 unchanged"}));
}
