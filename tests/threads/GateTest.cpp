#include "Gate.h"
#include "Disturbance.h"
#include "Semaphore.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <future>
#include <memory>
#include <thread>

namespace {

/// Takes the lock once more, where the caller has it already.
void addInside(Semaphore& lock, int& number)
{
    CriticalSection section(lock);
    ++number;
}

}

TEST(GateTest, ACountNeverGoesAboveTheMaximum)
{
    Gate gate(5, 2);
    EXPECT_TRUE(gate.pass(0));
    EXPECT_TRUE(gate.pass(0));
    EXPECT_FALSE(gate.pass(0)) << "the first count is cut too";
    for (int i = 0; i < 5; ++i)
        gate.open();
    EXPECT_TRUE(gate.pass(0));
    EXPECT_TRUE(gate.pass());
    EXPECT_FALSE(gate.pass(1));
    Gate huge(0xFFFFFFFF, 0xFFFFFFFF);
    EXPECT_TRUE(huge.pass(0)) << "a count is no abandonment";
}

TEST(GateTest, AnAbandonmentIsKeptAndUsedUpOnce)
{
    Gate gate;
    gate.abandon();
    EXPECT_FALSE(gate.pass());
    gate.open();
    EXPECT_TRUE(gate.pass());
    gate.abandon();
    gate.open();
    EXPECT_TRUE(gate.pass()) << "an answer comes before the end";
    EXPECT_FALSE(gate.pass());
    EXPECT_FALSE(gate.pass(0));
}

TEST(GateTest, NoCountAndNoWakeUpIsLost)
{
    underDisturbance([] {
        constexpr int threads = 4;
        constexpr int rounds = 10;
        constexpr int all = threads * rounds;
        Gate gate(0, all);
        std::atomic<int> passed = 0;
        runThreads(2 * threads, [&](int number) {
            for (int i = 0; i < rounds; ++i) {
                if (number % 2 == 0)
                    gate.open();
                else if (gate.pass())
                    ++passed;
            }
        });
        EXPECT_EQ(passed, all);
        EXPECT_FALSE(gate.pass(0));
    });
}

TEST(GateTest, ATimeOutNeitherLosesNorMakesACount)
{
    underDisturbance([] {
        constexpr int counts = 20;
        Gate gate(0, counts);
        std::atomic<int> taken = 0;
        runThreads(4, [&](int number) {
            if (number == 0) {
                for (int i = 0; i < counts; ++i)
                    gate.open();
                return;
            }
            for (int tries = 0; tries < counts; ++tries)
                taken += gate.pass(tries % 2) ? 1 : 0;
        });
        while (gate.pass(0))
            ++taken;
        EXPECT_EQ(taken, counts);
    });
}

TEST(GateTest, EachAbandonmentLetsASleeperGo)
{
    underDisturbance([] {
        Gate gate(0, 8);
        std::atomic<int> answered = 0;
        std::atomic<int> left = 0;
        runThreads(5, [&](int number) {
            if (number < 4) {
                ++(gate.pass() ? answered : left);
                return;
            }
            gate.open();
            gate.open();
            // Two in a row merge, so the second one waits until the first has been used up.
            for (int gone = 0; gone < 2; ++gone) {
                gate.abandon();
                while (left == gone)
                    std::this_thread::yield();
            }
        });
        EXPECT_EQ(answered, 2);
        EXPECT_EQ(left, 2);
    });
}

TEST(GateTest, AWaiterMayDestroyItsGateAsSoonAsItIsAwake)
{
    underDisturbance([] {
        constexpr int rounds = 20;
        std::array<std::atomic<Wait*>, 2> posts{};
        runThreads(4, [&](int number) {
            std::atomic<Wait*>& post = posts[static_cast<std::size_t>(number / 2)];
            for (int i = 0; i < rounds; ++i) {
                if (number % 2 == 0) {
                    // On the heap, so that a late touch meets freed memory.
                    auto wait = std::make_unique<Wait>();
                    post = wait.get();
                    EXPECT_EQ(wait->wait(), i % 2 == 0);
                    continue;
                }
                Wait* waiting = nullptr;
                while (!(waiting = post.exchange(nullptr)))
                    std::this_thread::yield();
                if (i % 2 == 0)
                    waiting->release();
                else
                    waiting->abandon();
            }
        });
    });
}

TEST(SemaphoreTest, AsALockItLetsOneThreadInAtATime)
{
    for (const bool reentrant : {false, true}) {
        underDisturbance([reentrant] {
            Semaphore lock(Semaphore::AVAILABLE, 1, reentrant);
            int plain = 0; // the thread sanitizer sees what the lock doesn't guard
            runThreads(4, [&](int) {
                for (int i = 0; i < 10; ++i) {
                    CriticalSection section(lock);
                    if (reentrant)
                        addInside(lock, plain);
                    else
                        ++plain;
                }
            });
            EXPECT_EQ(plain, 40);
        });
    }
}

TEST(SemaphoreTest, OnlyAReentrantOneKnowsItsThread)
{
    Semaphore plain(Semaphore::AVAILABLE);
    Semaphore reentrant(Semaphore::AVAILABLE, 1, true);
    EXPECT_TRUE(plain.take());
    EXPECT_FALSE(plain.take(0));
    EXPECT_TRUE(reentrant.take());
    EXPECT_TRUE(reentrant.take(0));
    auto takenElsewhere = [](Semaphore& semaphore) {
        return std::async(std::launch::async, [&] {
            const bool isTaken = semaphore.take(0);
            if (isTaken)
                semaphore.give();
            return isTaken;
        }).get();
    };
    reentrant.give();
    EXPECT_FALSE(takenElsewhere(reentrant)) << "taken twice, given once";
    reentrant.give();
    EXPECT_TRUE(takenElsewhere(reentrant));

    // A plain one has no owner: what one thread took another may give.
    std::thread([&] { plain.give(); }).join();
    EXPECT_TRUE(plain.take(0));
    plain.give();
    plain.give();
    EXPECT_TRUE(plain.take(0));
    EXPECT_FALSE(plain.take(0)) << "never above the maximum";
}
