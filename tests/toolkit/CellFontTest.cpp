#include "CellFont.h"

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

TEST_F(CellFontTest, AStrayPixelMakesItsCellUnreadable)
{
    painter.text(0, 0, UString("ab "));
    screen.setPixel(UFont::CellWidth, 7, !screen.pixel(UFont::CellWidth, 7));
    screen.setPixel(2 * UFont::CellWidth, 13, true);
    EXPECT_EQ(lineText(screen, 0), "a" + Unreadable + Unreadable + std::string(24, ' '));
}
