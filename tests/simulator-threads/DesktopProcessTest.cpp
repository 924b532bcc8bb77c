// The process of the desktop, with programs in its place that misbehave in every way.

#include "DesktopProcess.h"
#include "DesktopQueue.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

/// Answers everything, and writes down what it was told.
constexpr const char* GoodDesktop = R"(
told=0
while read -r line; do
    printf '%s\n' "$line" >>told
    case $line in
    *pixels*) echo '{"ok":true,"rows":["#.","#"],"text":"told:'$told'"}' ;;
    *) told=$((told + 1)); echo '{"ok":true}' ;;
    esac
done)";

class DesktopProcessTest : public testing::Test {
protected:
    DesktopProcessTest()
        : mFolder(std::filesystem::temp_directory_path() / ("desktop-test-" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(mFolder);
    }
    ~DesktopProcessTest() override { std::filesystem::remove_all(mFolder); }

    /// The path of a shell script that works in the folder of the test; `$pid` there is its number.
    std::string program(const std::string& body) const
    {
        const std::filesystem::path path = mFolder / "desktop";
        std::ofstream(path) << "#!/bin/sh\ncd " << mFolder.string() << "\necho $$ >pid\n" << body << "\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path.string();
    }

    std::string content(const std::string& file) const
    {
        std::ifstream input(mFolder / file);
        std::ostringstream text;
        text << input.rdbuf();
        return text.str();
    }

    bool isRunning() const { return kill(std::stoi(content("pid")), 0) == 0; }

    std::filesystem::path mFolder;
};

TEST_F(DesktopProcessTest, WhatItWasToldComesInOrderAndIsSeenBehindIt)
{
    DesktopProcess desktop({"phone", program(GoodDesktop), {"--software", "sip"}});
    desktop.tell("early", "is nothing"); // before the start
    desktop.start(DesktopProcess::Clock::Manual, 20s);
    for (int number = 0; number < 50; ++number)
        desktop.tell("number", std::to_string(number));
    desktop.tell("name", "\"Anna\"\n\xff");
    desktop.advance(2s);
    desktop.advance(500ms);
    ASSERT_TRUE(desktop.finish());
    const Snapshot shown = desktop.watch().snapshot();
    EXPECT_EQ(shown.text, "told:53"); // the first was to watch
    EXPECT_EQ(shown.screen.height(), 2);
    EXPECT_TRUE(shown.screen.pixel(0, 1));
    EXPECT_FALSE(shown.screen.pixel(1, 0));
    desktop.end();
    EXPECT_FALSE(isRunning());
    EXPECT_FALSE(desktop.finish());
    EXPECT_EQ(desktop.watch().snapshot().number, 0U);

    std::string told = "{\"do\":\"watch\"}\n";
    for (int number = 0; number < 50; ++number)
        told += R"({"do":"number","argument":")" + std::to_string(number) + "\"}\n";
    told += "{\"do\":\"name\",\"argument\":\"\\\"Anna\\\"\\n\xef\xbf\xbd\"}\n";
    EXPECT_EQ(content("told").substr(0, told.size()), told);
}

TEST_F(DesktopProcessTest, AChangeIsSeenWithoutBeingAskedFor)
{
    DesktopProcess desktop({"phone", program(R"(read -r line; echo '{"ok":true}'; echo '{"event":"changed"}'
                   read -r line; echo '{"ok":true,"rows":["#"],"text":"by itself"}'; read -r line)"),
        {}});
    desktop.start(DesktopProcess::Clock::Real, 20s);
    const auto isShown = [](const Snapshot& snapshot) { return snapshot.text == "by itself"; };
    EXPECT_TRUE(desktop.watch().waitFor(isShown, 60s));
}

TEST_F(DesktopProcessTest, ADesktopThatFailsIsNamedAndLeftOut)
{
    const std::string answerOnce = "read -r line; echo '{\"ok\":true}'; ";
    const struct {
        const char* what;
        std::string body;
        std::string message;
    } rows[] = {
        {"ends", "exit 3", "has ended with exit code 3"},
        {"ends later", answerOnce + "read -r line; exit 0", "has ended with exit code 0"},
        {"is killed", "kill -SEGV $$", "was ended by signal 11 (SIGSEGV)"},
        {"is stopped", answerOnce + "kill -STOP $$", "has not answered for 0.3 s; it was killed"},
        {"does not answer", answerOnce + "sleep 1000", "has not answered for 0.3 s; it was killed"},
        {"never ends its line", answerOnce + "cat /dev/zero", "has not answered for 0.3 s; it was killed"},
        {"closes its output", answerOnce + "exec >&-; sleep 1000", "has closed its pipes; it was killed"},
        {"closes its input", answerOnce + "exec <&-; sleep 1000", "has closed its pipes; it was killed"},
        {"says anything", "yes 'Good \x1b[1mmorning'",
            "does not speak the language of the control channel, but says \"Good ?[1mmorning\"; it was killed"},
        {"says something else", "echo []; sleep 1000",
            "does not speak the language of the control channel, but says \"[]\"; it was killed"},
        {"sends a picture without rows", answerOnce + "while read -r line; do echo '{\"ok\":true}'; done",
            "does not speak the language of the control channel, but says \"{\"ok\":true}\"; it was killed"},
        {"says too much", answerOnce + "echo '{\"ok\":true}'; sleep 1000",
            "answers what it was not asked; it was killed"},
        {"hangs inside",
            answerOnce + R"(read -r line; echo '{"ok":false,"error":"no-answer","reason":"busy"}'; sleep 1000)",
            "has failed: busy; it was killed"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        testing::internal::CaptureStderr();
        DesktopProcess desktop({"phone", program(row.body), {}});
        desktop.start(DesktopProcess::Clock::Manual, 300ms);
        if (std::string(row.what) != "says too much") {
            desktop.tell("number", "4711");
            EXPECT_FALSE(desktop.finish());
        }
        desktop.watch().waitFor([](const Snapshot&) { return false; }, 60s);
        EXPECT_TRUE(desktop.watch().hasEnded());
        EXPECT_EQ(desktop.watch().snapshot().number, 0U);
        EXPECT_FALSE(isRunning());
        desktop.tell("number", "4711");
        desktop.end();
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "phone: the desktop " + (mFolder / "desktop").string() + " " + row.message + "\n");
    }
}

TEST_F(DesktopProcessTest, ADesktopThatIsNoProgramIsSaidToBeNone)
{
    std::ofstream(mFolder / "text") << "no program";
    const std::pair<std::string, std::string> rows[] = {
        {"desktop-that-is-not-there", "No such file or directory"},
        {mFolder / "text", "Permission denied"},
        {mFolder, "Permission denied"},
    };
    for (const auto& [path, reason] : rows) {
        testing::internal::CaptureStderr();
        DesktopProcess desktop({"phone", path, {}});
        desktop.start(DesktopProcess::Clock::Manual, 20s);
        EXPECT_FALSE(desktop.finish());
        desktop.end();
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "phone: the desktop " + path + " can't be started: " + reason + "\n");
    }
}

TEST_F(DesktopProcessTest, ARefusedStepIsSaidOnceAndNoMore)
{
    testing::internal::CaptureStderr();
    DesktopProcess desktop({"phone", program(R"(read -r line; echo '{"ok":true}'
        for step in 1 2 3; do read -r line; echo '{"ok":false,"error":"failed","reason":"it is on or off"}'; done
        read -r line; echo '{"ok":true,"rows":[],"text":"all right"}'; read -r line)"),
        {}});
    desktop.start(DesktopProcess::Clock::Manual, 20s);
    for (const char* step : {"lock", "lock", "ringer"})
        desktop.tell(step, "loud");
    EXPECT_TRUE(desktop.finish());
    EXPECT_EQ(desktop.watch().snapshot().text, "all right");
    desktop.end();
    const std::string start = "phone: the desktop " + (mFolder / "desktop").string() + " has refused \"";
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
        start + "lock\": it is on or off\n" + start + "ringer\": it is on or off\n");
}

TEST_F(DesktopProcessTest, NothingIsLeftOfOneThatDoesNotEnd)
{
    const Descriptor open(::open((mFolder / "of the telephone").c_str(), O_CREAT | O_RDWR, 0600)); // not O_CLOEXEC
    testing::internal::CaptureStderr();
    DesktopProcess desktop({"phone",
        program(std::string("ls -l /proc/$$/fd >files\nsleep 1000 & echo $! >child\n"
                            "trap '' TERM HUP INT")
            + GoodDesktop + "\nwait"),
        {}});
    desktop.start(DesktopProcess::Clock::Manual, 20s);
    ASSERT_TRUE(desktop.finish());
    desktop.end();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("has not ended for 2 s; it was killed"), std::string::npos);
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(content("files").find("of the telephone"), std::string::npos);
    // Its own child is not ours to wait for, but its end can be seen.
    const Descriptor child(static_cast<int>(syscall(SYS_pidfd_open, std::stoi(content("child")), 0)));
    pollfd end{child.number(), POLLIN, 0};
    EXPECT_TRUE(!child || poll(&end, 1, 60'000) == 1);
}

TEST_F(DesktopProcessTest, ManyThreadsTellAndLookWhileItEnds)
{
    DesktopProcess desktop({"phone", program(GoodDesktop), {}});
    desktop.start(DesktopProcess::Clock::Manual, 20s);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&desktop, thread] {
            for (int number = 0; number < 500; ++number)
                desktop.tell("number", std::to_string(number));
            if (thread == 0)
                desktop.advance(1s);
            while (desktop.finish())
                desktop.watch().snapshot();
        });
    }
    EXPECT_TRUE(desktop.finish());
    desktop.end();
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_FALSE(isRunning());
}

TEST(DesktopQueueTest, TheOldestGoesWhereTheNewestHasNoRoom)
{
    DesktopQueue queue;
    queue.tell("number", "closed");
    queue.open();
    EXPECT_FALSE(queue.finish(0ms)) << "nobody looks";
    for (int number = 0; number < 2000; ++number)
        queue.tell("number", std::to_string(number));
    queue.advance(1s);
    queue.advance(1h);
    EXPECT_EQ(queue.take()->kind, DesktopQueue::Command::Kind::Look);
    EXPECT_EQ(queue.take()->argument, "1002");
    std::optional<DesktopQueue::Command> last;
    int rest = 0;
    for (auto next = queue.take(); next; next = queue.take(), ++rest)
        last = next;
    EXPECT_EQ(rest, 998);
    EXPECT_EQ(last->time, 3601s);
    queue.close();
    EXPECT_FALSE(queue.take());
}

}
