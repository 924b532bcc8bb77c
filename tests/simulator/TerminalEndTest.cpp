// However a phonelet ends, its terminal is as it was, and what it has written comes behind that.

#include "GuiCall.h"
#include "TerminalFixture.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>

#include <cstdio>
#include <future>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

using Trouble = std::function<void()>;

void show(DisplayAPI::Display& display)
{
    DisplayAPI::List list(0);
    list.append("Alive");
    display.setCurrent(&list);
    display.show();
    display.exec();
}

class TerminalEndTest : public TerminalFixture {
protected:
    /// A phonelet that makes trouble when F1 is pressed, on a thread that is not the GUI thread.
    void startWith(const Trouble& trouble, bool hasOtherErrors = false)
    {
        start(80, 24, "xterm-256color", [&] {
            if (hasOtherErrors)
                dup2(mErrorSlave, STDERR_FILENO);
            const char* arguments[] = {"troubled"};
            std::exit(PhoneSimulator(1, arguments)
                          .onStep(
                              "trouble", [&](const std::string&) { trouble(); }, 1)
                          .run(show));
        });
        ASSERT_TRUE(shows("Alive"));
    }

    void makeTrouble() { type("\x1bOP"); }
};

void overflow(volatile char* above)
{
    volatile char page[4096];
    page[0] = above[0];
    if (page[0] == 0) // always, which the compiler can't know
        overflow(page);
    page[1] = page[0];
}

[[noreturn]] void waitForEver()
{
    std::promise<void>().get_future().wait();
    std::abort();
}

TEST_F(TerminalEndTest, WhatIsWrittenIsShownOnAPageAndPrintedToItsStreamWhenTheTerminalIsFree)
{
    startWith(
        [] {
            std::cout << "to output \x1b[31m" << std::endl;
            std::printf("by the C library\n");
            [[maybe_unused]] const ssize_t count = write(STDERR_FILENO, "to errors\n", 10);
            [[maybe_unused]] const int code = std::system("echo by a child");
        },
        true);
    makeTrouble();
    ASSERT_TRUE(shows("o output (4 new)"));
    type("o");
    ASSERT_TRUE(shows("to output ?[31m"));
    ASSERT_TRUE(shows("to errors"));
    ASSERT_TRUE(shows("by a child"));
    EXPECT_EQ(mErrors, "") << "not while the telephone is up";
    type("oq");
    EXPECT_EQ(finish(), 0);
    expectTerminalAsBefore();
    EXPECT_NE(sentAfterwards().find("to output \x1b[31m\r\nby the C library\r\nby a child\r\n"), std::string::npos)
        << testing::PrintToString(sentAfterwards());
    EXPECT_EQ(mErrors, "to errors\r\n");
}

TEST_F(TerminalEndTest, OfVeryMuchTheEndIsKept)
{
    startWith([] {
        for (int line = 0; line < 300000; ++line)
            std::printf("line %d\n", line);
    });
    makeTrouble();
    ASSERT_TRUE(shows("o output (300000 new)"));
    type("q");
    EXPECT_EQ(finish(), 0);
    const std::string sent = sentAfterwards();
    EXPECT_NE(sent.find(" bytes of output before this were left out)\r\nline 2"), std::string::npos)
        << sent.substr(0, 200);
    EXPECT_TRUE(sent.ends_with("line 299998\r\nline 299999\r\n"));
    EXPECT_LT(sent.size(), std::size_t{1300000});
}

TEST_F(TerminalEndTest, EveryEndLeavesTheTerminalAsItWasAndPrintsWhatWasWritten)
{
    struct Row {
        const char* name;
        Trouble trouble;
        std::string message;
        int status = -1; // of an ordinary end; -1 for one by a signal, or by the sanitizer that sees the signal
    };
    const auto onGui = [](const Trouble& trouble) {
        return [trouble] {
            Simulator::callOnGui(trouble);
            waitForEver();
        };
    };
    const Row rows[] = {
        {"exception", [] { std::thread([] { throw std::runtime_error("out of paper"); }).join(); }, "out of paper"},
        {"abort", [] { std::abort(); }, ""},
        {"crash", [] { std::raise(SIGSEGV); }, ""},
        {"bad address on the GUI thread", onGui([] { *reinterpret_cast<volatile int*>(std::uintptr_t{16}) = 1; }), ""},
        {"stack of the GUI thread", onGui([] {
             volatile char first[1] = {};
             overflow(first);
         }),
            ""},
#ifdef __SANITIZE_ADDRESS__
        {"report of the sanitizer",
            [] {
                const std::unique_ptr<char[]> bytes(new char[8]);
                const volatile std::size_t behind = 8;
                bytes[behind] = 1;
            },
            "heap-buffer-overflow"},
#endif
        {"exit", [] { std::exit(3); }, "", 3},
        {"exit of the GUI thread", onGui([] { std::exit(3); }), "", 3},
        {"quick exit", [] { std::quick_exit(4); }, "", 4},
        {"exception of a step", [] { throw std::runtime_error("no dial tone"); }, "troubled: no dial tone", 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        startWith([&row] {
            std::cerr << "last words" << std::endl;
            row.trouble();
        });
        makeTrouble();
        const int status = finish();
        if (row.status >= 0)
            EXPECT_EQ(WIFEXITED(status) ? WEXITSTATUS(status) : -1, row.status);
        else
            EXPECT_NE(status, 0);
        expectTerminalAsBefore();
        EXPECT_NE(sentAfterwards().find("last words\r\n"), std::string::npos);
        EXPECT_NE(sentAfterwards().find(row.message), std::string::npos) << sentAfterwards();
        closeTerminal();
    }
}

TEST_F(TerminalEndTest, AChildThatEndsLeavesTheTelephoneUp)
{
    startWith([] {
        if (fork() == 0)
            std::quick_exit(5); // runs what the process has registered for its end
        wait(nullptr);
        std::cout << "child gone" << std::endl;
    });
    makeTrouble();
    ASSERT_TRUE(shows("o output (1 new)"));
    EXPECT_EQ(mSent.find("\x1b[?1049l"), std::string::npos);
    type("q");
    EXPECT_EQ(finish(), 0);
    EXPECT_NE(sentAfterwards().find("child gone"), std::string::npos);
    EXPECT_EQ(sentAfterwards().find("child gone"), sentAfterwards().rfind("child gone")) << "printed once";
}

TEST_F(TerminalEndTest, AfterAStopFromOutsideTheTerminalIsTakenAgain)
{
    startWith([] {});
    int status = 0;
    kill(mChild, SIGSTOP);
    ASSERT_EQ(waitpid(mChild, &status, WUNTRACED), mChild);
    tcsetattr(mSlave, TCSANOW, &mBefore); // as a shell does
    while (readMore(0)) { }
    mSent.clear();
    kill(mChild, SIGCONT);
    const auto isTaken = [this] {
        termios now{};
        tcgetattr(mSlave, &now);
        return (now.c_lflag & ICANON) == 0;
    };
    // What it was drawing when it was stopped may come first.
    while ((!isTaken() || mSent.find("string0: Alive") == std::string::npos) && readMore(30000)) { }
    EXPECT_TRUE(isTaken());
    EXPECT_NE(mSent.find("string0: Alive"), std::string::npos) << "drawn anew without being asked";
    type("q");
    EXPECT_EQ(finish(), 0);
    expectTerminalAsBefore();
}

TEST_F(TerminalEndTest, LeavingTwiceEndsAPhoneletThatHangs)
{
    startWith([] { Simulator::callOnGui([] { waitForEver(); }); });
    makeTrouble();
    type("q");
    ASSERT_TRUE(shows("Leaving"));
    type("q");
    EXPECT_EQ(WEXITSTATUS(finish()), 128 + SIGINT);
    expectTerminalAsBefore();
}

}
