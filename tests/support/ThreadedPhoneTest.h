#pragma once

#include "PhoneTest.h"

#include <functional>
#include <thread>

/// A telephone whose loop runs on a thread of its own, so that the test is an application thread.
///
/// A watchdog ends a test that hangs, and says where every call stood.
class ThreadedPhoneTest : public testing::Test {
protected:
    explicit ThreadedPhoneTest(const PhoneSetup& setup = {});
    ~ThreadedPhoneTest() override;

    /// Runs a function on the GUI thread, and returns after it.
    void onGui(const std::function<void()>& function);

    /// Returns after everything that was posted before has run.
    void settle();

    /// Ends the loop and waits for its thread; the display lives on until the fixture goes.
    void endLoop();

    std::string screenText();
    std::string screenField(const std::string& key) { return fieldOf(screenText(), key); }

    CellFont font;
    Subscriber changes;
    std::unique_ptr<DisplayAPI::Display> display;

private:
    class Watchdog;
    std::unique_ptr<Watchdog> mWatchdog;
    std::thread mGuiThread;
    bool mIsLoopEnded = false;
};

/// Runs a function on the GUI thread, and returns after it; false if it never will run.
bool callOnGui(const std::function<void()>& function);

/// Runs a script twice, each time on a telephone of its own: on the GUI thread, and from another thread. The script
/// returns what it has seen; both roads must give the same, which is returned.
std::string onBothRoads(const std::function<std::string(DisplayAPI::Display&)>& script, const PhoneSetup& setup = {});
