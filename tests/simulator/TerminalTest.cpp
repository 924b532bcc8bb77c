// A phonelet in a terminal of its own: what it draws, its keys, and the terminal that it leaves behind.

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <pty.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utility>
#include <utmp.h>

namespace {

using Clock = std::chrono::steady_clock;

class TerminalTest : public testing::Test {
protected:
    ~TerminalTest() override
    {
        if (mChild > 0) {
            kill(mChild, SIGKILL);
            waitpid(mChild, nullptr, 0);
        }
        closeTerminal();
    }

    void closeTerminal()
    {
        close(std::exchange(mMaster, -1));
        close(std::exchange(mSlave, -1));
        mSent.clear();
    }

    /// Starts the program in a terminal of this size.
    void start(unsigned short columns, unsigned short lines, const char* kind = "xterm-256color",
        const char* shellCommand = "exec \"$0\"")
    {
        winsize size{lines, columns, 0, 0};
        ASSERT_EQ(openpty(&mMaster, &mSlave, nullptr, nullptr, &size), 0);
        tcgetattr(mSlave, &mBefore);
        mChild = fork();
        if (mChild == 0) {
            login_tty(mSlave);
            setenv("TERM", kind, 1);
            setenv("LC_ALL", "C", 1);
            execl("/bin/sh", "sh", "-mc", shellCommand, PROJECT_BINARY_DIR "/bin/example-audio",
                static_cast<char*>(nullptr));
            _exit(127);
        }
    }

    void type(const std::string& keys)
    {
        ASSERT_EQ(write(mMaster, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }

    /// Reads until the terminal shows the text; false after a while without it. A program sends only what has
    /// changed, so it is asked to draw everything anew.
    testing::AssertionResult shows(const std::string& text)
    {
        const auto deadline = Clock::now() + std::chrono::seconds(30);
        mSent.clear();
        while (Clock::now() < deadline) {
            type("\f");
            while (readMore(100)) {
                if (mSent.find(text) != std::string::npos)
                    return testing::AssertionSuccess();
            }
        }
        return testing::AssertionFailure()
            << "the terminal has been sent " << testing::PrintToString(mSent.substr(0, 4000));
    }

    void resize(unsigned short columns, unsigned short lines) const
    {
        const winsize size{lines, columns, 0, 0};
        ioctl(mMaster, TIOCSWINSZ, &size);
    }

    bool readMore(int milliseconds)
    {
        pollfd source{mMaster, POLLIN, 0};
        char buffer[4096];
        if (poll(&source, 1, milliseconds) <= 0)
            return false;
        const ssize_t count = read(mMaster, buffer, sizeof buffer);
        if (count <= 0)
            return false;
        mSent.append(buffer, static_cast<std::size_t>(count));
        return true;
    }

    /// Waits for the end of the program; its status as of waitpid(), and the terminal's settings afterwards.
    int finish()
    {
        int status = 0;
        waitpid(mChild, &status, 0);
        mChild = 0;
        while (readMore(0)) { }
        return status;
    }

    void expectTerminalAsBefore()
    {
        termios after{};
        tcgetattr(mSlave, &after);
        EXPECT_EQ(after.c_lflag, mBefore.c_lflag);
        EXPECT_EQ(after.c_iflag, mBefore.c_iflag);
        EXPECT_EQ(after.c_oflag, mBefore.c_oflag);
        EXPECT_NE(mSent.find("\x1b[?1049l"), std::string::npos) << "the ordinary screen is back";
    }

    int mMaster = -1;
    int mSlave = -1;
    pid_t mChild = 0;
    termios mBefore{};
    std::string mSent;
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
