#include "EveryScreen.h"
#include "ListFixture.h"
#include "RecordingListener.h"

#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Item.h>
#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/SearchList.h>

#include "ListItemPrivate.h"
#include "SearchListBoxPrivate.h"

#include <UApplication.h>
#include <VantoListBoxItemMEG.h>

#include <iterator>

using namespace DisplayAPI;

namespace {

/// A row by its index; null behind the end.
ListItem* at(SearchList& list, int index)
{
    const std::list<ListItem*> items = list.getItems();
    return index < static_cast<int>(items.size()) ? *std::next(items.begin(), index) : nullptr;
}

std::unique_ptr<SearchList> makeList(Stage& stage)
{
    auto list = std::make_unique<SearchList>();
    list->addCommandListener(&stage.listener);
    list->addItemStateListener(&stage.listener);
    for (const char* text : {"A", "B", "C"})
        list->append(stage.newRow(text));
    return list;
}

std::string tell(SearchList& list)
{
    return rows(list) + " " + std::to_string(list.size()) + " " + std::to_string(list.getSelectedIndex()) + " "
        + list.getSearchText() + (list.isSearchPopupVisible() ? " open" : " closed");
}

const Holder<SearchList, ListItem> inSearchList{
    [] { return std::make_unique<SearchList>(); },
    [](SearchList& list, ListItem& row) { list.append(&row); },
    [](SearchList& list, ListItem& row) { list.remove(&row); },
};

class SearchListTest : public PhoneTest {
protected:
    SearchListTest()
    {
        list.addCommandListener(&listener);
        list.addItemStateListener(&listener);
    }
    void fill(const std::vector<std::string>& texts)
    {
        for (const std::string& text : texts)
            list.append(text);
    }

    RecordingListener listener;
    SearchList list;
};

}

INSTANTIATE_TEST_SUITE_P(SearchList, EveryScreenTest,
    screenFamily<SearchList>(makeList,
        {
            {"append", [](auto& list, auto& stage) { list.append(stage.newRow("X")); }},
            {"append a text", [](auto& list, auto& stage) { list.append(stage.translation("Y")); }},
            {"insertAt", [](auto& list, auto& stage) { list.insertAt(stage.newRow("Z"), 1); }},
            {"setSelectedIndex", [](auto& list, auto&) { list.setSelectedIndex(1); }},
            {"setTitle", [](auto& list, auto&) { list.setTitle("Title"); }},
            {"a translation", [](auto& list, auto& stage) { list.setTitle(stage.translation("title")); }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"a character", [](auto&, auto& stage) { stage.press('2'); }},
            {"showSearchPopup", [](auto& list, auto&) { list.showSearchPopup(); }},
            {"setSearchText", [](auto& list, auto&) { list.setSearchText(""); }},
            {"setCountIndicator", [](auto& list, auto&) { list.setCountIndicator(99); }},
            {"setSearchCountIndicator", [](auto& list, auto&) { list.setSearchCountIndicator(3); }},
            {"dismissSearchPopup", [](auto& list, auto&) { list.dismissSearchPopup(); }},
            {"Right", [](auto&, auto& stage) { stage.press(UGlobal::KeyRight); }},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }},
            {"removeAt", [](auto& list, auto&) { list.removeAt(0); }},
            {"remove",
                [](auto& list, auto& stage) {
                    ListItem* first = at(list, 0);
                    list.remove(first);
                    stage.takeBack(first);
                }},
            {"clear", [](auto& list, auto&) { list.clear(); }},
        },
        tell));

INSTANTIATE_TEST_SUITE_P(InSearchList, EveryRowTest,
    rowFamily(
        inSearchList, [](Stage& stage) { return std::make_unique<ListItem>(stage.translation("Anna"), true); },
        {{"setText", [](auto& row, auto&) { row.setText("Bob"); }}}, [](ListItem& row) { return row.getText(); }));

TEST_F(SearchListTest, TheUserFindsAName)
{
    fill({"Anna", "Bob", "Carol"});
    list.setTitle(new TranslationInfo("", "Directory", "!", nullptr));
    list.setCountIndicator(500);
    show(list);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "caption:Directory", "subitem:", "name:VantoListBoxItem",
            "string0: Anna", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0), "Directory             1/500");

    press('2');
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupSearch", "caption:Directory", "string0:A", "string1:3/500", "end:"}));
    EXPECT_EQ(list.getSearchText(), "A");
    EXPECT_EQ(listener.told(1).size(), 1u);
    list.clear();
    list.append("Anna");
    list.setSearchCountIndicator(1);
    EXPECT_EQ(glassLine(0), "Find: A_              1/500");
    EXPECT_EQ(glassLine(1).substr(0, 4), "[A] ") << "the letters of the key";
    press(UGlobal::KeyOk);
    EXPECT_EQ(glassLine(1).substr(0, 4), "Anna");
    press(UGlobal::KeyRight);

    press(UGlobal::KeyLeft);
    EXPECT_EQ(screenField("string0"), "Enter.name.hint,Delete.hint");
    press(UGlobal::KeyLeft);
    EXPECT_FALSE(list.isSearchPopupVisible());
    press(UGlobal::KeyLeft);
    EXPECT_EQ(listener.commands(3),
        (std::vector<Command*>{SearchList::SELECT_COMMAND(), SearchList::RIGHT_COMMAND(), SearchList::BACK_COMMAND()}));
    EXPECT_EQ(listener.told(5).size(), 5u) << "and two changes of the text";
}

TEST_F(SearchListTest, TheSearchTextIsToldOfAsTheItemOfItsList)
{
    Displayable* of = nullptr;
    listener.changeReaction = [&of](Item* item) { of = item->getParent(); };
    show(list);
    list.setSearchText("Bo");
    EXPECT_FALSE(list.isSearchPopupVisible());
    EXPECT_EQ(listener.count(), 0u);
    press('2');
    listener.told(1);
    EXPECT_EQ(of, &list);
    EXPECT_EQ(list.getSearchText(), "Boa");
    list.setSearchText(std::string("a\0b", 3));
    EXPECT_EQ(list.getSearchText(), "a");
    list.dismissSearchPopup();
    EXPECT_EQ(screenField("name"), "VantoListBox");
    list.showSearchPopup();
    EXPECT_EQ(screenField("name"), "PopupSearch");
}

TEST_F(SearchListTest, TheKindOfTitleSaysWhereTheListLies)
{
    TestTranslator translator;
    fill({"Anna", "Bob"});
    show(list);
    list.setTitle("Bob");
    EXPECT_EQ(glassLine(0), "Bob                        ");
    list.setTitle(new TranslationInfo("<", "names", ">", &translator));
    EXPECT_EQ(glassLine(0), "names                   1/2");

    list.append(new TranslationInfo("(", "Carol", ")", &translator));
    display->setTranslator(&translator);
    translator.prefix = "fr ";
    display->localeChanged("fr");
    list.setSelectedIndex(2);
    EXPECT_EQ(screenField("caption"), "fr names");
    EXPECT_EQ(screenField("string0"), " (fr Carol)");
    list.showSearchPopup();
    EXPECT_EQ(screenField("string0"), "fr Enter.name.hint,fr Delete.hint");
}

TEST_F(SearchListTest, ARowStandsInOneListAndIndicesOutsideChangeNothing)
{
    fill({"A", "B"});
    ListItem* b = at(list, 1);
    SearchList other;
    other.append(b);
    list.insertAt(b, 0);
    list.insertAt(new ListItem("C", false), -5);
    list.append(static_cast<ListItem*>(nullptr));
    list.removeAt(-1);
    EXPECT_EQ(rows(list), "C[A]B");
    EXPECT_EQ(rows(other), "");
    EXPECT_EQ(b->getPrivateImplemetation()->getVantoListItem()->getHandle(),
        reinterpret_cast<long>(b->getPrivateImplemetation()));
    list.remove(b);
    other.append(b);
    EXPECT_EQ(rows(list), "C[A]");
    EXPECT_EQ(rows(other), "[B]");
    list.setSelectedIndex(-1);
    EXPECT_EQ(list.getSelected(), nullptr);
}

TEST_F(SearchListTest, ARowMayTakeItsListWithItAtAChangeOfLocale)
{
    struct FatalHalf : ListItemPrivate {
        explicit FatalHalf(std::unique_ptr<SearchList>& list)
            : ListItemPrivate(std::string(), false)
            , mine(list)
        {
        }
        void localeChanged(std::string) override { mine.reset(); }

        std::unique_ptr<SearchList>& mine;
    };
    struct OwnRow : ListItem {
        explicit OwnRow(ListItemPrivateIfc* half)
            : ListItem(half)
        {
        }
    };
    auto mortal = std::make_unique<SearchList>();
    mortal->append(new OwnRow(new FatalHalf(mortal)));
    mortal->append("Anna");
    display->localeChanged("de");
    EXPECT_FALSE(mortal);
}

TEST_F(SearchListTest, OneThatListensTwiceIsToldTwiceAndStays)
{
    list.addCommandListener(&listener);
    list.removeCommandListener(&listener);
    list.getPrivateImpl()->clearCommandListeners();
    list.addItemStateListener(&listener);
    list.addItemStateListener(nullptr);
    auto& half = dynamic_cast<SearchListBoxPrivate&>(*list.getPrivateImpl());
    EXPECT_EQ(half.getItemStateListeners(), (std::vector<ItemStateListener*>(2, &listener)));
    show(list);
    press(UGlobal::KeyLeft);
    EXPECT_EQ(listener.commands(2), (std::vector<Command*>(2, SearchList::BACK_COMMAND())));
}

TEST_F(SearchListTest, RequestsPostedByHandAreServed)
{
    fill({"A"});
    auto* append = new GuiRequestEvent(&list, 2);
    append->stringParam1 = "posted";
    UApplication::instance()->postEvent(append);
    for (const int number : {0, 6, 7, 12, 13, 21, 22, -1})
        UApplication::instance()->postEvent(new GuiRequestEvent(&list, number));
    pump();
    EXPECT_EQ(rows(list), "[A]posted");
}
