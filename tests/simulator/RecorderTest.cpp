#include "Recorder.h"
#include "Phone.h"
#include "RecordFile.h"
#include "Script.h"
#include "ScriptRunner.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/PopupNotification.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <thread>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

/// Two notices, one behind the other: the second comes when the time of the first is over.
class Notices : public DisplayAPI::CommandListener {
public:
    explicit Notices(DisplayAPI::Display& display)
        : mDisplay(display)
    {
        mList.append("Save \"all\"");
        mList.append("Leave");
        for (DisplayAPI::PopupNotification* notice : {&mFirst, &mSecond}) {
            notice->setTimeout(1000);
            notice->addCommandListener(this);
        }
        mFirst.setText("Saving");
        mSecond.setText("Saved");
        mList.addCommandListener(this);
    }
    void run()
    {
        mDisplay.setCurrent(&mList);
        mDisplay.show();
        mDisplay.exec();
    }
    void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable* screen) override
    {
        std::this_thread::sleep_for(30ms); // as a real one does
        if (screen == &mList)
            mDisplay.setCurrent(&mFirst);
        else if (screen == &mFirst)
            mDisplay.setCurrent(&mSecond);
    }

private:
    DisplayAPI::Display& mDisplay;
    DisplayAPI::List mList{0};
    DisplayAPI::PopupNotification mFirst;
    DisplayAPI::PopupNotification mSecond;
};

class RecorderTest : public testing::Test {
protected:
    RecorderTest()
        : mFolder(std::filesystem::temp_directory_path() / ("recorder-test-" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(mFolder);
    }
    ~RecorderTest() override { std::filesystem::remove_all(mFolder); }

    static void run(const std::function<void(Phone&)>& driver)
    {
        Phone phone({"", {}, Phone::ClockKind::Manual, {{"ring", [](const std::string&) {}}}, 20s});
        phone.run([](DisplayAPI::Display& display) { Notices(display).run(); }, driver);
    }

    /// Works the telephone as a user does, in real time.
    std::string record(const char* name) const
    {
        const std::string path = (mFolder / name).string();
        run([&path](Phone& phone) {
            const std::unique_ptr<RecordFile> file = RecordFile::create(path, "notices");
            const Recorder recorder(phone, *file, Recorder::ClockMover::Recorder);
            const auto waitFor = [&phone](const char* text, bool isThere) {
                EXPECT_TRUE(phone.watch().waitFor(
                    [=](const Snapshot& shown) { return (shown.text.find(text) != std::string::npos) == isThere; },
                    20s))
                    << text;
            };
            waitFor("Save", true);
            phone.tap(UGlobal::KeyOk);
            waitFor("Saved", true);
            waitFor("Saved", false);
            phone.callStep("ring", "Bob");
            phone.key(UGlobal::KeyDown, UGlobal::KeyPressed);
            phone.key(UGlobal::KeyDown, UGlobal::KeyHeld);
            waitFor("Leave", true);
            phone.key(UGlobal::KeyDown, UGlobal::KeyReleased);
        });
        std::ifstream input(path);
        std::ostringstream content;
        content << input.rdbuf();
        return content.str();
    }

    std::filesystem::path mFolder;
};

TEST_F(RecorderTest, ASessionIsPlayedAgainWithTheSameScreens)
{
    const std::string recorded = record("session.script");
    std::istringstream input(recorded);
    const Script script = parseScript(input, "session", {"ring"});
    std::ostringstream output;
    std::ostringstream errors;
    run([&](Phone& phone) { ScriptRunner(phone, {20s, 1}, output, errors).run(script); });
    EXPECT_EQ(errors.str(), "") << recorded;
    for (const char* step : {"press OK\n", "ring Bob\n", "hold DOWN\n", "release DOWN\n", "advance ",
             "expect-screen object: | name:VantoListBox", "Saving", "string0:Saved"})
        EXPECT_NE(recorded.find(step), std::string::npos) << step << "in\n" << recorded;
}

TEST_F(RecorderTest, ForPytestItIsATestFunction)
{
    const std::string recorded = record("test_session.py");
    for (const char* line : {"@pytest.mark.phone(\"notices\")\ndef test_recorded(phone):\n",
             "    phone.press(\"OK\")\n", "    phone.hold(\"DOWN\")\n", "    phone.step(\"ring\", \"Bob\")\n",
             "    phone.advance(", "    expect(phone).to_show_exactly(\n        \"object:\\n\"\n",
             "        \"string0: Save \\\"all\\\"\\n\"\n"})
        EXPECT_NE(recorded.find(line), std::string::npos) << line << "in\n" << recorded;
}

}
