#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestScreen.h"
#include "TestTranslator.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/TabScreen.h>

#include <climits>
#include <thread>

using namespace DisplayAPI;

namespace {

/// Deletes a screen that no tab has, unless it has died.
void drop(Displayable* screen)
{
    const auto* half
        = Displayable::exists(screen) ? dynamic_cast<DisplayablePrivate*>(screen->getPrivateImpl()) : nullptr;
    if (Displayable::exists(screen) && !(half && half->holder()))
        delete screen;
}

List* newList(const char* row, const char* title = "")
{
    auto* list = new List(0);
    list->setTitle(title);
    list->append(row);
    list->append("Bob");
    return list;
}

void addList(TabScreen& tabs, const char* title)
{
    Displayable* list = newList("Anna");
    tabs.addTab(title, list, false);
    drop(list);
}

template <typename Operation>
void exchange(Displayable* before, Displayable* behind, Operation operation)
{
    operation(behind);
    drop(before);
    drop(behind);
}

std::unique_ptr<TabScreen> makeTabs(Stage& stage)
{
    auto tabs = std::make_unique<TabScreen>(TabScreen::IconType{}, false);
    tabs->addCommandListener(&stage.listener);
    addList(*tabs, "Missed");
    addList(*tabs, "Dialled");
    // The first title of the list ends with a line feed, which the next locale takes away.
    if (stage.hasLoop)
        callOnGui([&tabs] { tabs->localeChanged("en"); });
    return tabs;
}

std::string tell(TabScreen& tabs)
{
    std::string all = std::to_string(tabs.getCurrentTabIndex()) + " of " + std::to_string(tabs.numberOfTabs());
    for (Displayable* screen : tabs.getDisplayableItems())
        all += " " + tabs.getTitleForTabAtIndex(tabs.getIndexForTab(screen));
    return all + (tabs.currentTab() ? " up" : "");
}

class TabScreenTest : public PhoneTest {
protected:
    TestScreen* newScreen(const char* name) { return new TestScreen(name, log); }

    std::vector<std::string> log;
    TestTranslator translator;
    TabScreen tabs{TabScreen::IconType{}, false};
};

}

INSTANTIATE_TEST_SUITE_P(TabScreen, EveryScreenTest,
    screenFamily<TabScreen>(makeTabs,
        {
            {"addTab", [](auto& tabs, auto&) { addList(tabs, "Answered"); }},
            {"no screen", [](auto& tabs, auto& stage) { tabs.addTab(stage.translation("help"), nullptr, false); }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"nextTab", [](auto& tabs, auto&) { tabs.nextTab(); }, false},
            {"setCurrentTabIndex", [](auto& tabs, auto&) { tabs.setCurrentTabIndex(1); }},
            {"a key of the tab",
                [](auto& tabs, auto& stage) {
                    tabs.setCurrentTabIndex(0);
                    stage.press(UGlobal::KeyDown);
                }},
            {"title", [](auto& tabs, auto&) { tabs.setTitleForTabAtIndex(1, "Calls"); }},
            {"its translation",
                [](auto& tabs, auto& stage) { tabs.setTitleForTabAtIndex(0, stage.translation("calls")); }},
            {"setCurrentDisplayable",
                [](auto& tabs, auto&) {
                    exchange(tabs.currentTab(), newList("Carol", "New"),
                        [&tabs](Displayable* list) { tabs.setCurrentDisplayable(list); });
                }},
            {"another screen",
                [](auto& tabs, auto&) {
                    exchange(tabs.getDisplayableForTabAtIndex(1), newList("Dora"),
                        [&tabs](Displayable* list) { tabs.setCurrentDisplayableForTabAtIndex(1, list); });
                }},
            {"showTabList", [](auto& tabs, auto&) { tabs.showTabList(); }, false},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }},
            {"removeTab",
                [](auto& tabs, auto&) {
                    exchange(tabs.currentTab(), nullptr, [&](auto) { tabs.removeTab(tabs.currentTab()); });
                }},
            {"a screen dies", [](auto& tabs, auto&) { delete tabs.getDisplayableForTabAtIndex(INT_MIN); }},
        },
        tell));

TEST_F(TabScreenTest, TheTitleOfATabBecomesTheCaptionOfAListThatHasNone)
{
    tabs.addTab(new TranslationInfo("<", "Missed", ">", &translator), newList("Anna"), true);
    tabs.addTab("Dialled", newList("Carol", "Numbers"), true);
    tabs.addTab("Help", newScreen("text"), true);
    tabs.addTab("Empty", nullptr, true);
    show(tabs);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "caption:TabScreen Menu", "", "subitem:", "name:VantoListBoxItem",
            "string0:<Missed>", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0).substr(0, 14), "TabScreen Menu");
    EXPECT_EQ(glassLine(1).substr(0, 8), "<Missed>");

    struct Case {
        const char* text;
        const char* plain;
        const char* title;
        const char* glass;
    };
    const Case cases[] = {
        {"object:\nname:VantoListBox\ncaption:Missed\nsubitem:\nname:VantoListBoxItem\nstring0: "
         "Anna\nendsubitem:\nend:\n",
            "", "Missed", "Anna"},
        {"object:\nname:VantoListBox\ncaption:Numbers\nsubitem:\nname:VantoListBoxItem\nstring0: "
         "Carol\nendsubitem:\nend:\n",
            "", "Dialled", "Carol"},
        {"object:\nname:text\nend:\n", "object:\nname:text\nend:\n", "Help", ""},
        {"object:\nname:VantoListBox\ncaption:Empty\nend:\n", "object:\nname:VantoListBox\ncaption:Empty\nend:\n",
            "Empty", ""},
    };
    for (int index = 0; const Case& row : cases) {
        tabs.setCurrentTabIndex(index++);
        EXPECT_EQ(screenText(), row.text);
        EXPECT_EQ(tabs.getPrivateImpl()->serialise(), row.plain) << row.title;
        EXPECT_EQ(glassLine(0).substr(0, glassLine(0).find_last_not_of(' ') + 1), row.title);
        EXPECT_EQ(glassLine(1).substr(0, std::string(row.glass).size()), row.glass);
    }
    auto& plain = dynamic_cast<TestScreen&>(*tabs.getDisplayableForTabAtIndex(2)).screen();
    plain.text = "object:\nname:VantoListBox\nend:\nobject:\nname:VantoListBox\nend:\n";
    tabs.setCurrentTabIndex(2);
    EXPECT_EQ(screenText(), "object:\nname:VantoListBox\ncaption:Help\nend:\nobject:\nname:VantoListBox\nend:\n");
}

TEST_F(TabScreenTest, AChosenTabComesUpWhenTheApplicationSaysSo)
{
    RecordingListener listener;
    tabs.addCommandListener(&listener);
    tabs.addCommandListener(&listener);
    tabs.getPrivateImpl()->removeCommandListener(&listener);
    tabs.getPrivateImpl()->clearCommandListeners();
    tabs.addTab("Missed", newList("Anna"), false);
    tabs.addTab("Dialled", newList("Carol"), false);
    show(tabs);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyRight);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(2), std::vector<Command*>(2, TabScreen::OK()));
    EXPECT_EQ(tabs.getCurrentTabIndex(), 1);
    EXPECT_EQ(screenField("string0"), "Dialled") << "the list of titles is still up";

    tabs.setCurrentTabIndex(1);
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenField("string0"), " Bob") << "the keys are the list's";
    tabs.setCurrentTabIndex(1);
    EXPECT_EQ(screenField("string0"), " Carol") << "a list comes up with its first row";
    tabs.showTabList();
    EXPECT_EQ(screenField("caption"), "Dialled") << "until it is shown the next time";
    show(tabs);
    EXPECT_EQ(screenField("string0"), "Dialled");
    press(UGlobal::KeyLeft);
    EXPECT_EQ(listener.commands(4).back(), TabScreen::BACK_COMMAND());
    EXPECT_FALSE(tabs.getPrivateImpl()->getWidget()->isVisible());
    show(tabs);
    EXPECT_EQ(glassLine(1).substr(0, 7), "Dialled");

    const std::pair<Command*, int> types[] = {{TabScreen::BACK_COMMAND(), 1}, {TabScreen::OK(), 6},
        {TabScreen::TABBACK_COMMAND(), 18}, {TabScreen::TABFWD_COMMAND(), 19}};
    for (const auto& [command, type] : types)
        EXPECT_EQ(command->getType(), type);
}

TEST_F(TabScreenTest, AScreenInATabIsShownAndLosesTheFocusAsIfItStoodAlone)
{
    tabs.addTab("A", newScreen("a"), false);
    tabs.addTab("B", newScreen("b"), false);
    tabs.setCurrentTabIndex(0);
    EXPECT_EQ(log, std::vector<std::string>()) << "the tab screen stands on no display";
    show(tabs);
    tabs.nextTab();
    tabs.nextTab();
    changes.takeNotices();
    tabs.setCurrentTabIndex(2);
    tabs.setCurrentTabIndex(-1);
    EXPECT_EQ(changes.takeNotices(), 2);
    display->setCurrent(nullptr);
    EXPECT_EQ(log, (std::vector<std::string>{"show a", "show b", "show a", "lostFocus a"}));

    log.clear();
    Displayable* alone = tabs.getDisplayableForTabAtIndex(1);
    show(*alone);
    show(tabs);
    tabs.setCurrentTabIndex(1);
    EXPECT_EQ(log, (std::vector<std::string>{"show b", "show a", "show b"}));
    EXPECT_EQ(glassLine(0).substr(0, 2), "B ");
    EXPECT_TRUE(alone->getPrivateImpl()->getWidget()->isShown()) << "though it was hidden when it left the display";
}

TEST_F(TabScreenTest, AListThatGetsRowsAgainIsBackInItsTab)
{
    auto* list = newList("Anna");
    tabs.addTab("Missed", list, false);
    tabs.addTab("Other", nullptr, false);
    show(tabs);
    for (const bool isUp : {true, false}) {
        tabs.setCurrentTabIndex(0);
        while (list->size() > 0) {
            ListItem* row = list->getItems().front();
            list->remove(row);
            delete row;
        }
        EXPECT_EQ(glassLine(0).substr(0, 7), "Missed ");
        EXPECT_EQ(glassLine(1), std::string(27, ' '));
        if (!isUp)
            tabs.nextTab();
        list->append("Carol");
        EXPECT_EQ(glassLine(1).substr(0, 5), isUp ? "Carol" : "     ");
    }
}

TEST_F(TabScreenTest, AScreenBelongsToOneTabUntilItLeaves)
{
    auto* a = newScreen("a");
    auto* b = newScreen("b");
    TestScreen other("other", log);
    auto* inner = new TabScreen(TabScreen::IconType{}, false);
    tabs.addTab("A", a, false);
    tabs.addTab("inner", inner, false);
    inner->addTab("B", b, false);
    for (Displayable* refused : {static_cast<Displayable*>(a), static_cast<Displayable*>(b),
             static_cast<Displayable*>(&tabs), static_cast<Displayable*>(inner)}) {
        for (TabScreen* holder : {&tabs, inner}) {
            holder->addTab(new TranslationInfo("", "again", "", &translator), refused, false);
            holder->setCurrentDisplayable(refused);
            holder->setCurrentDisplayableForTabAtIndex(0, refused);
        }
    }
    EXPECT_EQ(tabs.getDisplayableItems(), (std::vector<Displayable*>{a, inner}));
    EXPECT_EQ(inner->getDisplayableItems(), std::vector<Displayable*>{b});

    show(tabs);
    tabs.setCurrentTabIndex(0);
    EXPECT_TRUE(a->widget().isShown());
    tabs.setCurrentDisplayable(&other);
    EXPECT_TRUE(other.widget().isShown());
    EXPECT_FALSE(other.screen().isOwner);
    tabs.setCurrentDisplayableForTabAtIndex(1, a);
    EXPECT_EQ(inner->getPrivateImpl()->getWidget()->parentWidget(), nullptr);
    tabs.removeTab(&other);
    EXPECT_TRUE(other.screen().isOwner);
    EXPECT_EQ(other.screen().display(), nullptr);
    EXPECT_EQ(other.widget().parentWidget(), nullptr);
    EXPECT_EQ(tabs.numberOfTabs(), 1);
    EXPECT_EQ(screenText(), "object:\nname:a\nend:\n") << "of the tab that is the current one now";
    delete a;
    EXPECT_EQ(tell(tabs), "0 of 0");
    delete b;
    EXPECT_EQ(tell(*inner), "0 of 0");
    delete inner;
}

TEST_F(TabScreenTest, AScreenThatDiesBehindTheLoopLeavesWithoutANotice)
{
    auto mortal = std::make_unique<TabScreen>(TabScreen::IconType{}, false);
    List* list = newList("Anna");
    mortal->addTab("Missed", list, false);
    show(*mortal);
    mortal->setCurrentTabIndex(0);
    endLoop();
    std::thread([list] { delete list; }).join();
    changes.onNotice = [&mortal] { mortal.reset(); };
    EXPECT_EQ(mortal->numberOfTabs(), 0);
    changes.onNotice = nullptr;
    ASSERT_TRUE(mortal) << "it was deleted in the midst of its operation";
}

TEST_F(TabScreenTest, IndicesOutsideDoNothing)
{
    EXPECT_EQ(tabs.getDisplayableForTabAtIndex(0), nullptr);
    EXPECT_EQ(tabs.currentTab(), nullptr);
    auto* a = newScreen("a");
    tabs.addTab("A", a, false);
    tabs.addTab("none", nullptr, false);
    tabs.setCurrentTabIndex(1);
    TestScreen other("other", log);
    for (const int outside : {2, INT_MAX, -1, INT_MIN}) {
        tabs.setCurrentTabIndex(outside);
        tabs.setCurrentDisplayableForTabAtIndex(outside, &other);
        tabs.setTitleForTabAtIndex(outside, "none");
        tabs.setTitleForTabAtIndex(outside, new TranslationInfo("", "none", "", &translator));
        tabs.removeTabAtIndex(outside);
        EXPECT_EQ(tabs.getTitleForTabAtIndex(outside), "");
        EXPECT_EQ(tabs.getDisplayableForTabAtIndex(outside), outside < 0 ? a : nullptr) << outside;
    }
    tabs.removeTab(&other);
    EXPECT_EQ(tell(tabs), "1 of 2 A none");
    EXPECT_EQ(tabs.getIndexForTab(&other), -1);
    EXPECT_EQ(tabs.getIndexForTab(nullptr), 1);
    tabs.removeTab(nullptr);
    EXPECT_EQ(tell(tabs), "1 of 1 A") << "the number of the current tab stays";
    EXPECT_EQ(screenText(), "");
    show(tabs);
    EXPECT_EQ(screenText(), "object:\nname:VantoListBox\ncaption:\nend:\n");
    tabs.nextTab();
    EXPECT_EQ(screenText(), "object:\nname:a\nend:\n");
}

TEST_F(TabScreenTest, AChangeOfLocaleReadsTheTitlesAgain)
{
    display->setTranslator(&translator);
    translator.words["TabScreen.title"] = "Menu";
    tabs.addTab(new TranslationInfo("<", "calls", ">", &translator), newList("Anna"), false);
    tabs.addTab("Plain", newList("Bob"), false);
    show(tabs);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(0).substr(0, 5), "Menu ");
    translator.words = {{"TabScreen.title", "Karten"}, {"calls", "Anrufe"}};
    display->localeChanged("de");
    EXPECT_EQ(screenField("caption"), "Karten");
    EXPECT_EQ(screenField("string0"), "<Anrufe>") << "from the first row again";
    EXPECT_EQ(glassLine(0).substr(0, 7), "Karten ");
    tabs.setCurrentTabIndex(0);
    translator.words["calls"] = "Appels";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("caption"), "Appels");
    EXPECT_EQ(glassLine(0).substr(0, 7), "Appels ");
    display->setTranslator(nullptr);
    tabs.showTabList();
    display->localeChanged("en");
    show(tabs);
    EXPECT_EQ(screenField("caption"), "TabScreen Menu");
}
