#include "BlockDrawing.h"
#include "FixedFont.h"
#include "Picture.h"
#include "UsageError.h"

#include <UScreenWE1.h>

#include <gtest/gtest.h>

#include <filesystem>

using namespace Simulator;

namespace {

TEST(DrawingTest, FourPixelsMakeACharacter)
{
    UScreenWE1 screen(3);
    // The sixteen blocks in the order of their bits: upper left, upper right, lower left, lower right.
    for (int block = 0; block < 16; ++block) {
        for (int bit = 0; bit < 4; ++bit)
            screen.setPixel(2 * block + bit % 2, bit / 2, (block >> (3 - bit) & 1) != 0);
    }
    screen.setPixel(0, 2, true);
    const std::vector<std::string> lines = drawBlocks(screen);
    ASSERT_EQ(lines.size(), 2U) << "an odd row stands alone";
    EXPECT_EQ(lines[0], " ▗▖▄▝▐▞▟▘▚▌▙▀▜▛█" + std::string(81 - 16, ' '));
    EXPECT_EQ(lines[1], "▘" + std::string(80, ' '));
    const std::vector<std::string> framed = drawFramedBlocks(screen);
    ASSERT_EQ(framed.size(), 4U);
    EXPECT_EQ(framed[2], "│▘" + std::string(80, ' ') + "│");
}

TEST(DrawingTest, TheFontReadsItsCells)
{
    const FixedFont font("");
    EXPECT_NE(font.glyph('A'), nullptr);
    EXPECT_NE(font.glyph(0x20AC), nullptr) << "the euro sign";
    EXPECT_EQ(font.glyph('\n'), nullptr) << "control characters paint nothing";
    EXPECT_EQ(font.glyph(0), nullptr);
    EXPECT_EQ(font.glyph(0xE123), nullptr);
    const UFont::Glyph capitalI
        = {0, 0, 0b011100, 0b001000, 0b001000, 0b001000, 0b001000, 0b001000, 0b001000, 0b001000, 0b011100, 0, 0};
    ASSERT_NE(font.glyph('I'), nullptr);
    EXPECT_EQ(*font.glyph('I'), capitalI);
}

TEST(DrawingTest, AFontThatCannotBeUsedIsRefused)
{
    EXPECT_THROW(FixedFont("/nonexistent.pcf"), UsageError);
    EXPECT_THROW(FixedFont("/etc/passwd"), UsageError);
    const std::string otherSize = "/usr/share/fonts/X11/misc/9x15.pcf.gz";
    ASSERT_TRUE(std::filesystem::exists(otherSize));
    EXPECT_THROW(FixedFont{otherSize}, UsageError);
}

TEST(DrawingTest, APictureShowsEveryPixelAtItsScale)
{
    UScreenWE1 screen(31);
    screen.setPixel(0, 0, true);
    screen.setPixel(161, 30, true);
    for (int scale : {1, 4}) {
        const Picture picture = drawPicture(screen, scale);
        const int border = (picture.width - 162 * scale) / 2;
        EXPECT_EQ(picture.height, 31 * scale + 2 * border);
        ASSERT_EQ(picture.bytes.size(), static_cast<std::size_t>(picture.width * picture.height * 3));
        const auto isDark = [&](int x, int y) {
            return picture.bytes[static_cast<std::size_t>(((border + y) * picture.width + border + x) * 3)] < 100;
        };
        EXPECT_TRUE(isDark(0, 0));
        EXPECT_TRUE(isDark(scale - 1, scale - 1));
        EXPECT_FALSE(isDark(scale, 0));
        EXPECT_FALSE(isDark(0, scale));
        EXPECT_TRUE(isDark(161 * scale, 30 * scale));
        EXPECT_FALSE(isDark(80 * scale, 15 * scale));
    }
}

TEST(DrawingTest, AWrittenPictureReadsBackTheSame)
{
    UScreenWE1 screen(47);
    screen.setPixel(5, 5, true);
    const Picture picture = drawPicture(screen, 2);
    const std::string file = (std::filesystem::temp_directory_path() / "drawing-test.png").string();
    writePicture(picture, file);
    EXPECT_EQ(readPicture(file), picture);
    std::filesystem::remove(file);
    EXPECT_THROW(readPicture(file), std::runtime_error);
    EXPECT_THROW(writePicture(picture, "/nonexistent/picture.png"), std::runtime_error);
}

}
