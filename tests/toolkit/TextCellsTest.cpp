#include "TextCells.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

Texts wrapped(const std::string& text, int columns)
{
    Texts result;
    for (const UString& line : TextCells::lines(UString(text), columns))
        result.push_back(line.toUTF8());
    return result;
}

/// A text without what may go at the end of a line.
UString inked(const UString& text)
{
    UString result;
    for (std::size_t index = 0; index < text.length(); ++index) {
        if (text[index] != ' ' && text[index] != '\t' && text[index] != '\n')
            result.append(text[index]);
    }
    return result;
}

}

TEST(TextCellsTest, WordsStayTogetherWhereTheyCan)
{
    EXPECT_EQ(wrapped("one two three", 7), (Texts{"one two", "three"}));
    EXPECT_EQ(wrapped("one  two", 4), (Texts{"one", "two"})) << "the blanks at a break are dropped";
    EXPECT_EQ(wrapped("  a  b ", 8), (Texts{"  a  b "})) << "all others stay";
    EXPECT_EQ(wrapped("longest day", 4), (Texts{"long", "est", "day"}));
    EXPECT_EQ(wrapped("a\n\nb\r\n", 9), (Texts{"a", "", "b"}));
    EXPECT_EQ(wrapped("\n", 9), (Texts{""}));
    EXPECT_EQ(wrapped("", 9), Texts());
    EXPECT_EQ(wrapped("a", 0), Texts());
    EXPECT_EQ(wrapped("a", -1), Texts());
    EXPECT_EQ(wrapped("e\u0301e\u0301e\u0301\U0001F4DE", 2), (Texts{"e\u0301e\u0301", "e\u0301\U0001F4DE"}));
}

TEST(TextCellsTest, EveryLineFitsAndNothingIsLost)
{
    std::mt19937 random(11);
    const unsigned short units[] = {'a', 'b', 'c', ' ', ' ', '\t', '\n', 0, 0x301, 0xD83D, 0xDCDE, 0xFE0F};
    for (int round = 0; round < 3000; ++round) {
        UString text;
        for (auto length = random() % 40; length > 0; --length)
            text.append(units[random() % std::size(units)]);
        const int columns = 1 + static_cast<int>(random() % 9);

        UString joined;
        for (const UString& line : TextCells::lines(text, columns)) {
            ASSERT_LE(TextCells::count(line), columns) << "round " << round;
            ASSERT_EQ(line.find(UString(std::string("\n"))), -1) << "round " << round;
            joined += line;
        }
        ASSERT_EQ(inked(joined), inked(text)) << "round " << round;
    }
}

TEST(TextCellsTest, CharactersAreWalkedBothWays)
{
    const UString text(std::string("\u0301a\u0301\u0302\U0001F4DEb"));
    std::vector<std::size_t> forwards;
    for (std::size_t place = 0; place < text.length(); place = TextCells::forward(text, place))
        forwards.push_back(place);
    EXPECT_EQ(forwards, (std::vector<std::size_t>{0, 1, 4, 6}));
    std::vector<std::size_t> backwards;
    for (std::size_t place = text.length(); place > 0;) {
        place = TextCells::backward(text, place);
        backwards.insert(backwards.begin(), place);
    }
    EXPECT_EQ(backwards, forwards);
    EXPECT_EQ(TextCells::count(text), 4);
    EXPECT_EQ(TextCells::count(text, 2), 2);
}
