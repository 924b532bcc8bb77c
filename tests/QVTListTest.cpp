#include "EveryScreen.h"
#include "ListFixture.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/QVTList.h>

#include <VantoListBoxWithTitleMEG.h>

using namespace DisplayAPI;

namespace {

VantoListBoxMEG& boxOf(QVTList& list)
{
    return *dynamic_cast<VantoListBoxWithTitleMEG&>(*list.getPrivateImpl()->getWidget()).list();
}

/// The rows on the glass.
std::string glassRows(QVTList& list)
{
    std::string all;
    for (int i = 0; i < boxOf(list).count(); ++i)
        all += boxOf(list).item(i)->getText().toUTF8();
    return all;
}

class QVTListTest : public ListFixture { };

TranslationInfo keptTitle("Title", nullptr);

std::string tell(QVTList& list)
{
    return list.widgetName() + rows(list) + std::to_string(list.size()) + (list.selectionHasChanged() ? " moved" : "");
}

}

INSTANTIATE_TEST_SUITE_P(QVTList, EveryScreenTest,
    screenFamily<QVTList>(
        [](Stage& stage) {
            auto list = std::make_unique<QVTList>();
            list->addCommandListener(&stage.listener);
            for (const char* text : {"A", "B", "C"})
                list->append(stage.newRow(text));
            return list;
        },
        {
            {"append", [](auto& list, auto& stage) { list.appendToAlternativeDisplay(stage.newRow("D")); }},
            {"insertAt", [](auto& list, auto& stage) { list.insertAt(stage.newRow("X"), 1); }},
            {"setDisplayText", [](auto& list, auto& stage) { list.setDisplayText(1, stage.translation("line")); }},
            {"a text", [](auto& list, auto&) { list.setDisplayText(1, "line"); }},
            {"no text", [](auto& list, auto&) { list.setDisplayText(1, static_cast<TranslationInfo*>(nullptr)); }},
            {"setTitle", [](auto& list, auto&) { list.setTitle(&keptTitle); }, false},
            {"setSelectedIndex", [](auto& list, auto&) { list.setSelectedIndex(1); }, false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }},
            {"removeAt", [](auto& list, auto& stage) { stage.takeBack(list.removeAt(1)); }},
            {"clear", [](auto& list, auto&) { list.clear(); }, false},
        },
        tell));

TEST_F(QVTListTest, TheBarShowsWhatTheApplicationHasSelected)
{
    QVTList list;
    fill(list, "AB");
    show(list);
    const auto isBarShown = [&] { return boxOf(list).isHighlightBarShown(); };
    EXPECT_FALSE(isBarShown());
    list.setSelectedIndex(0);
    EXPECT_TRUE(isBarShown());
    list.insertAt(new CountedItem("X"), 0);
    EXPECT_TRUE(isBarShown());
    list.append(new CountedItem("Y"));
    EXPECT_FALSE(isBarShown());
    list.setSelected(list.getItems()[0]);
    EXPECT_TRUE(isBarShown());
    EXPECT_EQ(screenText(), "");
    EXPECT_EQ(display->serialise(), lines({"object:", "name:Not Implemented", "end:"}));
}

TEST_F(QVTListTest, TheFlagTellsOfTheUsersMoves)
{
    QVTList list;
    fill(list, "ABC");
    EXPECT_FALSE(list.selectionHasChanged());
    show(list);
    EXPECT_TRUE(list.selectionHasChanged()) << "as it is shown";
    EXPECT_FALSE(list.selectionHasChanged()) << "asked twice";
    show(list);
    press(UGlobal::KeyDown);
    EXPECT_FALSE(list.selectionHasChanged()) << "no row is known to have been left";
    press(UGlobal::KeyDown);
    EXPECT_TRUE(list.selectionHasChanged());
    delete list.removeAt(2);
    press(UGlobal::KeyDown);
    EXPECT_TRUE(list.selectionHasChanged()) << "from a row that has gone";
    show(list);
    display->setCurrent(nullptr);
    EXPECT_FALSE(list.selectionHasChanged()) << "off the glass";
}

TEST_F(QVTListTest, HandlesAndGlassGoTheirOwnWaysWhereTheGlassDoesNotFollow)
{
    QVTList list;
    fill(list, "AB");
    show(list);
    auto* x = new CountedItem("X");
    list.insertAt(x, -1);
    EXPECT_EQ(rows(list), "[X]AB");
    EXPECT_EQ(glassRows(list), "AB");
    ListItem* a = list.getItems()[1];
    EXPECT_EQ(list.removeAt(0), x);
    EXPECT_EQ(glassRows(list), "B") << "the row at the index";
    delete x;
    delete a; // with its row, which it has back
    EXPECT_EQ(rows(list), "[B]");

    ListItem* b = list.getItems()[0];
    auto* y = new CountedItem("Y");
    list.move(b, y, 0);
    EXPECT_EQ(rows(list), "[Y]");
    EXPECT_EQ(glassRows(list), "B");
    delete b;
    EXPECT_EQ(glassRows(list), "B") << "the row has lost its handle";
    EXPECT_EQ(list.removeAt(0), y);
    EXPECT_EQ(glassRows(list), "");
    delete y;
}
