#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/LineOverviewItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include <CallRowsMEG.h>

using namespace DisplayAPI;

namespace {

using Line = LineOverviewItem;

LineOverviewListItem* rowOf(Line& line)
{
    return static_cast<LineOverviewListItem*>(line.getPrivateImplemetation()->getVantoListItem());
}

class LineOverviewItemTest : public PhoneTest { };

std::unique_ptr<Line> makeLine(Stage& stage)
{
    return std::make_unique<Line>(Line::LINE_IDLE, "Sales", "4711", true, stage.translation("1:"));
}

std::string tell(Line& line)
{
    return line.getText();
}

const std::vector<Change<Line>> changesOfALine = {
    {"setLineState", [](auto& line, auto&) { line.setLineState(Line::LINE_RINGING); }},
    {"setDisplayHDIconStatus", [](auto& line, auto&) { line.setDisplayHDIconStatus(true); }},
    {"setLineNamePrefix", [](auto& line, auto& stage) { line.setLineNamePrefix(stage.translation("2:")); }},
    {"holdItem", [](auto& line, auto&) { line.holdItem(1000); }},
    {"an active call", [](auto& line, auto&) { line.setLineState(Line::LINE_ACTIVE); }},
    {"setLineName", [](auto& line, auto&) { line.setLineName("Support"); }},
    {"an identity", [](auto& line, auto& stage) { line.setLineIdentity(stage.translation("me")); }},
    {"time", [](auto&, auto& stage) { stage.advance(1000); }},
    {"setLineIdentity", [](auto& line, auto&) { line.setLineIdentity("4712"); }},
    {"a state without an icon", [](auto& line, auto&) { line.setLineState(Line::LINE_SEIZED); }},
};

}

INSTANTIATE_TEST_SUITE_P(LineOverviewItem, EveryRowTest, rowFamily(inList<Line>(), makeLine, changesOfALine, tell));

// Such a line has no row on the glass, from its beginning.
INSTANTIATE_TEST_SUITE_P(LineWithoutRow, EveryRowTest,
    rowFamily(
        inList<Line>(), [](Stage&) { return std::make_unique<Line>(Line::LINE_SEIZED, "", "", true, nullptr); },
        changesOfALine, tell));

TEST_F(LineOverviewItemTest, EachStateHasItsIconOrLeavesTheOneThatIsThere)
{
    Line line(Line::LINE_ACTIVE_ELSEWHERE, "", "", false, nullptr);
    int shown = 5;
    int number = 0;
    for (const int icon : {0, 1, -1, 2, 3, 4, 5, 6, 7, -1, -1, 8, -1}) {
        const auto state = static_cast<Line::LineState>(number++);
        line.setLineState(state);
        shown = icon < 0 ? shown : icon;
        EXPECT_EQ(rowOf(line)->getIconType(), shown) << state;
        Line made(state, "", "", false, nullptr);
        EXPECT_EQ(rowOf(made) != nullptr, icon >= 0) << state;
    }
    line.setDisplayHDIconStatus(true);
    EXPECT_EQ(rowOf(line)->getIconType(), 8);
    line.setLineState(Line::LINE_ACTIVE);
    EXPECT_EQ(rowOf(line)->getIconType(), 9);
}

TEST_F(LineOverviewItemTest, AHeldRowShowsAllAtOnceWhenItsTimeIsOver)
{
    TestTranslator translator;
    const auto text = [&](const char* key) { return new TranslationInfo("<", key, ">", &translator); };
    List list(0);
    auto* line = new Line(Line::LINE_IDLE, "Sales", "4711", true, text("1:"));
    list.append(line);
    show(list);
    EXPECT_EQ(glassLine(0), "\u25A1\u25A11: Sales            4711>");
    const auto expectRow = [&](const char* row, int icon) {
        EXPECT_EQ(screenField("string0"), row);
        EXPECT_EQ(rowOf(*line)->getIconType(), icon);
    };
    line->holdItem(0);
    line->holdItem(1000);
    line->setLineName("Support");
    line->setLineIdentity(text("me"));
    line->setLineNamePrefix(text("2:"));
    line->setLineState(Line::LINE_RINGING);
    advance(999);
    expectRow(" 1: Sales 4711 ->", 0);
    translator.prefix = "de:";
    line->holdItem(500); // which shows what there is, and begins anew
    expectRow(" de:2: Support de:me ->", 2);
    line->setLineName("Lab");
    line->setLineNamePrefix(nullptr);
    line->setLineState(Line::LINE_SEIZED);
    advance(499);
    expectRow(" de:2: Support de:me ->", 2);
    advance(1);
    expectRow(" de:2: Lab de:me ->", 2);
    line->holdItem(500);
    line->setLineIdentity(static_cast<TranslationInfo*>(nullptr));
    line->setLineNamePrefix(text("3:"));
    line->holdItem(-1);
    expectRow(" de:3: Lab de:me ->", 2);
    line->setLineNamePrefix(nullptr);
    advance(500); // the timer was stopped
    expectRow(" Lab de:me ->", 2);
}
