#include "EveryScreen.h"
#include "ListFixture.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/QVTList.h>

#include <functional>
#include <tuple>

using namespace DisplayAPI;

namespace {

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
    const std::tuple<const char*, std::function<void()>, bool> steps[] = {
        {"append", [&] { fill(list, "AB"); }, false},
        {"setSelectedIndex", [&] { list.setSelectedIndex(0); }, true},
        {"insertAt", [&] { list.insertAt(new CountedItem("X"), 0); }, true},
        {"append again", [&] { fill(list, "C"); }, false},
        {"setSelected", [&] { list.setSelected(list.getItems()[0]); }, true},
    };
    show(list);
    for (const auto& [name, step, isShown] : steps) {
        step();
        EXPECT_EQ(box(list).isHighlightBarShown(), isShown) << name;
    }
    EXPECT_EQ(screenText(), "");
    EXPECT_EQ(display->serialise(), lines({"object:", "name:Not Implemented", "end:"}));
}

TEST_F(QVTListTest, TheFlagTellsOfTheUsersMovesOnce)
{
    QVTList list;
    fill(list, "ABC");
    const std::tuple<const char*, std::function<void()>, bool> steps[] = {
        {"made", [] {}, false},
        {"shown", [&] { show(list); }, true},
        {"asked again", [] {}, false},
        {"from no known row", [&] { press(UGlobal::KeyDown); }, false},
        {"from row to row", [&] { press(UGlobal::KeyDown); }, true},
        {"its row has gone", [&] { delete list.removeAt(2); }, false},
        {"from a row that has gone", [&] { press(UGlobal::KeyDown); }, true},
        {"off the glass", [&] { display->setCurrent(nullptr); }, false},
    };
    for (const auto& [name, step, hasChanged] : steps) {
        step();
        EXPECT_EQ(list.selectionHasChanged(), hasChanged) << name;
    }
}

TEST_F(QVTListTest, HandlesAndGlassGoTheirOwnWaysWhereTheGlassDoesNotFollow)
{
    QVTList list;
    fill(list, "AB");
    show(list);
    const std::vector<ListItem*> first = list.getItems();
    auto* x = new CountedItem("X");
    auto* y = new CountedItem("Y");
    list.insertAt(x, -1);
    EXPECT_EQ(rows(list) + toolkitRows(list), "[X]AB[A]B");
    EXPECT_EQ(list.removeAt(0), x);
    EXPECT_EQ(rows(list) + toolkitRows(list), "[A]B[B]") << "the row of A, which has it back";
    delete first[0];
    EXPECT_EQ(rows(list) + toolkitRows(list), "[B][B]");
    list.move(first[1], y, 0);
    delete first[1];
    EXPECT_EQ(rows(list) + toolkitRows(list), "[Y][B]") << "a row without its handle";
    EXPECT_EQ(list.removeAt(0), y);
    EXPECT_EQ(rows(list) + toolkitRows(list), "");
    delete x;
    delete y;
}
