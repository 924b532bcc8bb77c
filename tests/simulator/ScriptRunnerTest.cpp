#include "ScriptRunner.h"
#include "Phone.h"
#include "Script.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <thread>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

/// Two rows and a title.
void shortList(DisplayAPI::Display& display)
{
    DisplayAPI::List list(0);
    list.setTitle("Audio output");
    list.append("Speaker");
    list.append("HeadSet");
    display.setCurrent(&list);
    display.show();
    display.exec();
}

class ScriptRunnerTest : public testing::Test {
protected:
    /// Plays the script on the phonelet; what it prints and what fails stand in mOutput and mErrors.
    int play(const std::string& text, const Phonelet& phonelet = shortList)
    {
        std::istringstream input(text);
        std::vector<std::string> names;
        for (const CustomStep& step : mSteps)
            names.push_back(step.name);
        const Script script = parseScript(input, "test", names);
        Phone phone({"", {}, Phone::ClockKind::Manual, mSteps});
        int failures = -1;
        phone.run(phonelet, [&](Phone& driven) {
            failures = ScriptRunner(driven, {mPatience, 2}, mOutput, mErrors).run(script);
        });
        return failures;
    }

    std::vector<CustomStep> mSteps;
    std::chrono::milliseconds mPatience = 20s;
    std::ostringstream mOutput;
    std::ostringstream mErrors;
};

TEST_F(ScriptRunnerTest, KeysReachTheScreenAndItsTextComesBack)
{
    EXPECT_EQ(play("expect caption:Audio output\n"
                   "expect Speaker\n"
                   "expect-not HeadSet\n"
                   "press DOWN\n"
                   "expect string0:HeadSet\n"
                   "expect-not Speaker\n"
                   "press DOWN 3\n"
                   "expect Speaker\n"
                   "hold DOWN\n"
                   "release DOWN\n"
                   "expect HeadSet\n"
                   "text\n"),
        0)
        << mErrors.str();
    EXPECT_EQ(mErrors.str(), "");
    EXPECT_NE(mOutput.str().find("caption:Audio output\n"), std::string::npos) << mOutput.str();
    EXPECT_NE(mOutput.str().find("HeadSet"), std::string::npos);
}

TEST_F(ScriptRunnerTest, EachFailedStepGivesALineAndTheOthersArePlayed)
{
    mPatience = 50ms;
    EXPECT_EQ(play("expect Bluetooth\n"
                   "press DOWN\n"
                   "# the next one holds\n"
                   "expect HeadSet\n"
                   "expect-not HeadSet\n"
                   "shot /nonexistent/idle.png\n"),
        3);
    std::istringstream errors(mErrors.str());
    std::string line;
    std::getline(errors, line);
    EXPECT_EQ(line.find("test:1: expect Bluetooth: expected \"Bluetooth\", the screen has: "), 0U) << line;
    EXPECT_NE(line.find("caption:Audio output"), std::string::npos) << line;
    std::getline(errors, line);
    EXPECT_EQ(line.find("test:5: expect-not HeadSet: did not expect \"HeadSet\""), 0U) << line;
    std::getline(errors, line);
    EXPECT_EQ(line.find("test:6: shot /nonexistent/idle.png: cannot write"), 0U) << line;
    EXPECT_FALSE(std::getline(errors, line)) << line;
}

TEST_F(ScriptRunnerTest, TheNextKeyWaitsUntilThePhoneletHasAnswered)
{
    struct Answer : DisplayAPI::CommandListener {
        void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*) override
        {
            const int row = list->getSelectedIndex();
            for (int i = 0; i < 100; ++i)
                hasMoved = hasMoved || list->getSelectedIndex() != row;
            ++count;
        }
        DisplayAPI::List* list = nullptr;
        std::atomic<bool> hasMoved = false;
        std::atomic<int> count = 0;
    } answer;
    EXPECT_EQ(play("press OK\npress DOWN\npress OK\npress DOWN\npress OK\npress UP\nexpect HeadSet\n",
                  [&answer](DisplayAPI::Display& display) {
                      DisplayAPI::List list(0);
                      answer.list = &list;
                      list.addCommandListener(&answer);
                      for (const char* row : {"Speaker", "HeadSet", "Handset"})
                          list.append(row);
                      display.setCurrent(&list);
                      display.show();
                      display.exec();
                  }),
        0)
        << mErrors.str();
    EXPECT_EQ(answer.count, 3);
    EXPECT_FALSE(answer.hasMoved);
}

TEST_F(ScriptRunnerTest, TheClockMovesOnlyWithTheScript)
{
    const Phonelet withVolume = [](DisplayAPI::Display& display) {
        display.setPreviewVolume(2, 5, 0, 10, 0);
        shortList(display);
    };
    EXPECT_EQ(play("expect name:VolumeIndicator\n"
                   "advance 2999ms\n"
                   "expect name:VolumeIndicator\n"
                   "advance 1ms\n"
                   "expect-not name:VolumeIndicator\n",
                  withVolume),
        0)
        << mErrors.str();
}

TEST_F(ScriptRunnerTest, PicturesAndDrawingsShowWhatIsOnTheGlass)
{
    const std::string file = (std::filesystem::temp_directory_path() / "script-runner-test.png").string();
    EXPECT_EQ(play("say first\nshow\nshot " + file + "\n"), 0) << mErrors.str();
    EXPECT_TRUE(std::filesystem::remove(file));
    EXPECT_EQ(mOutput.str().find("first\n┌──"), 0U) << mOutput.str();
    EXPECT_NE(mOutput.str().find("▛"), std::string::npos) << "some letter is drawn";
    EXPECT_NE(mOutput.str().find("┘\nobject:\n"), std::string::npos);
}

TEST_F(ScriptRunnerTest, AStepOfThePhoneletsOwnIsCalledByItsNameAndByItsKey)
{
    std::vector<std::string> calls;
    const std::thread::id guiThread = std::this_thread::get_id();
    mSteps = {{"incoming",
        [&](const std::string& party) {
            EXPECT_NE(std::this_thread::get_id(), guiThread);
            if (party == "nobody")
                throw std::runtime_error("no such party");
            calls.push_back(party);
        },
        2}};
    EXPECT_EQ(play("incoming Bob 4712\n"
                   "press F2\n"
                   "press F3\n"
                   "incoming nobody\n"
                   "expect Speaker\n"),
        1);
    EXPECT_EQ(calls, (std::vector<std::string>{"Bob 4712", ""}));
    EXPECT_EQ(mErrors.str(), "test:4: incoming nobody: no such party\n");
    EXPECT_FALSE(canNameStep("press"));
    EXPECT_FALSE(canNameStep("two words"));
}

TEST_F(ScriptRunnerTest, APhoneletThatEndsEarlyFailsTheSteps)
{
    EXPECT_EQ(play("expect Speaker\npress OK\n", [](DisplayAPI::Display&) {}), 1);
    EXPECT_NE(mErrors.str().find("test:1: "), std::string::npos) << mErrors.str();
}

TEST_F(ScriptRunnerTest, WhatAPhoneletThrowsComesOutAndNobodyStaysBlocked)
{
    const Phonelet broken = [](DisplayAPI::Display&) { throw std::runtime_error("no line"); };
    EXPECT_THROW(play("expect Speaker\n", broken), std::runtime_error);
    EXPECT_EQ(play("expect Speaker\n"), 0) << "another telephone starts afresh: " << mErrors.str();
}

}
