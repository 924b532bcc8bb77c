#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/CallForwardItemPrivateIfc.h>
#include <DisplayAPI/Command.h>
#include <DisplayAPI/ExpandingTreeList.h>

#include <ExpandingListMEG.h>
#include <VantoListBoxMEG.h>

#include <climits>

using namespace DisplayAPI;

namespace {

constexpr auto Line = CallForwardItem::eCallForwardBranchLine{};

CallLogMainItem::IconType icon(int number)
{
    return static_cast<CallLogMainItem::IconType>(number);
}

std::unique_ptr<CallForwardItem> makeItem(Stage& stage)
{
    auto item = std::make_unique<CallForwardItem>(icon(0), stage.translation("All calls"), false, false);
    item->setTextBranch("0987654", nullptr, Line);
    return item;
}

std::unique_ptr<ExpandingTreeList> makeList(Stage& stage)
{
    auto list = std::make_unique<ExpandingTreeList>(true);
    list->addCommandListener(&stage.listener);
    for (const int type : {0, 5}) {
        auto* item = new CallForwardItem(icon(type), stage.translation("On busy"), false, true);
        list->append(item);
        if (list->getExpandingItemsList().empty())
            delete item;
    }
    return list;
}

std::string tell(ExpandingTreeList& list)
{
    return std::to_string(list.getSelectedIndex()) + " of " + std::to_string(list.getExpandingItemsList().size())
        + (list.getSelected() ? " an item" : "");
}

/// Deletes an item that no list has taken.
void append(ExpandingTreeList& list, CallForwardItem* item)
{
    list.append(item);
    if (CallForwardItem::exists(item) && !item->list())
        delete item;
}

class ExpandingTreeListTest : public PhoneTest {
protected:
    TranslationInfo* text(const char* key) { return new TranslationInfo("<", key, ">", &translator); }

    CallForwardItem& add(int type, const char* name, const char* branch = "")
    {
        auto* item = new CallForwardItem(icon(type), text(name), false, false);
        item->setTextBranch(branch, nullptr, Line);
        list.append(item);
        return *item;
    }

    CallForwardItem& addText(const char* name, const char* branch)
    {
        auto* item = new CallForwardItem(text(name));
        item->setTextBranch(branch, nullptr, Line);
        list.append(item);
        return *item;
    }

    std::string subitem()
    {
        const std::string all = screenText();
        const std::string head = "name:ExpandingListBoxItem\n";
        const std::size_t start = all.find(head) + head.size();
        return all.substr(start, all.find("endsubitem:") - start);
    }

    TestTranslator translator;
    ExpandingTreeList list{false};
};

}

INSTANTIATE_TEST_SUITE_P(ExpandingTreeList, EveryScreenTest,
    screenFamily<ExpandingTreeList>(makeList,
        {
            {"setTitle", [](auto& list, auto&) { list.setTitle("Forwarding"); }},
            {"a translation", [](auto& list, auto& stage) { list.setTitle(stage.translation("forwarding")); }},
            {"append", [](auto& list, auto& stage) { append(list, makeItem(stage).release()); }},
            {"no row",
                [](auto& list, auto& stage) {
                    append(list, new CallForwardItem(icon(1), stage.translation("none"), false, false));
                }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }, false},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }, false},
            {"setRightArrowEqualsOK", [](auto& list, auto&) { list.setRightArrowEqualsOK(true); }, false},
            {"setReadonly", [](auto& list, auto&) { list.setReadonly(INT_MAX, true); }, false},
            {"align",
                [](auto& list, auto&) {
                    list.align();
                    list.unalign();
                },
                false},
            {"an item dies", [](auto& list, auto&) { delete list.getSelected(); }},
            {"clear", [](auto& list, auto&) { list.clear(); }},
        },
        tell));

INSTANTIATE_TEST_SUITE_P(CallForwardItem, EveryRowTest,
    rowFamily(Holder<ExpandingTreeList, CallForwardItem>{[] { return std::make_unique<ExpandingTreeList>(true); },
                  [](ExpandingTreeList& list, CallForwardItem& item) { list.append(&item); }, nullptr},
        makeItem,
        {
            {"setTextMain", [](auto& item, auto&) { item.setTextMain("Every call"); }},
            {"a translation", [](auto& item, auto& stage) { item.setTextMain(stage.translation("Calls")); }},
            {"setTextBranch",
                [](auto& item, auto& stage) { item.setTextBranch(stage.translation("Anna"), nullptr, Line); }},
            {"swapCheck", [](auto& item, auto&) { item.swapCheck(); }},
            {"uncheck", [](auto& item, auto&) { item.uncheck(); }},
            {"check", [](auto& item, auto&) { item.check(); }},
            {"setReadonly", [](auto& item, auto&) { item.setReadonly(true, false); }},
            {"setCFIconVisible", [](auto& item, auto&) { item.setCFIconVisible(true); }},
            {"cleanBranches", [](auto& item, auto&) { item.cleanBranches(); }},
        },
        [](CallForwardItem& item) {
            return item.getText() + (item.getCheck() ? "|x" : "|") + std::to_string(item.iconType());
        }));

TEST_F(ExpandingTreeListTest, TheTextIsOfTheRowThatHasTheHighlight)
{
    const char* longText = "to: Carol Miller, Example Ltd., Berlin";
    show(list);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:ExpandingListBox", "subitem:", "name:ExpandingListBoxItem", "endsubitem:", "end:"}));
    EXPECT_EQ(list.getSelectedIndex(), -1);
    EXPECT_EQ(list.getSelected(), nullptr);
    CallForwardItem& all = add(0, "All calls", "to: 0987654");
    EXPECT_EQ(subitem(), "icon0:unchecked\nicon3:NavigationArrowDown\nstring0:All calls\n");
    all.cleanBranches();
    all.setTextBranch("", nullptr, Line);
    EXPECT_EQ(subitem(), "icon0:unchecked\nstring0:All calls\n") << "alone";
    all.setTextBranch("to: 0987654", nullptr, Line);
    CallForwardItem& busy = add(6, "On busy", longText);
    addText("No reply", longText);
    list.setTitle("Forwarding");
    EXPECT_EQ(screenText(),
        lines({"object:", "name:ExpandingListBox", "caption:Forwarding", "string0:1",
            "subitem:", "name:ExpandingListBoxItem", "icon0:unchecked", "icon3:NavigationArrowDown",
            "string0:All calls", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0), "Forwarding              1/4");
    EXPECT_EQ(glassLine(1).substr(0, 14), "[ ] All calls ");
    all.check();
    busy.setCFIconVisible(true);
    EXPECT_EQ(glassLine(1).substr(0, 14), "[x] All calls ");

    const std::string branches = std::string("string0:") + longText + "\nstring1:\nstring2: \n";
    const char* both = "icon3:NavigationArrowUpDown\n";
    const std::string rows[] = {
        "icon0:checked\nicon3:NavigationArrowDown\nstring0:All calls\n",
        both + std::string("string0:to: 0987654\n"),
        "icon0:Forwarded\n" + std::string(both) + "string0:On busy\n",
        "icon0:Forwarded\n" + std::string(both) + "string0:" + longText + "\n",
        "icon0:Forwarded\n" + std::string(both) + "string0:Example Ltd., Berlin\n",
        "string0:<No reply> \n",
        branches,
        branches,
    };
    const int indices[] = {0, 0, 1, 1, 1, 2, 2, 2};
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(subitem(), rows[row]) << row;
        EXPECT_EQ(list.getSelectedIndex(), indices[row]);
        EXPECT_EQ(list.getSelected(), list.getExpandingItemsList().at(static_cast<std::size_t>(indices[row])));
        press(UGlobal::KeyDown);
    }
    all.setCFIconVisible(true);
    EXPECT_EQ(subitem(), "icon3:NavigationArrowDown\nstring0:All calls\n") << "a check box gives way";
    EXPECT_EQ(glassLine(1).substr(0, 10), "All calls ");

    auto& rowsOnGlass = *dynamic_cast<ExpandingListMEG&>(*list.getPrivateImpl()->getWidget()).list();
    rowsOnGlass.setCurrentIndex(-1);
    EXPECT_EQ(subitem(), "string0:\n") << "without a highlight the first row stands there";
    EXPECT_EQ(screenField("string0"), "0");
}

TEST_F(ExpandingTreeListTest, AnItemMayTakeItsListWithIt)
{
    struct Vengeful : CallForwardItem {
        explicit Vengeful(std::unique_ptr<ExpandingTreeList>& list)
            : CallForwardItem(icon(0), nullptr, false, false)
            , mine(list)
        {
        }
        ~Vengeful() override { mine.reset(); }

        std::unique_ptr<ExpandingTreeList>& mine;
    };
    auto mortal = std::make_unique<ExpandingTreeList>(false);
    for (int i = 0; i < 3; ++i)
        mortal->append(new Vengeful(mortal));
    show(*mortal);
    mortal->clear();
    EXPECT_FALSE(mortal);
}

TEST_F(ExpandingTreeListTest, AnItemMayTakeAnotherWithItAtAChangeOfLocale)
{
    struct Jealous : CallForwardItem {
        Jealous()
            : CallForwardItem(icon(0), nullptr, false, false)
        {
        }
        void localeChanged(std::string) override { delete std::exchange(other, nullptr); }

        ExpandingTreeListItem* other = nullptr;
    };
    auto* jealous = new Jealous;
    jealous->other = new Jealous;
    list.append(jealous);
    list.append(jealous->other);
    list.localeChanged("de");
    EXPECT_EQ(list.getExpandingItemsList(), std::vector<ExpandingTreeListItem*>{jealous});
}

TEST_F(ExpandingTreeListTest, EachKeyIsACommandAndNoneAChange)
{
    RecordingListener listener;
    list.addCommandListener(&listener);
    list.addCommandListener(&listener);
    CallForwardItem& item = add(0, "All calls", "to: 0987654");
    CallForwardItem& second = add(5, "On busy");
    show(list);
    for (const int key : {UGlobal::KeyOk, UGlobal::KeyRight, UGlobal::KeyLeft})
        press(key);
    list.getPrivateImpl()->clearCommandListeners();
    list.getPrivateImpl()->removeCommandListener(&listener);
    list.setRightArrowEqualsOK(true);
    press(UGlobal::KeyRight);
    std::vector<int> types;
    for (const Command* command : listener.commands(8))
        types.push_back(command->getType());
    EXPECT_EQ(types, (std::vector<int>{6, 6, 9, 9, 1, 1, 6, 6}));
    EXPECT_EQ(listener.waitFor(8)[0].second, &list);
    EXPECT_FALSE(item.getCheck());

    item.setReadonly(true, false);
    press(UGlobal::KeyOk);
    item.setReadonly(false, true);
    list.setReadonly(2, true); // a branch row counts
    press(UGlobal::KeyUp);
    EXPECT_EQ(list.getSelected(), &second);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyLeft);
    EXPECT_EQ(listener.commands(10).at(8)->getType(), 1) << "of the two OK nothing was told";
}

TEST_F(ExpandingTreeListTest, TheTextsFollowTheLocaleAsFarAsTheyAreTranslations)
{
    CallForwardItem& item = add(0, "all");
    const std::unique_ptr<TranslationInfo> prefix(text("to:"));
    list.setTitle(text("title"));
    show(list);
    EXPECT_EQ(screenField("caption"), "<title>");
    EXPECT_EQ(item.getText(), "all") << "bare until the locale changes";
    item.setTextBranch(text("a number that takes both lines"), prefix.get(), Line);
    press(UGlobal::KeyDown);
    EXPECT_NE(subitem().find("string0:to: a number that takes both lines\n"), std::string::npos);
    press(UGlobal::KeyDown);
    const std::string second = subitem();
    translator.words["a number that takes both lines"] = "two";
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("caption"), "<fr title>");
    EXPECT_EQ(item.getText(), "<fr all>");
    EXPECT_EQ(subitem(), second);
    press(UGlobal::KeyUp);
    EXPECT_NE(subitem().find("string0:<two>\n"), std::string::npos) << "without the prefix";

    item.setTextBranch(static_cast<TranslationInfo*>(nullptr), nullptr, Line);
    item.setTextMain("plain");
    list.setTitle("plain");
    translator.prefix = "de ";
    list.localeChanged("de");
    EXPECT_EQ(screenField("caption"), "plain");
    EXPECT_EQ(subitem(), "icon0:unchecked\nstring0:plain\n");
    item.setTextMain(static_cast<TranslationInfo*>(nullptr));
    list.setTitle(static_cast<TranslationInfo*>(nullptr));
    EXPECT_EQ(screenText(),
        lines({"object:", "name:ExpandingListBox", "subitem:", "name:ExpandingListBoxItem", "icon0:unchecked",
            "string0:", "endsubitem:", "end:"}));
}

TEST_F(ExpandingTreeListTest, AnItemWithoutARowTakesAPlaceAmongTheItemsAlone)
{
    for (const int type : {1, 2, 3, 4, 8, -1})
        EXPECT_EQ(add(type, "none").getText(), "") << type;
    CallForwardItem& first = add(0, "first");
    add(7, "second");
    CallForwardItem& without = *dynamic_cast<CallForwardItem*>(list.getExpandingItemsList().front());
    without.check();
    without.setTextMain(text("kept"));
    without.setReadonly(true, true);
    without.setCFIconVisible(true);
    EXPECT_FALSE(without.getCheck());
    EXPECT_EQ(list.getSelectedIndex(), 0);
    EXPECT_EQ(list.getSelected(), &without) << "not the first with a row";
    EXPECT_EQ(first.iconType(), 0);
    EXPECT_EQ(list.getExpandingItemsList().back()->list(), &list);
    EXPECT_EQ(dynamic_cast<CallForwardItem&>(*list.getExpandingItemsList().back()).iconType(), 7);

    ExpandingTreeList other(true);
    for (ExpandingTreeList* refusing : {&list, &other}) {
        refusing->append(&first);
        refusing->append(&without);
        refusing->append(nullptr);
    }
    EXPECT_EQ(tell(other), "-1 of 0");
    EXPECT_EQ(list.getExpandingItemsList().size(), 8U);
    delete &first;
    delete &without;
    EXPECT_EQ(tell(list), "0 of 6 an item");
    show(list);
    EXPECT_EQ(screenField("string0"), "second");
    list.clear();
    EXPECT_EQ(tell(list), "-1 of 0");
}
