#include "ExistingDisplayables.h"
#include "CommandExecutor.h"
#include "RecordingListener.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/YRCWindow.h>

#include <Log.h>
#include <Semaphore.h>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

using namespace DisplayAPI;

namespace {

/// A screen of the application's own.
class OwnScreen : public Displayable {
public:
    DisplayablePrivateIfc* getPrivateImpl() override
    {
        if (whenAsked)
            whenAsked();
        return reinterpret_cast<DisplayablePrivateIfc*>(&mHalf);
    }
    std::function<void()> whenAsked;

private:
    char mHalf = 0;
};

}

TEST(ExistingDisplayablesTest, AScreenThatIsAskedForItsHalfMayMakeAndDeleteOthers)
{
    OwnScreen screen;
    auto doomed = std::make_unique<OwnScreen>();
    screen.whenAsked = [&] {
        OwnScreen inside;
        EXPECT_NE(privateOfLiving(&inside), nullptr);
        doomed.reset();
    };
    const Displayable* gone = doomed.get();
    EXPECT_NE(privateOfLiving(&screen), nullptr);
    EXPECT_FALSE(displayableExists(gone));
}

TEST(ExistingDisplayablesTest, AScreenThatDiesOnAnotherThreadOutlivesTheQuestion)
{
    auto screen = std::make_unique<OwnScreen>();
    OwnScreen* asked = screen.get();
    std::thread application;
    std::atomic<bool> isGone = false;
    asked->whenAsked = [&] {
        application = std::thread([&] {
            unregisterDisplayable(screen.get()); // as the destructor of a screen whose deletion was refused
            screen.reset();
            isGone = true;
        });
        while (displayableExists(asked))
            std::this_thread::yield();
        for (int i = 0; i < 1000; ++i)
            std::this_thread::yield();
        EXPECT_FALSE(isGone);
    };
    EXPECT_EQ(privateOfLiving(asked), nullptr);
    application.join();
    EXPECT_TRUE(isGone);
}

TEST(ExistingDisplayablesTest, AScreenLeavesBeforeItsDeliveriesAreRecalled)
{
    // The log is the one place of the application's that runs inside the destructor.
    static Displayable* dying = nullptr;
    static int lines = 0;
    LogControl::setLevel("DisplayAPI::AbbreviatedItemPrivate", 5);
    LogControl::setSink([](const LogControl::Message&) {
        ++lines;
        EXPECT_FALSE(displayableExists(dying));
        EXPECT_EQ(privateOfLiving(dying), nullptr);
        EXPECT_EQ(nameOfLiving(dying), "");
    });
    RecordingListener listener;
    Command command("", Command::Select);
    const auto kill = [&](std::unique_ptr<Displayable> screen) {
        dying = screen.get();
        CommandExecutor::postCommand(&listener, &command, dying, false);
        screen.reset();
        // Nor does a delivery come behind the recall.
        CommandExecutor::postCommand(&listener, &command, dying, false);
        CommandExecutor::retrieveCommand(nullptr, nullptr, nullptr);
    };
    kill(std::make_unique<OwnScreen>());
    kill(std::make_unique<YRCWindow>(true));
    EXPECT_EQ(lines, 2);
    LogControl::reset();
}
