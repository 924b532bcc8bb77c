// Phonelets that say nothing: each way to run them ends, and says what it has waited for.

#include "GuiCall.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using DisplayAPI::Display;

void neverReturn()
{
    for (;;)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

void returnAtOnce(Display&) { }

void hangBeforeTheLoop(Display& display)
{
    DisplayAPI::List list(0);
    display.setCurrent(&list);
    neverReturn();
}

void showNothing(Display& display)
{
    display.show();
    display.exec();
}

void hangBehindTheLoop(Display& display)
{
    DisplayAPI::List list(0);
    display.setCurrent(&list);
    display.show();
    display.exec();
    neverReturn();
}

/// Runs a phonelet under another name, in a process that ends with its exit code.
[[noreturn]] void runAndExit(const std::vector<const char*>& options, const Phonelet& phonelet)
{
    std::vector<const char*> arguments{"/opt/bin/dialler", "--timeout", "1"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::exit(PhoneSimulator(static_cast<int>(arguments.size()), arguments.data())
                  .setVersion("2.5")
                  .onStep("hang", [](const std::string&) { Simulator::callOnGui(neverReturn); })
                  .onStep(
                      "stay", [](const std::string&) { neverReturn(); }, 1)
                  .run(phonelet));
}

class SilenceTest : public testing::Test {
protected:
    SilenceTest()
        : mFolder(std::filesystem::temp_directory_path() / ("silence-test-" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(mFolder);
    }
    ~SilenceTest() override { std::filesystem::remove_all(mFolder); }

    std::string scriptOf(const char* name, const std::string& text) const
    {
        std::ofstream(mFolder / name) << text;
        return (mFolder / name).string();
    }

    std::filesystem::path mFolder;
};

TEST_F(SilenceTest, EveryWayToRunAPhoneletEndsAndSaysWhatItHasWaitedFor)
{
    const std::string script = scriptOf("plain", "expect Anna\npress OK\n");
    const std::string hangingScript = scriptOf("hanging", "hang\nexpect Anna\ntext\n");
    const std::string stayingScript = scriptOf("staying", "stay\nexpect Anna\n");
    const std::string keyScript = scriptOf("key", "press F1\n");
    const std::vector<const char*> playScript{"--script", script.c_str()};
    const struct {
        const char* name;
        Phonelet phonelet;
        std::vector<const char*> options;
        const char* reason; // the whole of standard error
    } rows[] = {
        {"no exec, text", returnAtOnce, {"--text"},
            "^dialler: the phonelet has ended without calling display.exec\\(\\)\n$"},
        {"no exec, script", returnAtOnce, playScript, "^dialler: the phonelet has ended without calling [^\n]*\n$"},
        {"no exec, control", returnAtOnce, {"--control"}, "^dialler: the phonelet has ended without [^\n]*\n$"},
        {"hangs before, text", hangBeforeTheLoop, {"--text"},
            "^dialler: the telephone has not started for 1 s: the phonelet has not called display.exec\\(\\)\n$"},
        {"hangs before, shot", hangBeforeTheLoop, {"--shot", "x.png"}, "^dialler: the telephone has not started"},
        {"hangs before, script", hangBeforeTheLoop, playScript, "^dialler: the telephone has not started [^\n]*\n$"},
        {"no screen, text", showNothing, {"--text"},
            "^dialler: no screen has come for 1 s: the phonelet has not called display.setCurrent\\(\\)[^\n]*\n$"},
        {"no screen, script", showNothing, playScript, "plain:1: expect Anna: .* display.setCurrent\\(\\)"},
        {"hangs while it runs, script", showNothing, {"--script", hangingScript.c_str()},
            "^[^\n]*:2: expect Anna: the GUI thread has not answered for 1 s: the phonelet keeps it busy\n$"},
        {"step does not return, script", showNothing, {"--script", stayingScript.c_str()},
            "^[^\n]*:1: stay: the step \"stay\" has not returned for 1 s\n$"},
        {"step does not return, key", showNothing, {"--script", keyScript.c_str()},
            "^dialler: the step \"stay\" has not returned for 1 s\n$"},
        {"hangs behind, text", hangBehindTheLoop, {"--text"},
            "^dialler: the phonelet does not end: display.exec\\(\\)[^\n]*\n$"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EXIT(runAndExit(row.options, row.phonelet), testing::ExitedWithCode(1), row.reason);
    }
}

TEST_F(SilenceTest, TheProgramGoesByItsOwnNameAndVersion)
{
    EXPECT_EXIT(runAndExit({"--bogus"}, returnAtOnce), testing::ExitedWithCode(2), "^dialler: ");
    testing::internal::CaptureStdout();
    const char* arguments[] = {"/opt/bin/dialler", "--version"};
    EXPECT_EQ(PhoneSimulator(2, arguments).setVersion("2.5").run(returnAtOnce), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "dialler 2.5\n");
}

}
