#include "CommandExecutor.h"
#include "DisplayThread.h"
#include "DisplayThreadPool.h"
#include "Disturbance.h"
#include "Log.h"
#include "Semaphore.h"
#include "Threadable.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/ItemStateListener.h>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <functional>
#include <latch>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace DisplayAPI;

namespace {

/// Records what it is told; only workers write, and the test reads behind waitFor().
class Recorder : public CommandListener, public ItemStateListener {
public:
    /// The number of deliveries that waitFor() is to wait for.
    explicit Recorder(int expected)
        : mExpected(expected)
    {
    }
    void commandAction(Command* command, Displayable*) override { record(command); }
    void itemStateChanged(Item* item) override { record(item); }
    void wait() { mExpected.wait(); }

    std::vector<const void*> told;
    std::set<unsigned int> threads;
    bool overlapped = false;

private:
    void record(const void* what)
    {
        overlapped = overlapped || mInside.exchange(true);
        told.push_back(what);
        threads.insert(Threadable::currentThreadId());
        mInside = false;
        mExpected.count_down();
    }

    std::atomic<bool> mInside = false;
    std::latch mExpected;
};

/// Keeps the worker inside a delivery until it is let go.
class Blocker : public CommandListener {
public:
    ~Blocker() override { mLeft.take(); }
    void commandAction(Command*, Displayable*) override
    {
        mEntered.give();
        mMayLeave.take();
        mLeft.give();
    }
    /// Returns with the worker inside.
    void block(Command* command = nullptr, Displayable* displayable = nullptr)
    {
        postCommandAction(command, displayable);
        mEntered.take();
    }
    void letGo() { mMayLeave.give(); }

private:
    Semaphore mEntered{Semaphore::NOT_AVAILABLE};
    Semaphore mMayLeave{Semaphore::NOT_AVAILABLE};
    Semaphore mLeft{Semaphore::NOT_AVAILABLE};
};

Item* itemNumber(int number)
{
    static std::array<char, 64> items;
    return reinterpret_cast<Item*>(&items[static_cast<std::size_t>(number)]);
}

}

TEST(CommandExecutorTest, EachThreadsCommandsComeInItsOrderAndOneByOne)
{
    static constexpr int perThread = 15;
    Command ofFirst("first", Command::Select);
    Command ofSecond("second", Command::Select);
    Command last("last", Command::Select);
    underDisturbance([&] {
        Recorder recorder(4 * perThread);
        auto postMany = [&recorder](Command& own, Command& other) {
            for (int i = 0; i < perThread; ++i) {
                recorder.postCommandAction(&own, nullptr);
                recorder.postCommandAction(&other, nullptr);
            }
        };
        std::thread second(postMany, std::ref(ofSecond), std::ref(last));
        postMany(ofFirst, last);
        second.join();
        recorder.wait();
        EXPECT_EQ(recorder.told.size(), 4U * perThread);
        EXPECT_FALSE(recorder.overlapped);
        // Of each thread an own command and a last one take turns, so no beginning has more last ones.
        int balance = 0;
        for (const void* command : recorder.told) {
            balance += command == &last ? -1 : 1;
            EXPECT_TRUE(balance >= 0 && balance <= 2);
        }
        EXPECT_EQ(balance, 0);
    });
}

TEST(CommandExecutorTest, WhatComesDuringASlowDeliveryFollowsOnTheSameWorker)
{
    std::array<std::unique_ptr<Command>, 12> commands;
    for (auto& command : commands)
        command = std::make_unique<Command>("", Command::Select);
    underDisturbance([&] {
        Recorder recorder(commands.size());
        Blocker slow;
        slow.block();
        for (std::size_t i = 0; i < commands.size(); ++i) {
            if (i == commands.size() / 2)
                slow.letGo();
            recorder.postCommandAction(commands[i].get(), nullptr);
        }
        recorder.wait();
        for (std::size_t i = 0; i < commands.size(); ++i)
            EXPECT_EQ(recorder.told[i], commands[i].get());
    });

    // None of the posts asks the pool for a worker while one is inside a delivery.
    Recorder recorder(static_cast<int>(commands.size()));
    Blocker slow;
    slow.block();
    const int free = DisplayThreadPool::instance(10)->availableThreads();
    const int size = DisplayThreadPool::instance(10)->poolSize();
    for (auto& command : commands)
        recorder.postCommandAction(command.get(), nullptr);
    EXPECT_GE(DisplayThreadPool::instance(10)->availableThreads(), free);
    EXPECT_EQ(DisplayThreadPool::instance(10)->poolSize(), size);
    slow.letGo();
    recorder.wait();
    EXPECT_EQ(recorder.threads.size(), 1U);
}

TEST(CommandExecutorTest, ASleepingWorkerIsWokenEachTime)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        for (int i = 0; i < 5; ++i) {
            Recorder recorder(1);
            recorder.postCommandAction(&command, nullptr);
            recorder.wait();
        }
    });
    EXPECT_LE(DisplayThreadPool::instance(10)->poolSize(), 10);
}

TEST(CommandExecutorTest, AListenerThatPostsIsToldNextOnTheSameWorker)
{
    class Chain : public CommandListener {
    public:
        void commandAction(Command* command, Displayable*) override
        {
            threads.insert(Threadable::currentThreadId());
            if (++told < 10)
                postCommandAction(command, nullptr);
            if (told == 10)
                done.give();
        }
        int told = 0;
        std::set<unsigned int> threads;
        Semaphore done{Semaphore::NOT_AVAILABLE};
    };
    Command command("", Command::Select);
    underDisturbance([&command] {
        Chain chain;
        chain.postCommandAction(&command, nullptr);
        chain.done.take();
        EXPECT_EQ(chain.threads.size(), 1U);
    });
}

TEST(CommandExecutorTest, ChangesThatWaitAreMerged)
{
    underDisturbance([] {
        Recorder recorder(8);
        Blocker slow;
        slow.block();
        std::thread second([&recorder] {
            for (int i = 7; i >= 0; --i)
                recorder.postItemStateChange(itemNumber(i));
        });
        for (int i = 0; i < 8; ++i)
            recorder.postItemStateChange(itemNumber(i));
        second.join();
        slow.letGo();
        recorder.wait();
        EXPECT_EQ(recorder.told.size(), 8U);
        EXPECT_EQ(std::set<const void*>(recorder.told.begin(), recorder.told.end()).size(), 8U);
    });
}

TEST(CommandExecutorTest, AListenerThatDiesWhileDeliveriesWaitIsNotCalled)
{
    class Victim : public CommandListener, public ItemStateListener {
    public:
        explicit Victim(std::atomic<int>& calls)
            : mCalls(calls)
        {
        }
        void commandAction(Command*, Displayable*) override { ++mCalls; }
        void itemStateChanged(Item*) override { ++mCalls; }

    private:
        std::atomic<int>& mCalls;
    };
    Command command("", Command::Select);
    underDisturbance([&command] {
        std::atomic<int> calls = 0;
        Recorder survivor(10);
        Blocker slow;
        slow.block();
        auto victim = std::make_unique<Victim>(calls);
        std::thread poster([&] {
            for (int i = 0; i < 10; ++i)
                survivor.postCommandAction(&command, nullptr);
        });
        for (int i = 0; i < 5; ++i) {
            victim->postCommandAction(&command, nullptr);
            victim->postItemStateChange(itemNumber(i));
        }
        victim.reset();
        slow.letGo();
        poster.join();
        survivor.wait();
        EXPECT_EQ(calls, 0);
    });
}

TEST(CommandExecutorTest, CommandsMayDieWhileOthersAreDelivered)
{
    underDisturbance([] {
        constexpr int rounds = 10;
        Command lasting("", Command::Select);
        Recorder recorder(rounds);
        // Told of the short-lived ones; whether before or not is a matter of luck, but never twice.
        class Counter : public CommandListener {
        public:
            void commandAction(Command*, Displayable*) override { ++told; }
            std::atomic<int> told = 0;
        };
        auto counter = std::make_unique<Counter>();
        for (int i = 0; i < rounds; ++i) {
            Command brief("", Command::Select);
            counter->postCommandAction(&brief, nullptr);
            recorder.postCommandAction(&lasting, nullptr);
        }
        recorder.wait();
        EXPECT_LE(counter->told, rounds);
        EXPECT_EQ(recorder.told.size(), static_cast<std::size_t>(rounds));
    });
}

TEST(CommandExecutorTest, TheEndRecallsWhatWaitsAndAwaitsWhatHasBegun)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        Recorder recorder(2);
        std::atomic<bool> isClosed = false;
        Blocker slow;
        slow.block();
        recorder.postCommandAction(&command, nullptr);
        recorder.postItemStateChange(itemNumber(0));
        EXPECT_FALSE(CommandExecutor::closeDeliveries(std::chrono::milliseconds(0)));
        std::thread display([&isClosed] {
            EXPECT_TRUE(CommandExecutor::closeDeliveries(std::chrono::minutes(1)));
            isClosed = true;
        });
        for (int i = 0; i < 100; ++i)
            std::this_thread::yield();
        EXPECT_FALSE(isClosed);
        slow.letGo();
        display.join();

        // Nobody is told any more, until deliveries are taken again.
        recorder.postCommandAction(&command, nullptr);
        recorder.postItemStateChange(itemNumber(0));
        EXPECT_TRUE(CommandExecutor::closeDeliveries(std::chrono::minutes(1)));
        CommandExecutor::openDeliveries();
        EXPECT_TRUE(recorder.told.empty());
        recorder.postCommandAction(&command, nullptr);
        recorder.postItemStateChange(itemNumber(1));
        recorder.wait();
        EXPECT_EQ(recorder.told, (std::vector<const void*>{&command, itemNumber(1)}));
    });
}

TEST(CommandExecutorTest, ADeliveryThatDoesNotEndIsNamedAndLeftAlone)
{
    static std::vector<std::string> lines;
    LogControl::setLevel("DisplayAPI", 2);
    LogControl::setSink([](const LogControl::Message& message) { lines.push_back(message.text); });
    class Screen : public Displayable {
    public:
        Screen() { mName = "Menu"; }
        DisplayablePrivateIfc* getPrivateImpl() override { return nullptr; }
    };
    Screen screen;
    Command command("Call", Command::Select);
    Blocker stuck;
    stuck.block(&command, &screen);
    EXPECT_FALSE(CommandExecutor::closeDeliveries(std::chrono::milliseconds(1)));
    std::ostringstream expected;
    expected << "The delivery of command \"Call\" (" << static_cast<void*>(&command) << ") of screen \"Menu\" ("
             << static_cast<void*>(&screen) << ") has not ended, and is waited for no longer.";
    EXPECT_EQ(lines, std::vector<std::string>{expected.str()});
    stuck.letGo();
    EXPECT_TRUE(CommandExecutor::closeDeliveries(std::chrono::minutes(1)));
    CommandExecutor::openDeliveries();
    LogControl::reset();
}

TEST(CommandExecutorTest, ADeliveryThatClosesDoesNotWaitForItself)
{
    class Closer : public CommandListener {
    public:
        void commandAction(Command*, Displayable*) override
        {
            isClosed = CommandExecutor::closeDeliveries(std::chrono::minutes(1));
            done.count_down();
        }
        bool isClosed = false;
        std::latch done{1};
    };
    Closer closer;
    closer.postCommandAction(nullptr, nullptr);
    closer.done.wait();
    EXPECT_TRUE(closer.isClosed);
    CommandExecutor::openDeliveries();
}

TEST(CommandExecutorDeathTest, AnExceptionEndsTheProcessBehindALineInTheLog)
{
    class Thrower : public CommandListener {
        void commandAction(Command*, Displayable*) override { throw std::runtime_error("no line"); }
    };
    const auto throwFromWorker = [] {
        LogControl::setLevel("DisplayAPI", 2);
        Thrower thrower;
        Command command("Call", Command::Select);
        thrower.postCommandAction(&command, nullptr);
        Semaphore(Semaphore::NOT_AVAILABLE).take(30'000); // the worker ends the process meanwhile
    };
    EXPECT_DEATH(throwFromWorker(), "The delivery of command \"Call\" .* was left by an exception: no line");
}

TEST(CommandExecutorTest, WhatWasQueuedWithoutAStartGoesWithTheNextOne)
{
    Command early("", Command::Select);
    Command late("", Command::Select);
    underDisturbance([&] {
        Recorder recorder(2);
        CommandExecutor::postCommand(&recorder, &early, nullptr, false);
        recorder.postCommandAction(&late, nullptr);
        recorder.wait();
        EXPECT_EQ(recorder.told, (std::vector<const void*>{&early, &late}));
    });
}
