// The demonstration telephone and its desktop, two processes, as a robot sees them.

#include "ChildProcess.h"
#include "ControlRequest.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <poll.h>
#include <set>
#include <sys/syscall.h>

using namespace Simulator;

namespace {

class DesktopTest : public testing::Test {
protected:
    void start(std::vector<std::string> options = {})
    {
        options.insert(options.end(), {"--control", "--timeout", "60"});
        mPhone = std::make_unique<ChildProcess>(PROJECT_BINARY_DIR "/bin/phone", options);
        mInput = mPhone->takeInput();
        mOutput = mPhone->takeOutput();
    }

    void say(const std::string& command) const
    {
        const std::string line = command + "\n";
        EXPECT_EQ(write(mInput.number(), line.data(), line.size()), static_cast<ssize_t>(line.size()));
    }
    std::string hear() const
    {
        std::string line;
        char byte = 0;
        while (read(mOutput.number(), &byte, 1) == 1 && byte != '\n')
            line += byte;
        return line;
    }
    Json ask(const std::string& command) const
    {
        say(command);
        return Json::parse(hear());
    }

    /// The process of the desktop, a child of one of the telephone's threads.
    pid_t desktop()
    {
        ask(R"({"do": "desktop"})"); // now it runs
        for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
            std::ifstream stat(entry.path() / "stat");
            std::string number, name, state;
            pid_t parent = 0;
            if (stat >> number >> name >> state >> parent && parent == phoneNumber() && name == "(phone-desktop)")
                return std::stoi(number);
        }
        ADD_FAILURE() << "the telephone has no desktop";
        return 0;
    }
    pid_t phoneNumber() const { return mPhone->number(); }

    /// Waits until a process that is no child has gone.
    static bool hasGone(pid_t process)
    {
        const Descriptor descriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
        pollfd end{descriptor.number(), POLLIN, 0};
        return !descriptor || poll(&end, 1, 60'000) == 1;
    }

    std::unique_ptr<ChildProcess> mPhone;
    Descriptor mInput;
    Descriptor mOutput;
};

TEST_F(DesktopTest, ARobotSeesTheStripAboveTheGlass)
{
    start();
    const Json strip = ask(R"({"do": "desktop"})");
    EXPECT_EQ(strip["text"],
        "object:\nname:Desktop\ncaption:DisplayAPI\nstring0:09:00 Mon\nstring1:01.01.2024\nstring2:4711\nend:\n");
    EXPECT_EQ(strip["width"], 162);
    EXPECT_EQ(strip["height"], 16);
    EXPECT_NE(strip["rows"][5].get<std::string>().find('#'), std::string::npos);
    ask(R"({"do": "advance", "time": "60s"})");
    EXPECT_EQ(ask(R"({"do": "desktop"})")["text"].get<std::string>().find("09:00"), std::string::npos);
    ask(R"({"do": "incoming", "argument": "4720"})");
    ask(R"({"do": "expect", "text": "icon0:Incoming"})");
    ask(R"({"do": "hang-up"})");
    EXPECT_EQ(ask(R"({"do": "expect", "text": "icon0:CallBack", "desktop": true})")["ok"], true);
    ask(R"({"do": "message", "argument": "4720"})");
    EXPECT_EQ(ask(R"({"do": "expect", "text": "MobileUser", "desktop": true})")["ok"], true);
    const Json missing = ask(R"({"do": "expect", "text": "string2:4712", "desktop": true, "timeout": 0})");
    EXPECT_EQ(missing["closest"], "string2:4711");
    EXPECT_EQ(ask(R"({"do": "pixels", "text": true})")["text"], ask(R"({"do": "text"})")["text"]);
    ask(R"({"do": "quit"})");
    EXPECT_TRUE(mPhone->waitForEnd(std::chrono::minutes(1)));
}

TEST_F(DesktopTest, WhoWatchesIsToldOfChangesOnBothGlasses)
{
    start();
    desktop();
    EXPECT_EQ(ask(R"({"do": "watch"})"), Json::parse(R"({"ok":true})"));
    const std::string changed = R"({"event":"changed"})";
    EXPECT_EQ(hear(), changed) << "there are screens that it does not know";
    say(R"({"do": "key", "key": "OK"})");
    std::set<std::string> lines; // the event comes before the answer or behind it, and for each change that is seen
    while (lines.size() < 2)
        ASSERT_NE(*lines.insert(hear()).first, "");
    EXPECT_EQ(lines, std::set<std::string>({R"({"ok":true})", changed}));
}

TEST_F(DesktopTest, NoneIsLeftOfATelephoneThatIsKilled)
{
    for (const bool isStopped : {false, true}) {
        start();
        const pid_t strip = desktop();
        if (isStopped)
            kill(strip, SIGSTOP);
        mPhone->kill();
        EXPECT_TRUE(hasGone(strip)) << (isStopped ? "it was stopped" : "");
    }
}

TEST_F(DesktopTest, TheTelephoneGoesOnWithoutOne)
{
    start();
    kill(desktop(), SIGKILL);
    EXPECT_EQ(ask(R"({"do": "expect", "text": "nothing", "desktop": true, "timeout": 60})")["error"], "no-desktop");
    EXPECT_EQ(ask(R"({"do": "message", "argument": "4720"})")["ok"], true);
    EXPECT_EQ(ask(R"({"do": "text"})")["ok"], true);

    start({"--no-desktop"});
    EXPECT_EQ(ask(R"({"do": "desktop"})")["error"], "no-desktop");
    EXPECT_EQ(ask(R"({"do": "text"})")["ok"], true);
}

}
