#include "CellFont.h"

#include "Icons.h"
#include "UPainter.h"
#include "UScreenWE1.h"
#include "UString.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string Unreadable = "\xE2\x96\xA1";

class CellFontTest : public testing::Test {
protected:
    CellFont font;
    UScreenWE1 screen{UScreenWE1::MaximumHeight};
    UPainter painter{screen, &font};
};

}

TEST_F(CellFontTest, ALineReadsAsItWasPainted)
{
    painter.text(0, 0, UString("4711           \xC3\x84hre & Co."));
    painter.text(1, 3, UString("~!@ \xE2\x82\xAC \xEE\x80\x80"));
    painter.text(2, 26, UString("x"));
    EXPECT_EQ(lineText(screen, 0), "4711           \xC3\x84hre & Co.  ");
    EXPECT_EQ(lineText(screen, 1), "   ~!@ \xE2\x82\xAC \xE2\x86\x95" + std::string(17, ' '));
    EXPECT_EQ(lineText(screen, 2), std::string(26, ' ') + "x");
}

TEST_F(CellFontTest, EveryUnitThatTheFontHasIsReadBack)
{
    UString line;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        if (font.glyph(static_cast<std::uint16_t>(unit)))
            line.append(static_cast<std::uint16_t>(unit));
        if (line.length() < UPainter::Columns)
            continue;
        painter.clearLine(0);
        painter.text(0, 0, line);
        ASSERT_EQ(lineText(screen, 0), line.toUTF8()) << "up to " << unit;
        line.clear();
    }
}

TEST_F(CellFontTest, TheMarksReadAsTheyLook)
{
    const struct {
        Icons::Mark mark;
        char character;
    } rows[] = {
        {Icons::Mark::MoreBelow, 'v'},
        {Icons::Mark::MoreAbove, '^'},
        {Icons::Mark::MoreBoth, '|'},
        {Icons::Mark::ContextArrow, '>'},
    };
    for (const auto& row : rows) {
        painter.clearLine(1);
        painter.mark(1, row.mark);
        EXPECT_EQ(lineText(screen, 1).back(), row.character);
    }
}

TEST_F(CellFontTest, AnInverseLineReadsTheSameAndIsKnown)
{
    constexpr std::uint16_t anyIcon = 6;
    painter.icon(1, 0, anyIcon);
    painter.text(1, 3, UString("Anna"));
    painter.mark(1, Icons::Mark::MoreBelow);
    const std::string before = lineText(screen, 1);
    EXPECT_EQ(before, Unreadable + Unreadable + " Anna" + std::string(19, ' ') + "v");
    for (int column = 0; column < UPainter::Columns; ++column)
        EXPECT_FALSE(lineIsInverse(screen, 1, column)) << column;

    painter.invert(1, 0, 25);
    EXPECT_EQ(lineText(screen, 1), before);
    for (int column = 0; column < UPainter::Columns - 1; ++column)
        EXPECT_TRUE(lineIsInverse(screen, 1, column)) << column;
    EXPECT_FALSE(lineIsInverse(screen, 1, 26));
    EXPECT_FALSE(lineIsInverse(screen, 0));
}

TEST_F(CellFontTest, AStrayPixelMakesItsCellUnreadable)
{
    painter.text(0, 0, UString("ab "));
    screen.setPixel(UFont::CellWidth, 7, !screen.pixel(UFont::CellWidth, 7));
    screen.setPixel(2 * UFont::CellWidth, 13, true);
    EXPECT_EQ(lineText(screen, 0), "a" + Unreadable + Unreadable + std::string(24, ' '));
}
