#include "CommandExecutor.h"
#include "DisplayThread.h"
#include "DisplayThreadPool.h"
#include "Disturbance.h"
#include "Log.h"
#include "RecordingListener.h"
#include "Semaphore.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/DeliveryWatch.h>
#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/ItemStateListener.h>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace DisplayAPI;

namespace {

/// Keeps the worker inside a delivery until it is let go.
class Blocker : public RecordingListener {
public:
    Blocker()
    {
        reaction = [this](Command*) {
            mEntered.give();
            mMayLeave.take();
        };
    }
    ~Blocker() override { told(1); }
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
        RecordingListener recorder;
        std::atomic<int> inside = 0;
        std::atomic<bool> hasOverlapped = false;
        recorder.reaction = [&](Command*) {
            hasOverlapped = hasOverlapped || ++inside > 1;
            --inside;
        };
        auto postMany = [&recorder](Command& own, Command& other) {
            for (int i = 0; i < perThread; ++i) {
                recorder.postCommandAction(&own, nullptr);
                recorder.postCommandAction(&other, nullptr);
            }
        };
        std::thread second(postMany, std::ref(ofSecond), std::ref(last));
        postMany(ofFirst, last);
        second.join();
        const auto told = recorder.told(4U * perThread);
        EXPECT_EQ(told.size(), 4U * perThread);
        EXPECT_FALSE(hasOverlapped);
        // Of each thread an own command and a last one take turns, so no beginning has more last ones.
        int balance = 0;
        for (const void* command : told) {
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
        RecordingListener recorder;
        Blocker slow;
        slow.block();
        for (std::size_t i = 0; i < commands.size(); ++i) {
            if (i == commands.size() / 2)
                slow.letGo();
            recorder.postCommandAction(commands[i].get(), nullptr);
        }
        const auto told = recorder.told(commands.size());
        ASSERT_EQ(told.size(), commands.size());
        for (std::size_t i = 0; i < commands.size(); ++i)
            EXPECT_EQ(told[i], commands[i].get());
    });

    // None of the posts asks the pool for a worker while one is inside a delivery.
    RecordingListener recorder;
    Blocker slow;
    slow.block();
    const int free = DisplayThreadPool::instance(10)->availableThreads();
    const int size = DisplayThreadPool::instance(10)->poolSize();
    for (auto& command : commands)
        recorder.postCommandAction(command.get(), nullptr);
    EXPECT_GE(DisplayThreadPool::instance(10)->availableThreads(), free);
    EXPECT_EQ(DisplayThreadPool::instance(10)->poolSize(), size);
    slow.letGo();
    EXPECT_EQ(recorder.told(commands.size()).size(), commands.size());
    EXPECT_EQ(recorder.threads().size(), 1U);
}

TEST(CommandExecutorTest, ASleepingWorkerIsWokenEachTime)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        for (int i = 0; i < 5; ++i) {
            RecordingListener recorder;
            recorder.postCommandAction(&command, nullptr);
            ASSERT_EQ(recorder.told(1).size(), 1U);
        }
    });
    EXPECT_LE(DisplayThreadPool::instance(10)->poolSize(), 10);
}

TEST(CommandExecutorTest, AListenerThatPostsIsToldNextOnTheSameWorker)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        RecordingListener chain;
        int times = 0;
        chain.reaction = [&](Command* told) {
            if (++times < 10)
                chain.postCommandAction(told, nullptr);
        };
        chain.postCommandAction(&command, nullptr);
        EXPECT_EQ(chain.told(10).size(), 10U);
        EXPECT_EQ(chain.threads().size(), 1U);
    });
}

TEST(CommandExecutorTest, ChangesThatWaitAreMerged)
{
    underDisturbance([] {
        RecordingListener recorder;
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
        const auto told = recorder.told(8);
        EXPECT_EQ(told.size(), 8U);
        EXPECT_EQ(std::set<const void*>(told.begin(), told.end()).size(), 8U);
    });
}

TEST(CommandExecutorTest, AListenerThatDiesWhileDeliveriesWaitIsNotCalled)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        std::atomic<int> calls = 0;
        RecordingListener survivor;
        Blocker slow;
        slow.block();
        auto victim = std::make_unique<RecordingListener>();
        victim->reaction = [&calls](Command*) { ++calls; };
        victim->changeReaction = [&calls](Item*) { ++calls; };
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
        EXPECT_EQ(survivor.told(10).size(), 10U);
        EXPECT_EQ(calls, 0);
    });
}

TEST(CommandExecutorTest, CommandsMayDieWhileOthersAreDelivered)
{
    underDisturbance([] {
        constexpr int rounds = 10;
        Command lasting("", Command::Select);
        RecordingListener recorder;
        // Told of the short-lived ones; whether before or not is a matter of luck, but never twice.
        auto counter = std::make_unique<RecordingListener>();
        for (int i = 0; i < rounds; ++i) {
            Command brief("", Command::Select);
            counter->postCommandAction(&brief, nullptr);
            recorder.postCommandAction(&lasting, nullptr);
        }
        EXPECT_EQ(recorder.told(rounds).size(), static_cast<std::size_t>(rounds));
        EXPECT_LE(counter->count(), static_cast<std::size_t>(rounds));
    });
}

TEST(CommandExecutorTest, TheEndRecallsWhatWaitsAndAwaitsWhatHasBegun)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        RecordingListener recorder;
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
        EXPECT_EQ(recorder.count(), 0U);
        recorder.postCommandAction(&command, nullptr);
        recorder.postItemStateChange(itemNumber(1));
        EXPECT_EQ(recorder.told(2), (std::vector<const void*>{&command, itemNumber(1)}));
    });
}

TEST(CommandExecutorTest, ThereIsNoRestUntilTheLastListenerHasReturned)
{
    Command command("", Command::Select);
    underDisturbance([&command] {
        RecordingListener second;
        const auto atRest = [] {
            while (!DeliveryWatch::countAtRest())
                std::this_thread::yield();
            return *DeliveryWatch::countAtRest();
        };
        const std::uint64_t before = atRest();
        Blocker first;
        first.block();
        EXPECT_FALSE(DeliveryWatch::countAtRest());
        second.reaction = [](Command*) { EXPECT_FALSE(DeliveryWatch::countAtRest()); };
        second.postCommandAction(&command, nullptr);
        first.letGo();
        EXPECT_EQ(atRest(), before + 2);
        EXPECT_EQ(second.count(), 1U);
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
    RecordingListener closer;
    std::atomic<bool> isClosed = false;
    closer.reaction = [&isClosed](Command*) { isClosed = CommandExecutor::closeDeliveries(std::chrono::minutes(1)); };
    closer.postCommandAction(nullptr, nullptr);
    EXPECT_EQ(closer.told(1).size(), 1U);
    EXPECT_TRUE(isClosed);
    CommandExecutor::openDeliveries();
}

TEST(CommandExecutorDeathTest, AnExceptionEndsTheProcessBehindALineInTheLog)
{
    const auto throwFromWorker = [] {
        LogControl::setLevel("DisplayAPI", 2);
        RecordingListener thrower;
        thrower.reaction = [](Command*) { throw std::runtime_error("no line"); };
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
        RecordingListener recorder;
        CommandExecutor::postCommand(&recorder, &early, nullptr, false);
        recorder.postCommandAction(&late, nullptr);
        EXPECT_EQ(recorder.told(2), (std::vector<const void*>{&early, &late}));
    });
}
