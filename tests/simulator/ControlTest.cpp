// The language of the control channel, and the socket over which a phonelet speaks it.

#include "ControlCommands.h"
#include "Descriptor.h"
#include "LineBuffer.h"
#include "Phone.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

/// The second row is chosen by OK, and said to be.
class Outputs : public DisplayAPI::CommandListener {
public:
    void run(DisplayAPI::Display& display)
    {
        mList.setTitle("Audio output");
        for (const char* row : {"Speaker", "HeadSet", "Bad \xff byte"})
            mList.append(row);
        mList.addCommandListener(this);
        display.setCurrent(&mList);
        display.show();
        display.exec();
    }
    void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*) override { mList.setTitle("Chosen"); }

private:
    DisplayAPI::List mList{0};
};

class ControlTest : public testing::Test {
protected:
    void drive(const std::function<void(ControlCommands&)>& driver)
    {
        const CustomStep step{"incoming",
            [this](const std::string& party) {
                if (party.empty())
                    throw std::runtime_error("nobody calls");
                mCallers += party;
            },
            1};
        Phone phone({"", {}, Phone::ClockKind::Manual, {step}, 20s});
        phone.run([](DisplayAPI::Display& display) { Outputs().run(display); },
            [&](Phone& driven) {
                ControlCommands commands(driven, {20s, 1, "test 1"});
                driver(commands);
            });
    }

    static Json ask(ControlCommands& commands, const std::string& line) { return Json::parse(commands.answer(line)); }

    std::string mCallers;
};

TEST_F(ControlTest, ATestRobotWorksTheTelephone)
{
    drive([this](ControlCommands& commands) {
        EXPECT_EQ(ask(commands, R"({"do": "hello", "id": [7]})"),
            Json::parse(
                R"({"ok":true,"program":"test 1","width":162,"height":31,"steps":["incoming"],)"
                R"("functionKeys":{"F1":"incoming"},"variant":{"lines":2,"model":"plain","software":"other"},"id":[7]})"));
        EXPECT_EQ(ask(commands, R"({"do": "expect", "text": "Speaker"})"), Json::parse(R"({"ok":true})"));
        ask(commands, R"({"do": "key", "key": "down"})");
        const std::string text = ask(commands, R"({"do": "text"})")["text"];
        EXPECT_NE(text.find("string0: HeadSet\n"), std::string::npos) << text;
        EXPECT_TRUE(ask(commands, Json{{"do", "expect"}, {"screen", text}}.dump())["ok"]);
        for (const char* state : {"press", "hold", "release"})
            ask(commands, std::string(R"({"do": "key", "key": "OK", "state": ")") + state + "\"}");
        const Json delivered = ask(commands, R"({"do": "commands", "wait": "Select"})")["commands"];
        ASSERT_EQ(delivered.size(), 1U) << delivered;
        EXPECT_EQ(delivered[0]["screen"], "List");
        EXPECT_TRUE(ask(commands, R"({"do": "expect", "text": "caption:Chosen"})")["ok"]);
        EXPECT_EQ(ask(commands, R"({"do": "commands", "since": 1})")["commands"], Json::array());
        EXPECT_TRUE(ask(commands, R"({"do": "incoming", "argument": "Bob"})")["ok"]);
        EXPECT_EQ(mCallers, "Bob");
        const Json rows = ask(commands, R"({"do": "pixels"})")["rows"];
        ASSERT_EQ(rows.size(), 31U);
        EXPECT_NE(rows[5].get<std::string>().find('#'), std::string::npos);
        EXPECT_TRUE(ask(commands, R"({"do": "advance", "time": "1s"})")["ok"]);
        ask(commands, R"({"do": "key", "key": "DOWN"})");
        EXPECT_NE(std::string(ask(commands, R"({"do": "text"})")["text"]).find("byte"), std::string::npos);
        EXPECT_FALSE(commands.hasQuit());
        EXPECT_TRUE(ask(commands, R"({"do": "quit"})")["ok"]);
        EXPECT_TRUE(commands.hasQuit());
    });
}

TEST_F(ControlTest, TheTreeTellsWhatStandsWhereAndHasTheFocus)
{
    drive([](ControlCommands& commands) {
        ask(commands, R"({"do": "expect", "text": "Speaker"})");
        const Json screen = ask(commands, R"({"do": "tree"})")["widgets"][0];
        EXPECT_EQ(screen["class"], "VantoListBoxWithTitleMEG");
        EXPECT_EQ(screen["text"], Json({"Audio output"}));
        const Json list = screen["children"][1];
        EXPECT_EQ(list["focus"], true);
        EXPECT_EQ(list["rows"], 3);
        EXPECT_EQ(list["children"],
            Json::parse(R"([{"class":"VantoListBoxItemMEG","rect":[0,15,161,30],"text":["Speaker"],"current":true}])"));
        EXPECT_EQ(ask(commands, R"({"do": "tree", "at": [80, 20]})")["widgets"].back(), list["children"][0]);
        EXPECT_EQ(ask(commands, R"({"do": "tree", "at": [80, 5]})")["widgets"].back()["class"], "ListTitleMEG");
        EXPECT_EQ(ask(commands, R"({"do": "tree", "at": [162, 5]})")["widgets"], Json::array());
    });
}

TEST_F(ControlTest, WhatIsWrongIsSaidAndTheTelephoneGoesOn)
{
    const struct {
        std::string line;
        const char* error;
        const char* reason;
    } rows[] = {
        {"{\"do\": key}", "bad-json", "from byte 8 on"},
        {"\"unfinished", "bad-json", "ends too early"},
        {"{\"do\": \"hello\", \"id\": " + std::string(30000, '[') + std::string(30000, ']') + "}", "bad-request",
            "levels"},
        {"\xff\x01", "bad-json", "on: ??;"},
        {"[]", "bad-request", "no object"},
        {"{}", "bad-request", "\"do\" is missing"},
        {R"({"do": 1})", "bad-request", "\"do\" must be a text"},
        {R"({"do": "jump"})", "bad-request", "the commands are hello, key"},
        {R"({"do": "key"})", "bad-request", "\"key\" is missing"},
        {R"({"do": "key", "key": "UPP"})", "bad-request", "no key is called \"UPP\"; the keys are LEFT"},
        {R"({"do": "key", "key": "UP", "cuont": 2})", "bad-request", "no \"cuont\"; it takes key, state, count"},
        {R"({"do": "key", "key": "UP", "count": 0})", "bad-request", "from 1 to 1000"},
        {R"({"do": "key", "key": "UP", "count": 1e99})", "bad-request", "from 1 to 1000"},
        {R"({"do": "key", "key": "UP", "state": "down"})", "bad-request", "tap, press, hold or release"},
        {R"({"do": "type", "keys": "12a"})", "bad-request", "digits"},
        {R"({"do": "advance", "time": "5"})", "bad-request", "with its unit"},
        {R"({"do": "expect"})", "bad-request", "one of"},
        {R"({"do": "expect", "text": "a", "timeout": -1})", "bad-request", "from 0 to 3600"},
        {R"({"do": "expect", "text": "Speeker", "timeout": 0.01})", "not-shown", "closest is \"string0: Speaker\""},
        {R"({"do": "commands", "wait": "Yes", "timeout": 0})", "not-delivered", "\"Yes\""},
        {R"({"do": "tree", "at": [1]})", "bad-request", "a pixel"},
        {R"({"do": "pixels", "file": "/nonexistent/a.png"})", "failed", "/nonexistent/a.png"},
        {R"({"do": "incoming"})", "failed", "nobody calls"},
        {R"({"do": "variant", "lines": 3})", "bad-request", "keeps its variant"},
    };
    drive([&](ControlCommands& commands) {
        for (const auto& row : rows) {
            const Json answer = ask(commands, row.line);
            EXPECT_EQ(answer["ok"], false) << row.line;
            EXPECT_EQ(answer["error"], row.error) << answer;
            EXPECT_NE(std::string(answer["reason"]).find(row.reason), std::string::npos) << answer;
        }
        EXPECT_TRUE(ask(commands, R"({"do": "expect", "text": "Speaker"})")["ok"]);
        std::thread canceller([&] { commands.cancel(); });
        EXPECT_EQ(ask(commands, R"({"do": "expect", "text": "nothing", "timeout": 3600})")["error"], "not-shown");
        canceller.join();
    });
}

TEST_F(ControlTest, LinesComeInPieces)
{
    LineBuffer buffer;
    buffer.add("one\r\n\n  \ntw");
    buffer.add("o\n");
    for (int piece = 0; piece < 16; ++piece)
        buffer.add(std::string(65536, 'x'));
    buffer.add("\nlast");
    buffer.finish();
    EXPECT_EQ(buffer.take().text, "one");
    EXPECT_EQ(buffer.take().text, "two");
    EXPECT_TRUE(buffer.take().isTooLong);
    EXPECT_EQ(buffer.take().text, "last");
    EXPECT_FALSE(buffer.hasLine());
}

/// The program with a socket, started through a pipe as a test robot does.
class ControlSocketTest : public testing::Test {
protected:
    ControlSocketTest()
        : mFolder(std::filesystem::temp_directory_path() / ("control-test-" + std::to_string(getpid())))
        , mPath((mFolder / "socket").string())
    {
        std::filesystem::create_directories(mFolder);
    }
    ~ControlSocketTest() override
    {
        if (mChild > 0) {
            kill(mChild, SIGKILL);
            finish();
        }
        std::filesystem::remove_all(mFolder);
    }

    void start()
    {
        int pipe[2];
        ASSERT_EQ(pipe2(pipe, O_CLOEXEC), 0);
        Descriptor output(pipe[0]);
        mStarter = Descriptor(pipe[1]);
        mChild = fork();
        if (mChild == 0) {
            dup2(pipe[0], STDIN_FILENO);
            execl(PROJECT_BINARY_DIR "/bin/example-audio", "example-audio", "--control", mPath.c_str(), "--timeout",
                "1", static_cast<char*>(nullptr));
            _exit(127);
        }
    }

    int finish()
    {
        int status = 0;
        waitpid(mChild, &status, 0);
        mChild = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    Descriptor connectClient() const
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, mPath.c_str(), sizeof address.sun_path - 1);
        for (int attempt = 0; attempt < 3000; ++attempt) {
            Descriptor client(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
            if (connect(client.number(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0)
                return client;
            std::this_thread::sleep_for(10ms); // the program has not come up yet
        }
        ADD_FAILURE() << "nobody listens";
        return Descriptor();
    }

    /// Nobody may listen any more; hear() tells.
    static void say(const Descriptor& client, const std::string& text)
    {
        ::send(client.number(), text.data(), text.size(), MSG_NOSIGNAL);
    }

    /// The next line, or what came before the end.
    static std::string hear(const Descriptor& client)
    {
        std::string line;
        char byte = 0;
        while (read(client.number(), &byte, 1) == 1 && byte != '\n')
            line += byte;
        return line;
    }

    std::filesystem::path mFolder;
    std::string mPath;
    Descriptor mStarter; // the pipe to the program's standard input
    pid_t mChild = 0;
};

TEST_F(ControlSocketTest, OneClientAtATimeIsServedWhateverItDoes)
{
    start();
    Descriptor first = connectClient();
    say(first, "{\"do\": \"expect\", \"text\": \"Speaker (in use)\"}\n");
    EXPECT_EQ(hear(first), "{\"ok\":true}");
    Descriptor second = connectClient();
    EXPECT_NE(hear(second).find("\"error\":\"busy\""), std::string::npos);
    EXPECT_EQ(hear(second), "");

    // It leaves while it waits, and what it waited for holds nobody up.
    say(first, "{\"do\": \"expect\", \"text\": \"nothing\", \"timeout\": 3600}\n");
    first = Descriptor();
    Descriptor third;
    do {
        third = connectClient();
        say(third, "{\"do\": \"key\", \"key\": \"DOWN\"}\n");
    } while (hear(third) != "{\"ok\":true}");

    // It asks for a great deal and reads nothing of it: it is left.
    const std::string question = "{\"do\": \"pixels\", \"settled\": false}\n";
    std::string questions;
    for (int count = 0; count < 1000; ++count)
        questions += question;
    while (::send(third.number(), questions.data(), questions.size(), MSG_NOSIGNAL) > 0) { }

    Descriptor last = connectClient();
    say(last, "{\"do\": \"quit\"}");
    last = Descriptor(); // its last word counts, without a line feed and with nobody to answer
    EXPECT_EQ(finish(), 0);
    EXPECT_FALSE(std::filesystem::exists(mPath));
}

TEST_F(ControlSocketTest, ATelephoneEndsWithWhoeverStartedIt)
{
    std::filesystem::create_directory(mPath);
    start();
    EXPECT_EQ(finish(), 2) << "something else lies there";
    std::filesystem::remove(mPath);

    start();
    const Descriptor client = connectClient();
    say(client, "{\"do\": \"hello\"}\n");
    hear(client);
    const pid_t running = mChild;
    const Descriptor itsStarter = std::move(mStarter);
    start();
    EXPECT_EQ(finish(), 2) << "another telephone listens there";
    kill(running, SIGKILL);
    waitpid(running, nullptr, 0);
    EXPECT_TRUE(std::filesystem::exists(mPath)) << "the killed one has left its file";

    start();
    connectClient();
    mStarter = Descriptor(); // a test that is killed closes it, too
    EXPECT_EQ(finish(), 0);
    EXPECT_FALSE(std::filesystem::exists(mPath));

    start();
    connectClient();
    kill(mChild, SIGTERM);
    EXPECT_EQ(finish(), 128 + SIGTERM);
}

}
