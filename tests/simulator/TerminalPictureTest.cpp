// What a terminal shows, in sizes from everybody's 80 by 24 to too small.

#include "TerminalPicture.h"
#include "BlockDrawing.h"
#include "TerminalLayout.h"

#include <Types.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>

using namespace Simulator;

namespace {

using Lines = std::vector<std::string>;

const std::string callOverList = "object:\nname:VantoListBox\ncaption:Audio output\nend:\n"
                                 "object:\nname:PopupCall\nicon0:Incoming\ncaption:Bob Ortiz 4713\nsubitem:\n"
                                 "name:VantoListBoxItem\nstring0:Accept?\nendsubitem:\nend:\n"
                                 "object:\nname:VolumeIndicator\nstring0:5\nend:\n";

bool lies(const Area& inner, const Area& outer)
{
    return inner.line >= outer.line && inner.line + inner.lines <= outer.line + outer.lines
        && inner.column >= outer.column && inner.column + inner.columns <= outer.column + outer.columns;
}

bool touch(const Area& one, const Area& other)
{
    return !one.isEmpty() && !other.isEmpty() && one.line < other.line + other.lines
        && other.line < one.line + one.lines && one.column < other.column + other.columns
        && other.column < one.column + one.columns;
}

class TerminalPictureTest : public testing::Test {
protected:
    TerminalPictureTest()
    {
        std::setlocale(LC_CTYPE, "C.UTF-8"); // for the width of characters
        mState.functionKeys = {"F1 incoming", "F2", "F3", "F4", "F5", "F6", "F7", "F8"};
        mState.screen.text = callOverList;
        mState.screen.number = 1;
        mState.status = "? keys";
    }

    Lines draw(int columns, int lines, GlassCharacters characters = GlassCharacters::Quarters) const
    {
        return drawTerminal(mState, columns, lines, characters).text();
    }

    /// Marks the corners of the glass, and the highlight of a row of which the text ends with a mark.
    void paintGlass(int height)
    {
        mState.screen.screen = UScreenWE1(height);
        UScreenWE1& screen = mState.screen.screen;
        for (int y : {0, height - 1}) {
            screen.setPixel(0, y, true);
            screen.setPixel(UScreenWE1::Width - 1, y, true);
        }
        for (int y = 17; y < 30; ++y)
            screen.fill(y, 0, UScreenWE1::Width - 1, true);
        screen.setPixel(150, 22, false);
    }

    TerminalState mState;
};

TEST_F(TerminalPictureTest, EightyByTwentyFourHoldsGlassKeysAndTheTopmostText)
{
    paintGlass(31);
    mState.pressedKey = UGlobal::KeyOk;
    const TextCanvas canvas = drawTerminal(mState, 80, 24, GlassCharacters::Quarters);
    Lines lines = canvas.text();
    const std::string blank;
    EXPECT_EQ(lines[0], "── Telephone ───────────────────────────────────────────────────────────────────");
    EXPECT_EQ(lines[1], "▘" + std::string(78, ' ') + "▝");
    EXPECT_EQ(lines[12].size(), 80 * std::string("█").size()) << "one of the equal blocks of the highlight is left out";
    EXPECT_EQ(columnsOf(lines[12].substr(0, lines[12].find("▟"))), 74) << "and the mark keeps its place at the right";
    lines.erase(lines.begin(), lines.begin() + 17);
    EXPECT_EQ(lines,
        Lines({
            " [F1 incoming] [F2] [F3] [F4] [F5] [F6] [F7] [F8]",
            " [1     ] [2 abc ] [3 def ]         [ ▲ ]       name:PopupCall         … t: all",
            " [4 ghi ] [5 jkl ] [6 mno ]   [ ◄ ] [OK ] [ ► ] icon0:Incoming",
            " [7 pqrs] [8 tuv ] [9 wxyz]         [ ▼ ]       caption:Bob Ortiz 4713",
            " [*     ] [0 +   ] [#     ]         [ C ]         name:VantoListBoxItem",
            "                                                  string0:Accept?",
            " ? keys",
        }));
    EXPECT_EQ(canvas.at(19, 36).style, Style::LitKey) << "OK is down";
    EXPECT_EQ(canvas.at(19, 10).style, Style::Key);
}

TEST_F(TerminalPictureTest, ThreeDisplayLinesLeaveALineForTheStatus)
{
    paintGlass(47);
    mState.screen.screen.fill(40, 0, 0, true);
    const Lines lines = draw(80, 24);
    EXPECT_EQ(lines[0], "▘" + std::string(78, ' ') + "▝");
    EXPECT_EQ(lines[22], "▖" + std::string(78, ' ') + "▗") << "the last row of pixels is there";
    EXPECT_EQ(lines[23], " ? keys");
}

TEST_F(TerminalPictureTest, ALargeTerminalHoldsTheWholeTelephoneWithItsTextBesideIt)
{
    paintGlass(31);
    mState.desktop.number = 1;
    mState.desktop.screen = UScreenWE1(16);
    mState.desktop.screen.setPixel(0, 15, true);
    const Lines lines = draw(120, 46);
    const auto left = [&lines](std::size_t line) { return wrapped(lines[line], 34).front(); };
    EXPECT_EQ(lines[0].substr(lines[0].find("┐")), "┐  Screen text");
    EXPECT_EQ(lines[1].substr(lines[1].find("│", 3)), "│  name:VantoListBox");
    EXPECT_EQ(lines[9].substr(lines[9].find("┤")), "┤  string0:5") << "the whole text";
    EXPECT_EQ(left(8), "│▖                                ");
    EXPECT_EQ(left(9), "├─────────────────────────────────");
    EXPECT_EQ(left(10), "│▘                                ");
    EXPECT_EQ(left(26), "├─────────────────────────────────");
    EXPECT_EQ(left(27), "│ ┌─────────────┐┌────┐┌────┐┌────");
    EXPECT_EQ(left(28), "│ │ F1 incoming ││ F2 ││ F3 ││ F4 ");
    EXPECT_EQ(left(34), "│ │ 4 ghi  ││ 5 jkl  ││ 6 mno  │  ");
    EXPECT_EQ(left(42), "└─────────────────────────────────");
}

TEST_F(TerminalPictureTest, TheDesktopIsTextInTheEdgeWhereItsStripHasNoRoom)
{
    mState.desktop.number = 1;
    mState.desktop.text = "object:\nname:Desktop\nstring0:12:34 Mon\nsubitem:\nname:DesktopIcon\nicon0:Headset\n"
                          "endsubitem:\nend:\n";
    const Lines lines = draw(84, 30);
    EXPECT_TRUE(lines[0].starts_with("┌─ Telephone ─ 12:34 Mon  Headset ──")) << lines[0];
}

TEST_F(TerminalPictureTest, WithoutRoomForTheGlassTheTextStandsAlone)
{
    EXPECT_EQ(draw(60, 13),
        Lines({
            "Screen text",
            "name:VantoListBox  caption:Audio output",
            "name:PopupCall  icon0:Incoming  caption:Bob Ortiz 4713",
            "  name:VantoListBoxItem  string0:Accept?",
            "name:VolumeIndicator  string0:5",
            "",
            "",
            " [F1 incoming] [F2] [F3] [F4] [F5] [F6] [F7] [F8]",
            " [1     ] [2 abc ] [3 def ]         [ ▲ ]",
            " [4 ghi ] [5 jkl ] [6 mno ]   [ ◄ ] [OK ] [ ► ]",
            " [7 pqrs] [8 tuv ] [9 wxyz]         [ ▼ ]",
            " [*     ] [0 +   ] [#     ]         [ C ]",
            " ? keys",
        }));
    mState.status = "nothing";
    EXPECT_EQ(draw(20, 4), Lines({"name:Popup … t: all", "icon0:Incoming", "caption:Bob Ortiz 4…", " nothing"}));
    EXPECT_EQ(draw(19, 9).front(), "The telephone needs");
    EXPECT_EQ(draw(0, 0), Lines());
}

TEST_F(TerminalPictureTest, TerminalsWithoutTheBlocksGetWhatTheyHave)
{
    paintGlass(31);
    EXPECT_EQ(draw(170, 20, GlassCharacters::Halves)[1].substr(0, 6), "▀   ");
    for (const std::string& line : draw(170, 40, GlassCharacters::None))
        EXPECT_TRUE(std::ranges::all_of(line, [](char byte) { return byte >= ' ' && byte <= '~'; })) << line;
}

TEST_F(TerminalPictureTest, APageCoversTheTelephoneOrStandsBesideIt)
{
    mState.page = TerminalPage{"Output", {"a\x1b[31m", "日本"}, 3, 9};
    const Lines covered = draw(80, 24);
    EXPECT_EQ(Lines(covered.begin(), covered.begin() + 4), Lines({"Output  4-5 of 9", "a?[31m", "日本", ""}));
    EXPECT_TRUE(draw(120, 30)[1].ends_with("│  a?[31m")) << "with the glass beside it";
}

TEST_F(TerminalPictureTest, NoPartLiesOverAnotherAtAnySize)
{
    for (int columns = 1; columns < 210; columns += 3) {
        for (int lines = 1; lines < 60; ++lines) {
            for (const TerminalNeeds& needs : {TerminalNeeds{columns, lines, 81, 80, 16, 0},
                     TerminalNeeds{columns, lines, 81, 80, 24, 8}, TerminalNeeds{columns, lines, 162, 162, 16, 8}}) {
                const TerminalLayout layout = layOut(needs);
                if (layout.isTooSmall)
                    continue;
                const Area parts[] = {layout.strip, layout.glass, layout.functionKeys, layout.keys, layout.text,
                    {layout.topEdge, 0, layout.topEdge < 0 ? 0 : 1, 20},
                    {layout.middleEdge, 0, layout.middleEdge < 0 ? 0 : 1, 20}, {layout.statusLine, 0, 1, columns}};
                for (const Area& part : parts) {
                    ASSERT_TRUE(part.isEmpty() || lies(part, {0, 0, lines, columns})) << columns << "x" << lines;
                    const auto overlaps = [&part](const Area& other) { return &part != &other && touch(part, other); };
                    ASSERT_TRUE(std::ranges::none_of(parts, overlaps)) << columns << "x" << lines;
                }
                ASSERT_TRUE(!layout.text.isEmpty() || !layout.glass.isEmpty()) << columns << "x" << lines;
            }
        }
    }
}

TEST_F(TerminalPictureTest, AGlassWithoutAnyGapLosesNoInkButAtItsEdges)
{
    UScreenWE1 screen(16);
    for (int cell = 0; cell < 27; ++cell) {
        for (int bit = 0; bit < 5; ++bit)
            screen.setPixel(cell * 6 + bit, 2 + (cell * 5 + bit) % 12, true); // no two columns alike
    }
    const Lines lines = drawBlocksInto(screen, {80, 8});
    EXPECT_EQ(columnsOf(lines[0]), 80);
    // The last two columns of background are gone: the one at the edge, and the one before the last letter.
    const Lines whole = drawBlocks(screen);
    for (std::size_t line = 0; line < lines.size(); ++line)
        EXPECT_EQ(wrapped(lines[line], 77).front(), wrapped(whole[line], 77).front());
}

}
