#include "UString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace std::string_literals;

const std::string Bad = "\xEF\xBF\xBD"; // U+FFFD

std::vector<unsigned> unitsOf(const UString& text)
{
    std::vector<unsigned> units;
    for (std::size_t i = 0; i < text.length(); ++i)
        units.push_back(text[i]);
    return units;
}

UString ofUnits(const std::vector<unsigned>& units)
{
    UString text;
    for (const unsigned unit : units)
        text.append(static_cast<unsigned short>(unit));
    return text;
}

}

TEST(UStringTest, GoodTextBecomesItsUnitsAndComesBackTheSame)
{
    const struct {
        const char* name;
        std::string utf8;
        std::vector<unsigned> units;
    } rows[] = {
        {"nothing", "", {}},
        {"NUL inside", "a\0b"s, {'a', 0, 'b'}},
        {"the up-and-down arrow", "\xEE\x80\x80", {0xE000}},
        {"last of three bytes", "\xEF\xBF\xBF", {0xFFFF}},
        {"a face between letters", "x\xF0\x9F\x98\x80y", {'x', 0xD83D, 0xDE00, 'y'}},
        {"last pair", "\xF4\x8F\xBF\xBF", {0xDBFF, 0xDFFF}},
    };
    for (const auto& row : rows) {
        const UString text = UString::fromUTF8(row.utf8);
        EXPECT_EQ(unitsOf(text), row.units) << row.name;
        EXPECT_EQ(text.toUTF8(), row.utf8) << row.name;
        EXPECT_EQ(UString(row.utf8), text) << row.name;
    }
}

TEST(UStringTest, EachMaximalBadSequenceBecomesOneReplacement)
{
    const struct {
        const char* name;
        std::string utf8;
        std::string read;
    } rows[] = {
        {"continuation alone", "a\x80z", "a" + Bad + "z"},
        {"overlong of two bytes", "\xC0\xAF", Bad + Bad},
        {"encoded surrogate", "\xED\xA0\x80", Bad + Bad + Bad},
        {"above U+10FFFF", "\xF4\x90\x80\x80", Bad + Bad + Bad + Bad},
        {"two of three, then a letter", "\xE2\x82z", Bad + "z"},
        {"three of four, then the end", "\xF0\x9F\x98", Bad},
        {"a lead breaks a sequence", "\xE2\x82\xC3\xA4", Bad + "\xC3\xA4"},
        {"the standard's own example",
            "a\xF1\x80\x80\xE1\x80\xC2"
            "b\x80"
            "c\x80\xBF"
            "d",
            "a" + Bad + Bad + Bad + "b" + Bad + "c" + Bad + Bad + "d"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(UString::fromUTF8(row.utf8).toUTF8(), row.read) << row.name;
}

TEST(UStringTest, ALoneSurrogateIsWrittenAsAReplacement)
{
    EXPECT_EQ(ofUnits({'a', 0xD83D}).toUTF8(), "a" + Bad);
    EXPECT_EQ(ofUnits({0xDE00, 'a'}).toUTF8(), Bad + "a");
    EXPECT_EQ(ofUnits({0xDE00, 0xD83D}).toUTF8(), Bad + Bad);
    EXPECT_EQ(ofUnits({0xD83D, 0xD83D, 0xDE00}).toUTF8(), Bad + "\xF0\x9F\x98\x80");
}

TEST(UStringTest, TheLastCharacterGoesAsAWhole)
{
    UString text = UString::fromUTF8("a\xF0\x9F\x98\x80");
    text.append(0xDE00);
    text.removeLast();
    EXPECT_EQ(text.toUTF8(), "a\xF0\x9F\x98\x80");
    text.removeLast();
    EXPECT_EQ(text.toUTF8(), "a");
    text.removeLast();
    text.removeLast();
    EXPECT_TRUE(text.isEmpty());
}
