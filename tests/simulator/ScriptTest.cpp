#include "Script.h"
#include "ScreenText.h"
#include "UsageError.h"

#include <Types.h>

#include <gtest/gtest.h>

#include <sstream>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

Script parse(const std::string& text)
{
    std::istringstream input(text);
    return parseScript(input, "test.script");
}

TEST(ScriptTest, EachStepKeepsItsLineAndItsArguments)
{
    const Script script = parse("# a comment\n"
                                "press ok\n"
                                "\n"
                                "  press  DOWN   3\t\r\n"
                                "type 0*#9\n"
                                "hold F8\n"
                                "expect caption:Press OK # not a comment\n"
                                "advance 5s\n"
                                "advance 300ms\n"
                                "text");
    ASSERT_EQ(script.steps.size(), 8U);
    EXPECT_EQ(script.steps[0].keys, std::vector<int>({UGlobal::KeyOk}));
    EXPECT_EQ(script.steps[0].line, 2);
    EXPECT_EQ(script.steps[1].keys, std::vector<int>({UGlobal::KeyDown}));
    EXPECT_EQ(script.steps[1].count, 3);
    EXPECT_EQ(script.steps[1].line, 4);
    EXPECT_EQ(script.steps[2].keys, std::vector<int>({'0', '*', '#', '9'}));
    EXPECT_EQ(script.steps[3].keys, std::vector<int>({UGlobal::KeyFunction1 + 7}));
    EXPECT_EQ(script.steps[4].text, "caption:Press OK # not a comment");
    EXPECT_EQ(script.steps[5].time, 5s);
    EXPECT_EQ(script.steps[6].time, 300ms);
    EXPECT_EQ(script.steps[7].kind, Step::Kind::Text);
}

TEST(ScriptTest, ALineThatIsNoStepIsNamedWithItsReason)
{
    const struct {
        const char* line;
        const char* reason;
    } lines[] = {
        {"jump", "no step is called \"jump\""},
        {"Press OK", "no step is called \"Press\""},
        {"press", "press needs something behind it"},
        {"press BANANA", "no key is called \"BANANA\""},
        {"press F9", "no key is called \"F9\""},
        {"press OK 0", "how often to press"},
        {"press OK 1001", "how often to press"},
        {"press OK twice", "how often to press"},
        {"hold OK 2", "no key is called \"OK 2\""},
        {"type 12a", "type takes digits"},
        {"expect", "expect needs something behind it"},
        {"advance 5", "a time is a number with its unit"},
        {"advance -5s", "a time is a number with its unit"},
        {"advance s", "a time is a number with its unit"},
        {"advance 99999999999s", "a time is a number with its unit"},
        {"advance 9999999s", "up to a week"},
        {"text now", "text takes nothing behind it"},
        {"shot", "shot needs something behind it"},
    };
    for (const auto& row : lines) {
        try {
            parse(std::string("text\n") + row.line + "\n");
            ADD_FAILURE() << row.line << " was taken";
        } catch (const UsageError& error) {
            const std::string message = error.what();
            EXPECT_EQ(message.find("test.script:2: "), 0U) << message;
            EXPECT_NE(message.find(row.reason), std::string::npos) << message;
        }
    }
    EXPECT_THROW(readScript("/nonexistent/file"), UsageError);
    EXPECT_THROW(readScript("/tmp"), UsageError);
}

TEST(ScriptTest, AnExpectedTextIsAWholeLineOrAWholeValue)
{
    const std::string screen
        = "object:\nname:VantoListBox\ncaption:Delete entry? Anna \nsubitem:\nstring0: Speaker -> \n"
          "string1:a:b\nstring2:\nendsubitem:\nend:\n";
    const struct {
        const char* wanted;
        bool isFound;
    } rows[] = {
        {"caption:Delete entry? Anna", true},
        {"Delete entry? Anna", true},
        {"Delete entry", false},
        {"string0: Speaker ->", true},
        {"string0:Speaker ->", true},
        {"caption:  Delete entry? Anna", true},
        {"Speaker ->", true},
        {"Speaker", false},
        {"Speaker*", true},
        {"*Anna", true},
        {"caption:*entry*", true},
        {"caption:*Speaker*", false},
        {"*", true},
        {"string1:a:b", true},
        {"a:b", true},
        {"b", false},
        {"end:", true},
        {"string2:", true},
        {"", false},
        {"d*e*l*e*t*e", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(containsField(screen, row.wanted), row.isFound) << row.wanted;
    EXPECT_FALSE(containsField("", "*"));
    EXPECT_EQ(fieldLines(screen),
        std::vector<std::string>({"name:VantoListBox", "caption:Delete entry? Anna ", "  string0: Speaker -> ",
            "  string1:a:b", "  string2:"}));
    EXPECT_EQ(inOneLine("object:\n\nend:\n"), "object: | end:");
    EXPECT_EQ(inOneLine(""), "no text");
}

}
