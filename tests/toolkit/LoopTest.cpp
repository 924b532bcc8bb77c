#include "FunctionEvent.h"
#include "Semaphore.h"
#include "UApplication.h"
#include "UEvent.h"
#include "ULoop.h"
#include "UWindowManager.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

ULoop& loop()
{
    return ULoop::instance();
}

using Work = std::function<void()>;

/// An agent that hands the expiry of its timers to a test.
class TimerAgent : public UAgent {
public:
    void timerEvent(UTimerEvent* event) override
    {
        if (onTimer)
            onTimer(event->id());
    }

    std::function<void(std::uint64_t)> onTimer;
};

class LoopTest : public testing::Test {
protected:
    LoopTest()
    {
        loop().open();
        loop().setManualClock(true);
        UWindowManager::instance().paintIfNeeded();
    }
    ~LoopTest() override { UWindowManager::instance().setPaintObserver(nullptr); }

    /// Posts an event that notes its name when it runs, and '~' with it when it goes unrun.
    void post(char name, const Work& work = nullptr)
    {
        loop().post(new FunctionEvent(
            [this, name, work] {
                note(name);
                if (work)
                    work();
            },
            [this, name] {
                protocol += {'~', name};
            }));
    }
    void note(char name) { protocol += name; }

    std::string protocol;
};

}

// The queue

TEST_F(LoopTest, APassTakesWhatWasPostedBeforeItInOrder)
{
    post('a', [&] { post('d'); });
    post('b');
    post('c', [&] { post('e'); });
    loop().processEvents();
    EXPECT_EQ(protocol, "abc");
    loop().processEvents();
    EXPECT_EQ(protocol, "abcde");
    loop().post(nullptr);
    loop().processEvents();
    EXPECT_EQ(protocol, "abcde");
}

TEST_F(LoopTest, APassRunsEventsThenTimersThenPaints)
{
    TimerAgent agent;
    UTimer timer(&agent, 5);
    timer.setSingleShot(true);
    timer.start();
    agent.onTimer = [&](auto) {
        note('t');
        post('b');
        UWindowManager::instance().repaint();
    };
    UWindowManager::instance().setPaintObserver([&] { note('p'); });
    post('a', [] { UWindowManager::instance().repaint(); });
    loop().advance(5);
    EXPECT_EQ(protocol, "atpb");
}

TEST_F(LoopTest, ANestedPassKeepsTheOrder)
{
    post('a', [&] {
        post('d');
        loop().processEvents();
        note('|');
    });
    post('b');
    post('c');
    loop().processEvents();
    EXPECT_EQ(protocol, "abcd|");
}

TEST_F(LoopTest, QuitEndsTheLoopAfterTheEventInHandAndDestroysTheRest)
{
    TimerAgent agent;
    agent.onTimer = [&](auto) { note('t'); };
    UTimer timer(&agent, 1);
    loop().quit(); // nothing runs: without effect
    post('a', [&] {
        post('e');
        timer.start();
        loop().quit();
        note('!');
    });
    post('b');
    post('c');
    EXPECT_EQ(loop().exec(), 0);
    EXPECT_EQ(protocol, "a!~b~c~e");
    post('f');
    EXPECT_EQ(protocol, "a!~b~c~e~f") << "a closed queue refuses at once";
    loop().processEvents();
    post('g');
    EXPECT_EQ(protocol, "a!~b~c~e~f~g") << "a pass doesn't open the queue";
}

TEST_F(LoopTest, AnEventThatGoesUnrunCannotPostAnother)
{
    post('a', [] { loop().quit(); });
    loop().post(new FunctionEvent([] {}, [this] { post('x'); }));
    post('b');
    loop().exec();
    EXPECT_EQ(protocol, "a~x~b");
}

TEST_F(LoopTest, TheQueueOpensAgainForANewLoopOrANewApplication)
{
    for (const bool byApplication : {false, true}) {
        loop().close();
        protocol.clear();
        post('a');
        EXPECT_EQ(protocol, "~a");
        if (byApplication) {
            new VantoUApplication(UString(std::string("again")), new UScreenWE1, UApplication::UIMode{},
                VantoUApplication::HardwareVariant{}, VantoUApplication::SoftwareType{},
                PhysDefs::hardwareSubVariant{});
            post('b');
        }
        // A manual clock makes no timer due: the painting is what a loop has to do here.
        UWindowManager::instance().repaint();
        UWindowManager::instance().setPaintObserver([&] { post('c', [] { loop().quit(); }); });
        loop().exec();
        EXPECT_EQ(protocol, byApplication ? "~abc" : "~ac");
    }
}

TEST_F(LoopTest, ALoopWhoseQueueIsClosedUnderItEnds)
{
    post('a', [] { loop().close(); });
    post('b');
    loop().exec();
    EXPECT_EQ(protocol, "a~b");
}

TEST_F(LoopTest, APostFromAnotherThreadWakesTheSleepingLoop)
{
    int runs = 0;
    std::thread poster([&] {
        for (int i = 0; i < 200; ++i) {
            Wait done;
            loop().post(new FunctionEvent([&] {
                if (++runs == 200)
                    loop().quit();
                done.release();
            }));
            done.wait();
        }
    });
    loop().exec();
    poster.join();
    EXPECT_EQ(runs, 200);
}

// Timers

TEST_F(LoopTest, TimersFireInTheOrderOfTheirTimeAndThenOfTheirStart)
{
    TimerAgent agent;
    UTimer slow(&agent, 30), first(&agent, 10), second(&agent, 10), none(&agent, 10);
    agent.onTimer = [&](std::uint64_t id) { note(id == slow.id() ? 's' : id == first.id() ? '1' : '2'); };
    for (UTimer* timer : {&slow, &second, &first, &none}) {
        timer->setSingleShot(true);
        timer->start();
    }
    none.stop();
    EXPECT_EQ(loop().timeToNextTimer(), -1) << "a stopped clock reaches no timer by itself";
    loop().advance(9);
    EXPECT_EQ(protocol, "");
    loop().advance(1);
    EXPECT_EQ(protocol, "21");
    loop().advance(100);
    EXPECT_EQ(protocol, "21s");
    EXPECT_FALSE(slow.isRunning());
}

TEST_F(LoopTest, ARepeatFiresOncePerPassAndKeepsItsBeat)
{
    TimerAgent agent;
    UTimer timer(&agent, 10);
    std::vector<std::uint64_t> times;
    const std::uint64_t start = loop().now();
    agent.onTimer = [&](auto) { times.push_back(loop().now() - start); };
    timer.start();
    timer.setInterval(7); // takes effect with the next start alone, or with the next round
    loop().advance(25);
    EXPECT_EQ(times, (std::vector<std::uint64_t>{10, 17, 24}));
    timer.start();
    loop().advance(6);
    EXPECT_EQ(times.size(), 3U) << "a start of a running timer starts the time anew";
    loop().advance(1);
    EXPECT_EQ(times.size(), 4U);
}

TEST_F(LoopTest, AHandlerMayStopRestartOrDeleteAnyTimer)
{
    TimerAgent agent;
    auto own = std::make_unique<UTimer>(&agent, 10);
    auto other = std::make_unique<UTimer>(&agent, 10);
    UTimer restarted(&agent, 10);
    own->start();
    other->start();
    restarted.start();
    const std::uint64_t ownId = own->id();
    agent.onTimer = [&](std::uint64_t id) {
        if (id == ownId) {
            note('o');
            own.reset();
            other.reset();
        } else {
            note('r');
            restarted.setInterval(3);
            restarted.start();
        }
    };
    loop().advance(10);
    EXPECT_EQ(protocol, "or");
    loop().advance(3);
    EXPECT_EQ(protocol, "orr");
}

TEST_F(LoopTest, ATimerOfADeadAgentNeverFires)
{
    auto agent = std::make_unique<TimerAgent>();
    UTimer timer(agent.get(), 10);
    timer.start();
    agent.reset();
    loop().advance(10);
    EXPECT_FALSE(timer.isRunning());

    auto mortal = std::make_unique<TimerAgent>();
    UTimer first(mortal.get(), 10), second(mortal.get(), 10);
    mortal->onTimer = [&](auto) {
        note('x');
        mortal.reset();
    };
    first.start();
    second.start();
    loop().advance(30);
    EXPECT_EQ(protocol, "x");
}

TEST_F(LoopTest, OddIntervalsNeitherHangNorFireAtOnce)
{
    TimerAgent agent;
    UTimer zero(&agent, 0), endless(&agent, std::numeric_limits<unsigned long long>::max());
    int fired = 0;
    agent.onTimer = [&](std::uint64_t id) {
        EXPECT_EQ(id, zero.id());
        ++fired;
    };
    zero.start();
    endless.start();
    loop().advance(5);
    EXPECT_EQ(fired, 5);
    zero.stop();
    loop().setManualClock(false);
    EXPECT_GT(loop().timeToNextTimer(), 1'000'000'000'000);
    loop().setManualClock(true);
}

TEST_F(LoopTest, AdvancingInsideTheLoopEndsWithIt)
{
    TimerAgent agent;
    UTimer quits(&agent, 10), later(&agent, 20);
    agent.onTimer = [&](std::uint64_t id) {
        note(id == quits.id() ? 'q' : 'l');
        loop().quit();
    };
    quits.start();
    later.start();
    post('a', [] { loop().advance(50); });
    loop().exec();
    EXPECT_EQ(protocol, "aq");
}

TEST_F(LoopTest, TheClockGoesOnWhereItWasStopped)
{
    const std::uint64_t stopped = loop().now();
    loop().advance(1'000'000);
    EXPECT_EQ(loop().now(), stopped + 1'000'000);
    loop().setManualClock(false);
    EXPECT_GE(loop().now(), stopped + 1'000'000);
    loop().setManualClock(true);
    EXPECT_GE(loop().now(), stopped + 1'000'000);

    // On the running clock a timer wakes the sleeping loop.
    loop().setManualClock(false);
    TimerAgent agent;
    UTimer timer(&agent, 2);
    int fired = 0;
    agent.onTimer = [&](auto) {
        if (++fired == 3)
            loop().quit();
    };
    timer.start();
    loop().exec();
    EXPECT_EQ(fired, 3);
}
