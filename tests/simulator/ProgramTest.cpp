// A phonelet as its users start it: options, exit codes, and what it writes where.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Result {
    int code = -1;
    std::string output;
    std::string errors;
};

class ProgramTest : public testing::Test {
protected:
    ProgramTest()
        : mFolder(std::filesystem::temp_directory_path() / ("program-test-" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(mFolder);
    }
    ~ProgramTest() override { std::filesystem::remove_all(mFolder); }

    Result run(const std::string& arguments) const
    {
        const std::string command = "cd '" + mFolder.string() + "' && '" PROJECT_BINARY_DIR "/bin/example-audio' "
            + arguments + " >output 2>errors </dev/null";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, content("output"), content("errors")};
    }

    std::string content(const std::string& file) const
    {
        std::ifstream input(mFolder / file);
        std::ostringstream text;
        text << input.rdbuf();
        return text.str();
    }

    void writeScript(const std::string& text) const { std::ofstream(mFolder / "test.script") << text; }

    std::filesystem::path mFolder;
};

TEST_F(ProgramTest, AQuestionAnsweredWithYesChangesTheList)
{
    writeScript("expect caption:Audio output\n"
                "expect Speaker (in use)\n"
                "press DOWN\n"
                "expect HeadSet\n"
                "press OK\n"
                "expect Use HeadSet?\n"
                "expect Yes\n"
                "press OK\n"
                "expect HeadSet (in use)\n"
                "press UP\n"
                "expect Speaker\n"
                "shot end.png\n");
    const Result result = run("--script test.script");
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(content("end.png").substr(1, 3), "PNG");
}

TEST_F(ProgramTest, NoAndLeftGoBackToTheListAsItWas)
{
    writeScript("press DOWN\nexpect HeadSet\npress OK\nexpect Yes\npress DOWN\nexpect No\npress OK\n"
                "expect-not name:PopupDialog\nexpect HeadSet\n"
                "press OK\nexpect Use HeadSet?\npress LEFT\nexpect-not name:PopupDialog\nexpect HeadSet\n");
    const Result result = run("--script test.script");
    EXPECT_EQ(result.code, 0) << result.errors;
}

TEST_F(ProgramTest, TextAndPictureOfTheFirstScreen)
{
    const Result result = run("--text --shot first.png --scale 2");
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(result.output.find("object:\nname:VantoListBox\ncaption:Audio output\n"), 0U) << result.output;
    EXPECT_EQ(content("first.png").substr(1, 3), "PNG");
    const Result failed = run("--shot /nonexistent/first.png");
    EXPECT_EQ(failed.code, 1);
    EXPECT_NE(failed.errors.find("/nonexistent/first.png"), std::string::npos) << failed.errors;
}

TEST_F(ProgramTest, WithoutATerminalTheTourIsPlayed)
{
    const Result result = run("");
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("┌──"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("Use HeadSet?"), std::string::npos) << result.output;
    EXPECT_EQ(run("--tour").output, result.output) << "and it is the same each time";
}

TEST_F(ProgramTest, AFailedStepGivesItsLineAndExitCodeOne)
{
    writeScript("press DOWN\n\nexpect Loudspeaker\n");
    const Result result = run("--script test.script --timeout 0.1");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(
        result.errors.find("test.script:3: expect Loudspeaker: expected \"Loudspeaker\", the screen has: object:"), 0U)
        << result.errors;
}

TEST_F(ProgramTest, WhatCannotBeUsedGivesOneLineAndExitCodeTwo)
{
    writeScript("press DOWN\npress NOWHERE\n");
    for (const char* arguments :
        {"--script test.script", "--script missing.script", "--script", "--bogus", "something", "--font /etc/passwd",
            "--font missing.pcf", "--lines 4", "--model rx99", "--software isdn", "--desktop --lines 3", "--scale big",
            "--timeout -1", "--tour --text", "--script test.script --shot x.png", "--golden ."}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 2) << arguments;
        EXPECT_EQ(result.output, "") << arguments;
        EXPECT_EQ(result.errors.find("example-audio: "), 0U) << arguments << ": " << result.errors;
        EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1) << arguments << ": " << result.errors;
    }
}

TEST_F(ProgramTest, GoldensAreComparedExactlyAndChangeByUpdateAlone)
{
    writeScript("shot list.png\npress DOWN\nshot second.png\n");
    const std::string play = "--script test.script --golden goldens --timeout 20";
    EXPECT_EQ(run(play).errors, "example-audio: there is no folder goldens; --update makes it\n");
    EXPECT_EQ(run(play + " --update").code, 0);
    EXPECT_EQ(run(play).errors, "");

    std::ofstream(mFolder / "goldens/list.txt") << "object:\nname:List\n";
    std::filesystem::copy(mFolder / "goldens/second.png", mFolder / "goldens/third.png");
    std::filesystem::remove(mFolder / "goldens/second.png");
    std::filesystem::copy(
        mFolder / "goldens/third.png", mFolder / "goldens/list.png", std::filesystem::copy_options::overwrite_existing);
    const Result changed = run(play);
    EXPECT_EQ(changed.code, 1);
    EXPECT_EQ(changed.errors,
        "test.script:1: shot list.png: goldens/list.txt differs: line 2 is \"name:List\" there and "
        "\"name:VantoListBox\" on the screen; goldens/list.png differs, see list-difference.png\n"
        "test.script:3: shot second.png: goldens/second.png is missing\n"
        "test.script: no step takes goldens/third.png; delete it\n"
        "example-audio: --update takes over what the screens show now\n");
    EXPECT_EQ(content("list-difference.png").substr(1, 3), "PNG");

    std::filesystem::remove(mFolder / "goldens/third.png");
    EXPECT_EQ(run(play + " --update").errors, "");
    EXPECT_EQ(run(play).errors, "");
}

TEST_F(ProgramTest, NothingOfAScriptReachesTheTerminalAsControl)
{
    writeScript("expect \x1b[2J\x9b\x07 caf\xc3\xa9\n");
    const Result result = run("--script test.script --timeout 0");
    EXPECT_EQ(result.errors.find("test.script:1: expect ?[2J?? caf\xc3\xa9: expected "), 0U) << result.errors;
    writeScript("\x1b]0;title\x07\n");
    EXPECT_EQ(
        run("--script test.script").errors.find("example-audio: test.script:1: no step is called \"?]0;title?\""), 0U);
}

TEST_F(ProgramTest, HelpAndVersionAreAnswersAndNoErrors)
{
    const Result help = run("--help");
    EXPECT_EQ(help.code, 0);
    for (const char* word : {"--script", "--text", "--shot", "--tour", "--font", "q leaves"})
        EXPECT_NE(help.output.find(word), std::string::npos) << word;
    const Result version = run("--version");
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.output, "example-audio (on DisplayAPI 0.1.0)\n");
}

}
