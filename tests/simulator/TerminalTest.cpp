// A phonelet in a terminal of its own: what it draws, its keys, and the terminal that it leaves behind.

#include "TerminalFixture.h"

namespace {

class TerminalTest : public TerminalFixture {
protected:
    /// Starts the program in a terminal of this size.
    void start(unsigned short columns, unsigned short lines, const char* kind = "xterm-256color",
        const char* shellCommand = "exec \"$0\"")
    {
        TerminalFixture::start(columns, lines, kind, [shellCommand] {
            execl("/bin/sh", "sh", "-mc", shellCommand, PROJECT_BINARY_DIR "/bin/example-audio",
                static_cast<char*>(nullptr));
        });
    }
};

TEST_F(TerminalTest, KeysWorkTheTelephoneAndQLeavesIt)
{
    start(120, 40);
    ASSERT_TRUE(shows("┌─ Telephone ─"));
    ASSERT_TRUE(shows("Speaker (in use)"));
    type("\x1bOB"); // Down
    ASSERT_TRUE(shows("HeadSet"));
    type("\r");
    ASSERT_TRUE(shows("Use HeadSet?"));
    type("\r");
    ASSERT_TRUE(shows("HeadSet (in use)"));
    type("q");
    EXPECT_EQ(finish(), 0);
    expectTerminalAsBefore();
}

TEST_F(TerminalTest, WhatIsShownFollowsTheSizeOfTheTerminal)
{
    start(12, 3);
    ASSERT_TRUE(shows("needs 20"));
    resize(80, 24);
    ASSERT_TRUE(shows("── Telephone ─"));
    ASSERT_TRUE(shows("[2 abc ]"));
    resize(70, 8);
    ASSERT_TRUE(shows("No room for the glass"));
    resize(90, 50);
    ASSERT_TRUE(shows("┌─ Telephone ─"));
    type("\x03");
    EXPECT_EQ(WEXITSTATUS(finish()), 128 + SIGINT);
    expectTerminalAsBefore();
}

TEST_F(TerminalTest, AKeyThatDoesNothingSaysSo)
{
    start(80, 24);
    ASSERT_TRUE(shows("Speaker (in use)"));
    for (const auto& [keys, message] :
        {std::pair("x", "x does nothing; ? shows the keys"), std::pair("\xC3\xB6", "ö does"),
            std::pair("\x1b[99;7~", "This key does"), std::pair("?\r", "The telephone is behind this page")}) {
        type(keys);
        EXPECT_TRUE(shows(message));
    }
    type("\x1b");
    ASSERT_TRUE(shows("Speaker (in use)"));
    type("q");
    EXPECT_EQ(finish(), 0);
}

TEST_F(TerminalTest, ASignalGivesTheTerminalBack)
{
    for (int signal : {SIGTERM, SIGINT, SIGHUP, SIGABRT}) {
        start(90, 24);
        ASSERT_TRUE(shows("Speaker (in use)"));
        kill(mChild, signal);
        const int status = finish();
        EXPECT_EQ(WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status) - 128, signal);
        expectTerminalAsBefore();
        closeTerminal();
    }
}

TEST_F(TerminalTest, ControlZGivesTheTerminalToTheShellUntilItGoesOn)
{
    start(90, 24, "xterm-256color", "\"$0\"; echo stopped; read line; fg");
    ASSERT_TRUE(shows("Speaker (in use)"));
    type("\x1a");
    while (mSent.find("stopped") == std::string::npos && readMore(30000)) { }
    expectTerminalAsBefore();
    type("\n");
    ASSERT_TRUE(shows("Speaker (in use)"));
    type("q");
    EXPECT_EQ(finish(), 0);
    expectTerminalAsBefore();
}

TEST_F(TerminalTest, ATerminalThatCannotBeUsedIsRefused)
{
    for (const auto& [kind, reason] :
        {std::pair("nonexistent", "example-audio: no description of the terminal \"nonexistent\""),
            std::pair("dumb", "example-audio: the terminal \"dumb\" can't show a full screen")}) {
        start(90, 24, kind);
        while (readMore(30000) && mSent.find('\n') == std::string::npos) { }
        EXPECT_NE(mSent.find(reason), std::string::npos) << mSent;
        EXPECT_EQ(WEXITSTATUS(finish()), 2) << kind;
        closeTerminal();
    }
}

}
