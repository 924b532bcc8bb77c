#include "Serialiser.h"
#include "ScreenTextParser.h"

#include <CallRowsMEG.h>
#include <TreeItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

#include <gtest/gtest.h>

#include <ctime>
#include <vector>

using DisplayAPI::Serialiser;

namespace {

UString text(const char* utf8)
{
    return UString(std::string(utf8));
}

std::string momentOfToday(const char* time)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char date[32];
    std::strftime(date, sizeof date, "%Y-%m-%d ", &local);
    return date + std::string(time);
}

class SerialiserTest : public testing::Test {
protected:
    /// The subitems of a list that holds this row alone.
    std::string rowText(VantoListBoxItemMEG* row, std::vector<URect> rects = {})
    {
        list.list()->clear();
        list.list()->addItem(row);
        return withoutFrame(serialise(std::move(rects)));
    }

    std::string serialise(std::vector<URect> rects = {})
    {
        Serialiser serialiser;
        const std::string document = serialiser.serialiseVantoListBox(std::move(rects), &list);
        EXPECT_EQ(ScreenTextParser::faultOf(document), "") << document;
        return document;
    }

    static std::string withoutFrame(std::string document)
    {
        static const std::string head = "object:\nname:VantoListBox\n";
        static const std::string foot = "end:\n";
        EXPECT_TRUE(document.starts_with(head) && document.ends_with(foot)) << document;
        return document.substr(head.size(), document.size() - head.size() - foot.size());
    }

    CallLogListItemMEG* logRow(int iconType, const std::string& date, bool elsewhere)
    {
        return new CallLogListItemMEG(text("Bob"), text("4712"), CallLogListItemMEG::IconType(iconType), UString(date),
            2, false, false, elsewhere, 0);
    }

    CallBackListItemMEG* callBackRow(int type, int state, int iconType)
    {
        return new CallBackListItemMEG(text("Bob"), CallBackListItemMEG::CallBackType(type),
            CallBackListItemMEG::CallBackState(state), CallBackListItemMEG::IconType(iconType), text("Monday"));
    }

    VantoListBoxWithTitleMEG list;
};

/// A row of a kind that the text does not know.
class SliderRowMEG : public VantoListBoxItemMEG {
public:
    int getItemType() const override { return SliderRow; }
};

}

TEST_F(SerialiserTest, OnlyTitleAndCurrentRowAreWritten)
{
    list.setTitle(text("Speaker"));
    auto* headset = new VantoListBoxItemMEG(text("HeadSet"));
    headset->setArrow(true);
    list.list()->addItem(new VantoListBoxItemMEG(text("Handset")));
    list.list()->addItem(headset);
    list.list()->setCurrentItem(1);
    Serialiser serialiser;
    EXPECT_FALSE(serialiser.hasCaption());
    EXPECT_EQ(serialiser.serialiseVantoListBox({}, &list),
        "object:\nname:VantoListBox\ncaption:Speaker\nsubitem:\nname:VantoListBoxItem\nstring0: HeadSet ->\n"
        "endsubitem:\nend:\n");
    EXPECT_TRUE(serialiser.hasCaption());
}

TEST_F(SerialiserTest, WhatIsMissingIsLeftOutWhole)
{
    Serialiser serialiser;
    EXPECT_EQ(serialiser.serialiseVantoListBox({}, nullptr), "");
    EXPECT_EQ(serialise(), "object:\nname:VantoListBox\nend:\n") << "an empty list";
    EXPECT_EQ(rowText(new SliderRowMEG), "") << "a row of another kind";
    EXPECT_EQ(rowText(new InfiniteBarItemMEG), "subitem:\nname:VantoListBoxItem\nstring0: \nendsubitem:\n");
    list.list()->setCurrentIndex(-1);
    EXPECT_EQ(serialise(), "object:\nname:VantoListBox\nend:\n") << "no current row";
    for (const int index : {-1, 0, 5}) {
        EXPECT_EQ(serialiser.doCallLogListItem(index, &list), "") << index;
        EXPECT_EQ(serialiser.doCallBackListItem(index, &list), "") << index;
    }
    EXPECT_EQ(serialiser.serialiseBranch({}, nullptr, &list, 0), "");
    EXPECT_FALSE(serialiser.hasCaption());
}

TEST_F(SerialiserTest, ACallLogRowHasItsIconsInOrder)
{
    // The words of the other kinds stand in CallLogMainItemTest.
    const struct {
        int iconType;
        bool elsewhere;
        const char* icons;
    } rows[] = {{4, false, ""}, {9, false, "icon0:NoIcon\n"}, {0, true, "icon0:CompletedElsewhere\nicon1:Private\n"}};
    for (const auto& row : rows) {
        auto* widget = logRow(row.iconType, "2001-02-03 10:42", row.elsewhere);
        const std::string shown = widget->getDisplayedText().toUTF8();
        EXPECT_EQ(rowText(widget),
            "subitem:\nname:CallLogListItem\n" + std::string(row.icons) + "string0: " + shown
                + "\nstring1: 2\nstring2: 2001-02-03\nendsubitem:\n");
    }
}

TEST_F(SerialiserTest, ACallOfTodayShowsItsTimeAndTheArrowOnlyWhereItIsCurrent)
{
    auto* first = logRow(4, momentOfToday("10:42"), false);
    auto* second = logRow(4, "yesterday", false);
    second->setArrow(true);
    const std::string shown = second->getDisplayedText().toUTF8();
    EXPECT_NE(rowText(first).find("string2: 10:42\n"), std::string::npos);
    list.list()->addItem(second);
    Serialiser serialiser;
    EXPECT_EQ(serialiser.doCallLogListItem(1, &list),
        "subitem:\nname:CallLogListItem\nstring0: " + shown + "\nstring1: 2\nstring2: yesterday\nendsubitem:\n");
    list.list()->setCurrentIndex(1);
    EXPECT_NE(serialiser.doCallLogListItem(1, &list).find("string0: " + shown + " ->\n"), std::string::npos);
}

TEST_F(SerialiserTest, ACallBackRowHasItsStateFirstAndItsIconBehindTheText)
{
    const struct {
        const char* name;
        int type;
        int state;
        int iconType;
        const char* head;
        const char* icon;
    } rows[] = {
        {"no reply, paused", 1, 2, 0, "icon:CallBackNoReply-Paused\n", "icon:Private\n"},
        {"no reply, active", 1, 1, 1, "icon:CallBackNoReply-Active\n", "icon:Business1\n"},
        {"busy, paused", 2, 2, 2, "icon:CallBackBusy-Paused\n", "icon:Business2\n"},
        {"busy, active", 2, 0, 3, "icon:CallBackBusy-Active\n", "icon:Mobile\n"},
        {"another type, no icon", 3, 2, 4, "", ""},
        {"another icon", 0, 1, -1, "", "icon:NoIcon\n"},
    };
    for (const auto& row : rows) {
        auto* widget = callBackRow(row.type, row.state, row.iconType);
        widget->setArrow(true);
        EXPECT_EQ(rowText(widget),
            "subitem:\nname:CallBackListItem\n" + std::string(row.head) + "string0: Bob ->\n" + row.icon
                + "string1: Monday\nendsubitem:\n")
            << row.name;
    }
}

TEST_F(SerialiserTest, ACallInAnUnknownStateHasItsArrowAndSecurity)
{
    auto* plain = new TreeItemMEG(BranchMEG::IconType(8), text("Bob"), false, true);
    EXPECT_EQ(rowText(plain), "subitem:\nname:Branch\nicon0:Unknown\nstring0:Bob  0:00\nendsubitem:\n");
    auto* row = new TreeItemMEG(BranchMEG::IconType(-1), text("Bob"), true, true);
    row->branch->setCallSecurityState(BranchMEG::InsecureCall);
    EXPECT_EQ(
        rowText(row), "subitem:\nname:Branch\nicon0:Unknown\nstring0:Bob  -> 0:00\nicon1:InsecureCall\nendsubitem:\n");
    row->hide();
    row->branch->setCallSecurityState(BranchMEG::SecureCall);
    EXPECT_EQ(withoutFrame(serialise()),
        "subitem:\nname:Branch\nicon0:Unknown\nstring0:Bob  0:00\nicon1:SecureCall\nendsubitem:\n")
        << "a hidden row has no arrow";
}

TEST_F(SerialiserTest, TheLeafOfACallIsWrittenWhereARectangleHoldsItWhole)
{
    list.setCoordinates(0, 0, 161, 30);
    list.list()->setCoordinates(3, 0, 157, 13);
    auto* row = new TreeItemMEG(BranchMEG::CallActive, text("Bob"), false, true);
    row->setSecondLineText(text("4712"));
    const std::string branch = "subitem:\nname:Branch\nicon0:CallStateActive\nstring0:Bob  0:00\nendsubitem:\n";
    const std::string leaf = "subitem:\nname:Leaf\nstring0:4712\nendsubitem:\n";
    EXPECT_EQ(rowText(row), branch) << "no rectangle";
    EXPECT_EQ(withoutFrame(serialise({URect(0, 0, 161, 30)})), branch + leaf);
    EXPECT_EQ(withoutFrame(serialise({URect(3, 0, 157, 12), URect(3, 1, 161, 30)})), branch) << "partly in each";
    EXPECT_EQ(withoutFrame(serialise({URect(50, 20, 60, 30), URect(3, 0, 157, 13)})), branch + leaf);
    row->clearSecondLineText();
    EXPECT_EQ(withoutFrame(serialise({URect(0, 0, 161, 30)})), branch) << "no text";
}

TEST(ScreenTextParserTest, ItFindsWhatBreaksTheGrammar)
{
    const struct {
        const char* name;
        const char* document;
        const char* fault;
    } documents[] = {
        {"nothing at all", "", ""},
        {"a form that closes twice", "object:\nname:FormWidget\nend:\nend:\n", ""},
        {"a menu without a name", "object:\nsubitem:\nname:Row\nendsubitem:\nend:\n", ""},
        {"three ends", "object:\nname:FormWidget\nend:\nend:\nend:\n", "line 5: a line outside of an object: \"end:\""},
        {"no end", "object:\nname:A\n", "line 2: the document ends inside a block: \"\""},
        {"no line feed", "object:\nname:A\nend:", "line 2: the last line has no line feed: \"end:\""},
        {"an empty line", "object:\nname:A\n\nend:\n", "line 3: no field of a block: \"\""},
        {"an unknown key", "object:\nname:A\nicon2:X\nend:\n", "line 3: no field of a block: \"icon2:X\""},
        {"indentation", "object:\nname:A\n string0:X\nend:\n", "line 3: no field of a block: \" string0:X\""},
        {"a late name", "object:\ncaption:X\nname:A\nend:\n",
            "line 3: the name is the first line of its block: \"name:A\""},
        {"a subitem without a name", "object:\nname:A\nsubitem:\nstring0:X\nendsubitem:\nend:\n",
            "line 4: the name is the first line of its block: \"string0:X\""},
        {"a field behind a subitem", "object:\nname:A\nsubitem:\nname:B\nendsubitem:\ncaption:X\nend:\n",
            "line 6: a field behind a subitem: \"caption:X\""},
        {"a password", "object:\nname:A\ncaption:Geheim\nend:\n", "line 0: a password in clear: \"Geheim\""},
    };
    for (const auto& document : documents)
        EXPECT_EQ(ScreenTextParser::faultOf(document.document), document.fault) << document.name;
}
