#include "TextCells.h"
#include "TextCuts.h"
#include "UFont.h"
#include "UPainter.h"
#include "UScreenWE1.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

/// A font of three letters: `I` is a line down the left side of its cell, `L` has a foot, `T` a roof.
class SmallFont : public UFont {
public:
    const Glyph* glyph(std::uint16_t unit) const override
    {
        switch (unit) {
        case 'I': return &mI;
        case 'L': return &mL;
        case 'T': return &mT;
        case ' ': return &mBlank;
        default: return nullptr;
        }
    }

private:
    static constexpr std::uint8_t Left = 0b100000;
    static constexpr std::uint8_t Whole = 0b111110;

    static Glyph letter(std::uint8_t first, std::uint8_t last)
    {
        Glyph glyph;
        glyph.fill(Left);
        glyph.front() = first;
        glyph.back() = last;
        return glyph;
    }

    const Glyph mBlank{};
    const Glyph mI = letter(Left, Left);
    const Glyph mL = letter(Left, Whole);
    const Glyph mT = letter(Whole, Left);
};

/// A font of black cells, also for what stands over a character.
class BlackFont : public UFont {
public:
    BlackFont() { mGlyph.fill(0x3F); }

    const Glyph* glyph(std::uint16_t) const override { return &mGlyph; }

private:
    Glyph mGlyph;
};

class PainterTest : public testing::Test {
protected:
    using Picture = std::vector<std::string>;

    Picture picture(int left, int top, int width, int height) const
    {
        Picture rows;
        for (int y = top; y < top + height; ++y) {
            rows.emplace_back();
            for (int x = left; x < left + width; ++x)
                rows.back() += mScreen.pixel(x, y) ? '#' : '.';
        }
        return rows;
    }

    /// The letters of a line, read back from the pixels; `.` for a blank cell.
    std::string letters(int line) const
    {
        const int top = line == 0 ? 1 : line == 1 ? 17 : 33;
        std::string result;
        for (int x = 0; x < UScreenWE1::Width; x += UFont::CellWidth) {
            const bool roof = mScreen.pixel(x + 2, top);
            const bool foot = mScreen.pixel(x + 2, top + 12);
            result += roof ? 'T' : foot ? 'L' : mScreen.pixel(x, top + 6) ? 'I' : '.';
        }
        return result;
    }

    static std::string cells(const std::string& left, const std::string& right = "")
    {
        return left + std::string(UPainter::Columns - left.size() - right.size(), '.') + right;
    }

    UScreenWE1 mScreen{47};
    SmallFont mFont;
    UPainter mPainter{mScreen, &mFont};
};

TEST_F(PainterTest, EachLineHasItsCellsAtItsOwnRows)
{
    for (int line : {0, 1, 2})
        EXPECT_EQ(mPainter.text(line, 0, UString("L")), 1);
    const Picture stem(12, "#.....");
    for (int top : {1, 17, 33}) {
        EXPECT_EQ(picture(0, top, 6, 12), stem) << "line at " << top;
        EXPECT_EQ(picture(0, top - 1, 6, 1), Picture({"......"}));
        EXPECT_EQ(picture(0, top + 12, 6, 1), Picture({"#####."}));
    }
}

TEST_F(PainterTest, TextIsCutAtItsColumnsAndAtTheEdgesOfTheGlass)
{
    EXPECT_EQ(mPainter.text(0, 2, UString("TIL"), 2), 2);
    EXPECT_EQ(letters(0), cells("..TI"));
    mPainter.clearLine(0);
    mPainter.text(0, 25, UString("LLLL"));
    EXPECT_EQ(letters(0), cells("", "LL"));
    mPainter.textRight(1, 26, UString("TIL"), 2);
    EXPECT_EQ(letters(1), cells("", "TI")) << "a text at the right edge loses its end";
    mPainter.textRight(1, 1, UString("LLTI"));
    EXPECT_EQ(letters(1), cells("TI", "TI")) << "what lies left of the glass is cut off";
    EXPECT_EQ(mPainter.text(1, 0, UString("T"), -1), 0);
    const UScreenWE1 before = mScreen;
    mPainter.text(3, 0, UString("T"));
    mPainter.text(-1, 0, UString("T"));
    mPainter.invert(7);
    EXPECT_EQ(mScreen, before) << "other lines do not exist";
}

TEST_F(PainterTest, WhoWatchesHearsOfTheTextsThatHaveNoRoom)
{
    std::string told;
    TextCuts::watch(
        [&told](const UString& text, int columns) { told += text.toUTF8() + std::to_string(columns) + " "; });
    mPainter.text(0, 0, UString("TIL"), 3);
    mPainter.text(0, 0, UString("TIL"), 2);
    mPainter.text(0, 25, UString("LLTI"));
    mPainter.textRight(1, 26, UString("TIT"), 1);
    TextCuts::watch(nullptr);
    mPainter.text(0, 0, UString("TIL"), 2);
    EXPECT_EQ(told, "TIL2 LLTI2 TIT1 ");
}

TEST_F(PainterTest, WhatTheFontLacksTakesItsSpaceAndLeavesWhatIsThere)
{
    mPainter.text(0, 0, UString("LLL"));
    EXPECT_EQ(mPainter.text(0, 0, UString("Tx ")), 3);
    EXPECT_EQ(letters(0), cells("TL")) << "a blank wipes its cell, an unknown letter does not";
}

TEST_F(PainterTest, OddTextsStayInTheirPlace)
{
    const BlackFont black;
    UPainter painter(mScreen, &black);
    const unsigned short units[] = {'a', ' ', ' ', '\n', 0, 0x301, 0x4E2D, 0xD83D, 0xDCDE, 0xE000, 0xFFFF};
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        UString text;
        for (auto length = random() % 60; length > 0; --length)
            text.append(units[random() % std::size(units)]);
        const int column = static_cast<int>(random() % UPainter::Columns);
        const int columns = static_cast<int>(random() % 34) - 3;
        mScreen.clear();
        switch (random() % 3) {
        case 0: EXPECT_LE(painter.text(0, column, text, columns), std::max(columns, 0)); break;
        case 1: painter.textRight(0, column + columns - 1, text, columns); break;
        case 2: painter.rowText(0, column, text, columns); break;
        }
        for (int x = 0; x < UScreenWE1::Width; ++x) {
            const bool isInside = x >= 6 * column && x < 6 * (column + columns);
            ASSERT_FALSE(!isInside && mScreen.pixel(x, 7)) << "round " << round << " at " << x;
        }
    }
    for (const unsigned short unit : units) {
        UString text;
        for (int count = 0; count < 1'000'000; ++count)
            text.append(unit);
        painter.rowText(1, 0, text, UPainter::Columns);
        EXPECT_FALSE(TextCells::lines(text, UPainter::Columns).empty());
    }
}

TEST_F(PainterTest, ARunOfThreeBlanksSplitsARow)
{
    const struct {
        const char* name;
        std::string text;
        std::string expected; // in ten columns from the second on
    } rows[] = {
        {"two blanks", "TI  L", ".TI..L....."},
        {"three blanks", "TI   L", ".TI.......L"},
        {"blanks at the start indent", "   TI", "....TI....."},
        {"blanks behind the tail", "TI   LL  ", ".TI......LL"},
        {"the head gives way", "TIIIIIIIIIII   LL", ".TIIIIII.LL"},
        {"the tail alone fits", "TI   LLLLLLLLLLLL", ".LLLLLLLLLL"},
    };
    for (const auto& row : rows) {
        mPainter.clearLine(0);
        mPainter.rowText(0, 1, UString(row.text), 10);
        EXPECT_EQ(letters(0), cells(row.expected)) << row.name;
    }
}

TEST_F(PainterTest, AnIconFillsTwoCells)
{
    EXPECT_EQ(mPainter.icon(0, 1, 7), 2);
    EXPECT_EQ(picture(6, 1, 12, 13),
        Picture({"............", "............", ".##########.", ".##......##.", ".#.#....#.#.", ".#..#..#..#.",
            ".#...##...#.", ".#........#.", ".#........#.", ".##########.", "............", "............",
            "............"}));
    mScreen.clear();
    EXPECT_EQ(mPainter.icon(0, 0, 0), 0) << "the number 0 takes no space";
    EXPECT_EQ(mPainter.icon(0, 0, 65535), 2) << "an unknown number takes its space";
    EXPECT_EQ(mScreen, UScreenWE1(47));
}

TEST_F(PainterTest, MarksStandInTheLastColumn)
{
    mPainter.text(0, 26, UString("L"));
    mPainter.mark(0, Icons::Mark::None);
    EXPECT_EQ(letters(0), cells("", "L"));
    mPainter.mark(0, Icons::Mark::MoreBelow);
    EXPECT_EQ(picture(156, 5, 6, 6), Picture({"......", ".#####", ".#####", "..###.", "..###.", "...#.."}));
    EXPECT_EQ(picture(156, 13, 6, 1), Picture({"......"})) << "the mark replaces the cell";
}

TEST_F(PainterTest, ABarIsFilledToItsValue)
{
    mPainter.bar(0, 0, 2, 0, 10, 5);
    const Picture half{"............", ".##########.", ".#........#.", ".#.###....#.", ".#.###....#."};
    EXPECT_EQ(picture(0, 2, 12, 5), half);
    const struct {
        const char* name;
        int minimum, maximum, value;
        int filled; // pixels of a bar of two cells, six at most
    } bars[] = {
        {"at its minimum", 5, 10, 5, 0},
        {"at its maximum", 5, 10, 10, 6},
        {"without a range", 4, 4, 4, 0},
    };
    for (const auto& bar : bars) {
        mPainter.bar(0, 0, 2, bar.minimum, bar.maximum, bar.value);
        const std::string row = picture(3, 6, 7, 1).front();
        EXPECT_EQ(std::count(row.begin(), row.end(), '#'), bar.filled) << bar.name;
    }
}

TEST_F(PainterTest, BoldLettersStayApart)
{
    mPainter.text(0, 0, UString("LI"));
    mPainter.embolden(0, 0, 1);
    EXPECT_EQ(picture(0, 12, 12, 2), Picture({"##....##....", "#####.##...."}));
}

TEST_F(PainterTest, InvertingTwiceGivesTheLineBack)
{
    mPainter.text(1, 0, UString("TIL"));
    const UScreenWE1 before = mScreen;
    mPainter.invert(1, 1, 25);
    EXPECT_EQ(picture(4, 14, 4, 3), Picture({"....", "..##", "..##"})) << "from row 15 and column 6 on";
    EXPECT_EQ(picture(154, 30, 4, 2), Picture({"##..", "...."})) << "up to row 30 and column 155";
    mPainter.invert(1, 1, 25);
    EXPECT_EQ(mScreen, before);
}

}
