#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <poll.h>
#include <pty.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utility>
#include <utmp.h>

/// A program in a terminal of its own: what it draws, and the terminal that it leaves behind.
class TerminalFixture : public testing::Test {
protected:
    ~TerminalFixture() override
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
        close(std::exchange(mErrorMaster, -1));
        close(std::exchange(mErrorSlave, -1));
        mSent.clear();
        mErrors.clear();
    }

    /// Starts a function in a terminal of this size, in a process of its own. Its standard error is a second terminal.
    void start(unsigned short columns, unsigned short lines, const char* kind, const std::function<void()>& program)
    {
        winsize size{lines, columns, 0, 0};
        ASSERT_EQ(openpty(&mMaster, &mSlave, nullptr, nullptr, &size), 0);
        ASSERT_EQ(openpty(&mErrorMaster, &mErrorSlave, nullptr, nullptr, &size), 0);
        tcgetattr(mSlave, &mBefore);
        mChild = fork();
        if (mChild == 0) {
            login_tty(dup(mSlave));
            setenv("TERM", kind, 1);
            setenv("LC_ALL", "C", 1);
            program();
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
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        mSent.clear();
        while (std::chrono::steady_clock::now() < deadline) {
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
        pollfd sources[] = {{mMaster, POLLIN, 0}, {mErrorMaster, POLLIN, 0}};
        if (poll(sources, 2, milliseconds) <= 0)
            return false;
        return readFrom(sources[0], mSent) || readFrom(sources[1], mErrors);
    }

    static bool readFrom(const pollfd& source, std::string& text)
    {
        char buffer[4096];
        const ssize_t count = (source.revents & POLLIN) != 0 ? read(source.fd, buffer, sizeof buffer) : 0;
        text.append(buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        return count > 0;
    }

    /// Reads to the end of the program. Its status as of waitpid().
    int finish()
    {
        int status = 0;
        while (waitpid(mChild, &status, WNOHANG) == 0)
            readMore(50);
        mChild = 0;
        while (readMore(0)) { }
        return status;
    }

    /// What was sent when the ordinary screen was back.
    std::string sentAfterwards() const
    {
        const std::string leave = "\x1b[?1049l";
        const auto place = mSent.rfind(leave);
        return place == std::string::npos ? "" : mSent.substr(place + leave.size());
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
    int mErrorMaster = -1;
    int mErrorSlave = -1;
    pid_t mChild = 0;
    termios mBefore{};
    std::string mSent;
    std::string mErrors; // what came from its standard error, if that is the second terminal
};
