#include "ThreadedPhoneTest.h"

#include "FunctionEvent.h"
#include "ScreenTextParser.h"

#include <DisplayAPI/Widget.h>

#include <UApplication.h>
#include <ULoop.h>
#include <UWindowManager.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <mutex>

using DisplayAPI::Display;

namespace {

constexpr auto WatchdogTime = std::chrono::seconds(100);

std::unique_ptr<Display> makeDisplay(const PhoneSetup& setup)
{
    HardwareVersion::setAll(setup.hardware);
    return std::make_unique<Display>(setup.applicationName, "Test", PhysDefs::hardwareSubVariant{}, setup.softwareType,
        "en", "dd.mm.yy", "hh:mm", setup.server, nullptr, false);
}

}

bool callOnGui(const std::function<void()>& function)
{
    if (DisplayAPI::Widget::isGuiThread()) {
        function();
        return true;
    }
    std::promise<bool> done;
    auto result = done.get_future();
    UApplication::instance()->postEvent(new FunctionEvent(
        [&] {
            function();
            done.set_value(true);
        },
        [&done] { done.set_value(false); }));
    return result.get();
}

class ThreadedPhoneTest::Watchdog {
public:
    Watchdog()
        : mThread([this] { watch(); })
    {
    }
    ~Watchdog()
    {
        {
            std::lock_guard lock(mMutex);
            mIsDone = true;
        }
        mChanged.notify_all();
        mThread.join();
    }

private:
    void watch()
    {
        std::unique_lock lock(mMutex);
        if (mChanged.wait_for(lock, WatchdogTime, [this] { return mIsDone; }))
            return;
        // The abort makes a core and, under a sanitizer, a stack of every thread.
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        std::fprintf(stderr, "%s hangs\n", info ? info->name() : "the test");
        std::abort();
    }

    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mIsDone = false;
    std::thread mThread;
};

ThreadedPhoneTest::ThreadedPhoneTest(const PhoneSetup& setup)
    : mWatchdog(std::make_unique<Watchdog>())
{
    std::promise<void> ready;
    mGuiThread = std::thread([this, &setup, &ready] {
        UWindowManager::instance().setFont(&font);
        display = makeDisplay(setup);
        display->subscribe(&changes);
        display->show();
        ready.set_value();
        display->exec();
    });
    ready.get_future().get();
    settle();
}

ThreadedPhoneTest::~ThreadedPhoneTest()
{
    endLoop();
    // The loop's thread has gone; its work goes over to this one.
    DisplayAPI::Widget::setGuiThreadId();
    display.reset();
    UWindowManager::instance().setFont(nullptr);
    HardwareVersion::setAll({});
}

void ThreadedPhoneTest::onGui(const std::function<void()>& function)
{
    EXPECT_TRUE(callOnGui(function)) << "the loop has ended";
}

void ThreadedPhoneTest::settle()
{
    onGui([] {});
}

void ThreadedPhoneTest::endLoop()
{
    if (mIsLoopEnded)
        return;
    mIsLoopEnded = true;
    display->shutdown();
    mGuiThread.join();
}

std::string ThreadedPhoneTest::screenText()
{
    const std::string text = display->serialiseByRect({wholeGlass()}, "");
    EXPECT_EQ(ScreenTextParser::faultOf(text), "") << text;
    return text;
}

std::string onBothRoads(const std::function<std::string(Display&)>& script, const PhoneSetup& setup)
{
    auto display = makeDisplay(setup);
    Subscriber changes;
    display->subscribe(&changes);
    display->show();
    std::string direct = script(*display);
    display.reset();

    display = makeDisplay(setup);
    display->subscribe(&changes);
    display->show();
    std::string posted;
    std::thread application([&] {
        posted = script(*display);
        display->shutdown();
    });
    display->exec();
    application.join();
    display.reset();
    HardwareVersion::setAll({});
    EXPECT_EQ(direct, posted) << "the two roads differ";
    return direct;
}
