#include "PhoneTest.h"
#include "RecordingListener.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerEvent.h>

#include <Semaphore.h>

#include <functional>
#include <memory>
#include <optional>

using namespace DisplayAPI;

namespace {

/// Counts and acts on the GUI thread, as either kind of listener.
struct Ticks : TimerEvent, RecordingListener {
    void timerEvent() override { act(); }
    void postCommandAction(Command*, Displayable*) override { act(); }
    void act()
    {
        ++count;
        if (action)
            action();
    }

    int count = 0;
    std::function<void()> action;
};

/// The application is the GUI thread itself, or another one.
class TimerTest : public PhoneTest, public testing::WithParamInterface<bool> {
protected:
    void call(const std::function<void()>& function) { GetParam() ? elsewhere(function) : function(); }

    Ticks ticks;
    std::optional<Timer> timer;
};

INSTANTIATE_TEST_SUITE_P(EitherThread, TimerTest, testing::Bool());

}

TEST_P(TimerTest, ItFiresInItsTimeUntilItIsStopped)
{
    const struct {
        const char* name;
        std::function<void()> step;
        std::uint64_t time;
        int count;
    } story[] = {
        {"made stopped", [&] { timer.emplace(20), timer->addEventListener(&ticks); }, 999, 0},
        {"first", [&] { timer->start(100); }, 99, 0},
        {"repeats", [] {}, 201, 3},
        {"at once", [&] { timer->start(0), timer->start(-5); }, 50, 5},
        {"goes on", [] {}, 50, 6},
        {"stopped", [&] { timer->stop(); }, 999, 6},
        {"single shot", [&] { timer->enableSingleShot(true), timer->start(10); }, 999, 7},
        {"repeats again", [&] { timer->enableSingleShot(false), timer->start(10); }, 20, 9},
        {"behind the loop", [&] { endLoop(); }, 0, 9},
        {"dies there", [&] { call([&] { timer.reset(); }), makeDisplay(); }, 999, 9},
    };
    for (const auto& [name, step, time, count] : story) {
        name[0] == 'b' || name[0] == 'd' ? step() : call(step);
        advance(time);
        EXPECT_EQ(ticks.count, count) << name;
    }
}

TEST_P(TimerTest, TheLastCommandGoesToEachListenerUntilTheTimerDies)
{
    RecordingListener twice;
    RecordingListener once;
    Command first("first", Command::Select);
    auto second = std::make_unique<Command>("second", Command::Select);
    call([&] {
        timer.emplace(0);
        for (RecordingListener* listener : {&twice, &once, &twice})
            timer->addCommandListener(listener);
        timer->start(0);
        timer->addCommand(&first);
        timer->addCommand(second.get());
        timer->start(0);
        timer->removeCommandListener(&twice);
        timer->start(0);
    });
    EXPECT_EQ(once.commands(3), (std::vector<Command*>{nullptr, second.get(), second.get()}));
    EXPECT_EQ(twice.waitFor(5).size(), 5u);
    second.reset();
    call([&] { timer->start(0), timer->addCommand(&first); });

    // The first delivery has begun when the timer goes; those behind it are recalled.
    Wait hasBegun;
    Wait mayEnd;
    once.reaction = [&](Command*) { hasBegun.release(), mayEnd.wait(); };
    call([&] { timer->start(0), timer->start(0); });
    hasBegun.wait();
    call([&] { timer.reset(); });
    twice.postCommandAction(nullptr, nullptr);
    mayEnd.release();
    EXPECT_EQ(twice.waitFor(6).back(), RecordingListener::Delivery(nullptr, nullptr));
    EXPECT_EQ(once.commands(4).back(), &first) << "one that has died is not delivered";
    EXPECT_EQ(once.count(), 4u);
}

TEST_P(TimerTest, WhoIsToldMayChangeWhoIsToldOrDeleteTheTimer)
{
    Ticks next;
    const struct {
        const char* name;
        std::function<void()> action;
        int count; // what the next one has heard behind the first time, and behind the second
        int countLater;
    } cases[] = {
        {"leaves", [&] { timer->removeEventListener(&ticks), timer->removeCommandListener(&ticks); }, 1, 2},
        {"takes the next off", [&] { timer->removeEventListener(&next), timer->removeCommandListener(&next); }, 0, 0},
        {"stops", [&] { timer->stop(); }, 1, 1},
        {"deletes the timer", [&] { timer.reset(); }, 0, 0},
    };
    for (const bool hasCommands : {false, true}) {
        for (const auto& [name, action, count, countLater] : cases) {
            ticks.action = action;
            next.count = 0;
            call([&] {
                timer.emplace(0);
                for (Ticks* listener : {&ticks, &next})
                    hasCommands ? timer->addCommandListener(listener) : timer->addEventListener(listener);
                timer->start(10);
            });
            advance(10);
            EXPECT_EQ(next.count, count) << name;
            ticks.action = nullptr;
            advance(10);
            EXPECT_EQ(next.count, countLater) << name;
            call([&] { timer.reset(); });
        }
    }
}
