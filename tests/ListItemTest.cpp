#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include "ListItemPrivate.h"

#include <CallRowsMEG.h>

#include <memory>

using namespace DisplayAPI;

namespace {

VantoListBoxItemMEG& rowOf(ListItem& item)
{
    return *item.getPrivateImplemetation()->getVantoListItem();
}

Icons::IconType icon(int number)
{
    return static_cast<Icons::IconType>(number);
}

class ListItemTest : public PhoneTest { };
class ThreadedListItemTest : public ThreadedPhoneTest { };

std::string tell(ListItem& row)
{
    return row.getText() + "|" + row.getRightText() + "|" + std::to_string(row.getLeftIcon());
}

}

INSTANTIATE_TEST_SUITE_P(ListItem, EveryRowTest,
    rowFamily(
        inList<ListItem>(), [](Stage& stage) { return std::make_unique<ListItem>(stage.translation("Anna"), true); },
        {
            {"setText", [](auto& row, auto&) { row.setText("Bob"); }},
            {"setRightText", [](auto& row, auto&) { row.setRightText("noon"); }},
            {"setLeftIcon", [](auto& row, auto&) { row.setLeftIcon(icon(345)); }},
            {"startInfiniteProgressBar", [](auto& row, auto&) { row.startInfiniteProgressBar(); }},
            {"clearBackground", [](auto& row, auto&) { row.clearBackground(); }},
        },
        tell));

TEST(ListItemOnBothRoadsTest, TheRowIsTheSame)
{
    onBothRoads([](Display&) {
        TestTranslator translator;
        TranslationInfo right("<", "noon", ">", &translator);
        ListItem plain;
        ListItem named("Anna", false);
        ListItem translated(new TranslationInfo("(", "Bob", ")", &translator), true);
        ListItem without(static_cast<TranslationInfo*>(nullptr), true);
        std::string seen
            = plain.getText() + "|" + named.getText() + "|" + translated.getText() + "|" + without.getText() + "|";
        named.setText("Ann\xC3\xA4");
        named.setRightText(&right);
        plain.setText(&right);
        translated.setText(static_cast<TranslationInfo*>(nullptr));
        translated.setRightText("10:42");
        seen += plain.getText() + "|" + named.getText() + "|" + named.getRightText() + "|" + translated.getText() + "|"
            + translated.getRightText();
        EXPECT_EQ(seen, "|Anna|(Bob)||<noon>|Ann\xC3\xA4|<noon>||10:42");
        return seen;
    });
}

TEST_F(ListItemTest, ALocaleChangeBringsTheTranslationOfTheConstructorBack)
{
    TestTranslator translator;
    ListItem item(new TranslationInfo("", "Bob", "", &translator), true);
    TranslationInfo other("", "Carol", "", &translator);
    item.setText(&other);
    item.setRightText(&other);
    translator.prefix = "de:";
    item.getPrivateImplemetation()->localeChanged("de");
    EXPECT_EQ(item.getText(), "de:Bob");
    EXPECT_EQ(item.getRightText(), "Carol") << "the right text is not read again";
}

TEST_F(ListItemTest, ThePrivateKeepsOneTranslationForEachText)
{
    TestTranslator translator;
    ListItemPrivate row("first", true);
    auto* kept = new TranslationInfo("", "Bob", "!", &translator);
    row.setText(kept);
    row.setText(kept);
    row.setRightText(new TranslationInfo("", "left", "", &translator));
    row.setRightText(new TranslationInfo("", "right", "", &translator));
    translator.prefix = "de:";
    row.localeChanged("de");
    EXPECT_EQ(row.getVantoListItem()->getText().toUTF8(), "de:Bob!");
    EXPECT_EQ(row.getVantoListItem()->getRightText().toUTF8(), "right");
    row.setText("literal");
    row.localeChanged("de");
    EXPECT_EQ(row.getVantoListItem()->getText().toUTF8(), "literal");
    row.setText(static_cast<TranslationInfo*>(nullptr));
    EXPECT_EQ(row.getVantoListItem()->getText().toUTF8(), "");
}

TEST_F(ListItemTest, LeftIconsComeInPairs)
{
    const int toolkitIcons[] = {98, 98, 94, 94, 97, 97, 93, 93, 96, 96, 92, 92, 95, 95, 91, 91};
    ListItem item("Anna", true);
    EXPECT_EQ(item.getLeftIcon(), 0);
    for (int number = 345; number <= 360; ++number) {
        item.setLeftIcon(icon(number));
        EXPECT_EQ(rowOf(item).icon(), toolkitIcons[number - 345]) << number;
    }
    for (const int number : {361, 344, 0, -1, 2147483647}) {
        item.setLeftIcon(icon(number));
        EXPECT_EQ(rowOf(item).icon(), 0) << number;
        EXPECT_EQ(item.getLeftIcon(), number);
    }
    EXPECT_EQ(item.getRightIcon(), 0);
}

TEST_F(ThreadedListItemTest, AnIconSetFromAnotherThreadIsReadAtOnceAndZeroIsSkipped)
{
    ListItem item("Anna", true);
    item.setLeftIcon(icon(345));
    settle();
    EXPECT_EQ(item.getLeftIcon(), 345);
    item.setLeftIcon(icon(0));
    settle();
    EXPECT_EQ(item.getLeftIcon(), 345);
    ListItem progress(ListItem::InfiniteProgressItem);
    progress.startInfiniteProgressBar();
    progress.clearBackground();
    onGui([&] { EXPECT_TRUE(dynamic_cast<InfiniteBarItemMEG&>(rowOf(progress)).isRunning()); });
}
