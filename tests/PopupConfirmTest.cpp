#include "Disturbance.h"
#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/DisplayablePrivateIfc.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>

#include "PopupConfirmPrivate.h"

#include <UApplication.h>

#include <cstddef>
#include <memory>
#include <new>
#include <thread>

using namespace DisplayAPI;

namespace {

class PopupConfirmTest : public PhoneTest {
protected:
    PopupConfirmPrivate& half(PopupConfirm& popup)
    {
        return dynamic_cast<PopupConfirmPrivate&>(*popup.getPrivateImpl());
    }

    RecordingListener listener;
    MenuCommand yes{"Yes?", 1};
    MenuCommand no{"No?", 2};
};

std::unique_ptr<PopupConfirm> makePopup(Stage& stage)
{
    auto popup = std::make_unique<PopupConfirm>(true);
    popup->addCommandListener(&stage.listener);
    popup->addCommand(&stage.yes);
    popup->addCommand(&stage.no);
    popup->setTimeout(3000);
    return popup;
}

std::string tell(PopupConfirm& popup)
{
    return std::to_string(popup.getSelectedIndex()) + (popup.selectionHasChanged() ? " changed" : " unchanged");
}

}

INSTANTIATE_TEST_SUITE_P(PopupConfirm, EveryScreenTest,
    screenFamily<PopupConfirm>(makePopup,
        {
            {"setLine1PrefixText", [](auto& popup, auto&) { popup.setLine1PrefixText("Delete"); }},
            {"its translation", [](auto& popup, auto& stage) { popup.setLine1PrefixText(stage.translation("Erase")); }},
            {"setText", [](auto& popup, auto&) { popup.setText("entry?"); }},
            {"a translation", [](auto& popup, auto& stage) { popup.setText(stage.translation("row?")); }},
            {"setLine2PrefixText", [](auto& popup, auto& stage) { popup.setLine2PrefixText(stage.translation("of")); }},
            {"setLine2Text", [](auto& popup, auto& stage) { popup.setLine2Text(stage.translation("Anna")); }},
            {"setState", [](auto& popup, auto&) { popup.setState(PopupConfirm::Recall); }},
            {"addCommand", [](auto& popup, auto& stage) { popup.addCommand(&stage.maybe); }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"setDefaultCommand", [](auto& popup, auto& stage) { popup.setDefaultCommand(&stage.last); }},
            {"removeCommand", [](auto& popup, auto& stage) { popup.removeCommand(&stage.yes); }},
            {"clearCommands", [](auto& popup, auto&) { popup.clearCommands(); }},
            {"time-out", [](auto&, auto& stage) { stage.advance(3000); }},
            {"dismiss", [](auto& popup, auto&) { popup.dismiss(); }},
        },
        tell));

TEST_F(PopupConfirmTest, IconQuestionAndCurrentChoiceAreWrittenAndPainted)
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
    EXPECT_EQ(glassLine(0).substr(6, 21), "Delete: entry of Anna");
    EXPECT_EQ(glassLine(1), "Yes?                      v");
    EXPECT_FALSE(popup.selectionHasChanged());
    const int before = changes.count;
    press(UGlobal::KeyDown);
    EXPECT_EQ(changes.count, before + 1);
    EXPECT_EQ(glassLine(1), "No?                       ^");
    EXPECT_EQ(popup.getSelectedIndex(), 1);
    EXPECT_TRUE(popup.selectionHasChanged());
    EXPECT_FALSE(popup.selectionHasChanged()) << "told once";
}

TEST_F(PopupConfirmTest, EachStateHasItsIconWord)
{
    const struct {
        int state;
        const char* word;
        const char* wordWithRects;
        std::uint16_t icon;
    } cases[] = {{0, "Info", "Info", 21}, {1, "Question", "Question", 19}, {5, "Recall", "Recall", 53},
        {6, "(no such field)", "(no such field)", 16}, {7, "Mobile User Changes", "(no such field)", 85},
        {99, "(no such field)", "(no such field)", 85}};
    PopupConfirm popup(true);
    popup.addCommand(&yes);
    show(popup);
    EXPECT_EQ(screenField("icon"), "Info") << "before a state is set";
    for (const auto& [state, word, wordWithRects, icon] : cases) {
        SCOPED_TRACE(state);
        popup.setState(static_cast<PopupConfirm::PopupState>(state));
        EXPECT_EQ(screenField("icon"), word);
        EXPECT_EQ(fieldOf(half(popup).serialise(std::vector<URect>{URect(0, 0, 161, 30)}), "icon"), wordWithRects);
        EXPECT_TRUE(hasIcon(0, 0, icon));
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
    const struct {
        const char *name, *number, *caption;
    } cases[] = {{"Anna", "4711", "Anna "}, {"Caller.Unknown.XXX", "4711", "4711 "}, {"Anna", "", "Anna "},
        {"Caller.Unknown.XXX", "Caller.Unknown.XXX", "Unknown caller "}, {"", "", "Unknown caller "}};
    TestTranslator dictionary;
    dictionary.words = {{"Caller.Unknown.XXX", "Unknown caller"}};
    display->setTranslator(&dictionary);
    PopupConfirm popup(true);
    show(popup);
    for (const auto& [name, number, caption] : cases) {
        popup.setPartyDetails(CallPartyIdentifier(name, number), 0);
        EXPECT_EQ(screenField("caption"), caption) << name << ", " << number;
    }
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
    // The allocator gives addresses away again.
    alignas(MenuCommand) std::byte memory[sizeof(MenuCommand)];
    auto* cancel = new (memory) MenuCommand("Cancel?", 5);
    PopupConfirm popup(true);
    popup.addCommandListener(&listener);
    popup.addCommand(cancel);
    popup.addCommand(&yes);
    show(popup);
    std::destroy_at(cancel);
    press(UGlobal::KeyOk);
    auto* deleteAll = new (memory) MenuCommand("Delete all?", 6);
    press(UGlobal::KeyOk);
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string0"), "Cancel?") << "the user must not see one thing and choose another";
    press(UGlobal::KeyOk);
    popup.setDefaultCommand(deleteAll);
    EXPECT_EQ(popup.getSelectedIndex(), 2) << "another choice than the one at its address";
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{deleteAll});
    std::destroy_at(deleteAll);
    popup.removeCommand(deleteAll);
    popup.setDefaultCommand(&yes);
    EXPECT_EQ(popup.getSelectedIndex(), 0) << "a dead command can be removed: the first that had its address";
}

TEST_F(PopupConfirmTest, NobodyIsToldOfAPopupThatHasDied)
{
    RecordingListener deleter;
    RecordingListener counter;
    auto popup = std::make_unique<PopupConfirm>(true);
    int posts = 0;
    deleter.postReaction = [&popup](Command*) { popup.reset(); };
    counter.postReaction = [&posts](Command*) { ++posts; };
    popup->addCommand(&yes);
    for (RecordingListener* each : {&counter, &deleter}) {
        popup->addCommandListener(each);
        popup->addCommandListener(&counter);
    }
    show(*popup);
    press(UGlobal::KeyOk);
    EXPECT_EQ(posts, 2);
}

TEST_F(PopupConfirmTest, ACommandMayDieWhileItIsAdded)
{
    PopupConfirm popup(true);
    TestTranslator translator;
    underDisturbance([&] {
        auto* command = new MenuCommand(new TranslationInfo("", "Short-lived", "?", &translator), 5);
        std::thread owner;
        translator.whenAsked = [&](const std::string& key) {
            // Its owner's deletion waits from here on for the lock under which the text is read.
            if (!owner.joinable())
                owner = std::thread([command] { delete command; });
            return key;
        };
        popup.addCommand(command);
        owner.join();
    });
    EXPECT_LE(popup.getSelectedIndex(), 0);
}

TEST_F(PopupConfirmTest, GoingDownShowsTheScreenBelowAndThenTells)
{
    List below(0);
    below.setTitle("Below");
    List other(0);
    other.setTitle("Other");
    PopupConfirm popup(true);
    popup.addCommandListener(&listener);
    popup.addCommand(&yes);
    popup.setTimeout(3000);
    std::string seen;
    changes.onNotice = [&] { seen += screenField("caption") + ";"; };
    const auto seenOn = [&](const std::function<void()>& change) {
        show(below);
        show(popup);
        seen.clear();
        change();
        return seen;
    };

    EXPECT_EQ(seenOn([&] { popup.dismiss(); }), "Below;");
    EXPECT_EQ(seenOn([&] { advance(3000); }), "Below;");
    EXPECT_EQ(listener.commands(2), std::vector<Command*>(2, PopupConfirm::HIDDEN_COMMAND()));
    EXPECT_EQ(seenOn([&] { display->setCurrent(&other); }), "Other;");
    display->setCurrent(&below);
    seen.clear();
    popup.dismiss();
    advance(3000);
    EXPECT_EQ(seen, "") << "it is down already";
    EXPECT_EQ(display->getCurrent(), &below);

    show(popup);
    advance(2000);
    popup.addCommand(&no);
    press(UGlobal::KeyDown); // starts the time anew
    advance(2500);
    EXPECT_EQ(display->getCurrent(), &popup);
    advance(500);
    EXPECT_EQ(display->getCurrent(), &below);
}

TEST_F(PopupConfirmTest, ARequestPostedByHandMayHaveNoSlotForItsAnswer)
{
    PopupConfirm popup(true);
    popup.addCommand(&yes);
    popup.addCommand(&no);
    show(popup);
    press(UGlobal::KeyDown);
    int index = -2;
    GuiRequestEvent selectedIndex(&popup, 17);
    popup.processGuiRequest(selectedIndex);
    selectedIndex.intResult = &index;
    popup.processGuiRequest(selectedIndex);
    EXPECT_EQ(index, 1);
    GuiRequestEvent selectionHasChanged(&popup, 18);
    popup.processGuiRequest(selectionHasChanged);
    EXPECT_FALSE(popup.selectionHasChanged()) << "read once, answer or not";
}

TEST_F(PopupConfirmTest, OddTextsAreTakenAsTheyAre)
{
    PopupConfirm popup(true);
    show(popup);
    const std::pair<std::string, std::string> cases[] = {
        {std::string(1 << 20, 'x'), std::string(1 << 20, 'x')},
        {"\xff\xfe A", "\xEF\xBF\xBD\xEF\xBF\xBD A"},
        {std::string("a\0b", 3), std::string("a\0b", 3)},
    };
    for (const auto& [text, written] : cases) {
        popup.setText(text);
        EXPECT_EQ(screenField("caption"), written + " ");
    }
}
