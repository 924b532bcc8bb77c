#include "DisplayThreadPool.h"
#include "DisplayThread.h"
#include "Disturbance.h"
#include "Semaphore.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <functional>
#include <latch>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace DisplayAPI;

namespace {

class Job : public Runnable {
public:
    explicit Job(std::function<void()> work)
        : mWork(std::move(work))
    {
    }
    void run() override { mWork(); }

private:
    std::function<void()> mWork;
};

/// Tells when it has been deleted.
class WatchedThread : public DisplayThread {
public:
    WatchedThread(bool pooled, std::latch& gone)
        : DisplayThread(pooled)
        , mGone(gone)
    {
    }
    ~WatchedThread() override { mGone.count_down(); }

private:
    std::latch& mGone;
};

using PoolPointer = std::unique_ptr<DisplayThreadPool>;

/// A new pool; one that an earlier test has left goes.
PoolPointer poolOf(int maximum)
{
    delete DisplayThreadPool::instance(maximum);
    return PoolPointer(DisplayThreadPool::instance(maximum));
}

}

TEST(DisplayThreadPoolTest, ThePoolNeverRefuses)
{
    const PoolPointer pool = poolOf(10);
    EXPECT_EQ(DisplayThreadPool::instance(99), pool.get());
    EXPECT_EQ(pool->maxPoolSize(), 10);
    EXPECT_EQ(pool->poolSize(), 0);

    std::latch allInside(12);
    std::latch mayLeave(1);
    std::latch allDone(12);
    std::set<DisplayThread*> threads;
    for (int i = 0; i < 12; ++i) {
        DisplayThread* thread = pool->getThread();
        EXPECT_TRUE(thread->busy());
        threads.insert(thread);
        thread->executeRequest(new Job([&] {
            allInside.count_down();
            mayLeave.wait();
            allDone.count_down();
        }));
    }
    allInside.wait();
    EXPECT_EQ(threads.size(), 12U);
    EXPECT_EQ(pool->poolSize(), 10);
    EXPECT_EQ(pool->availableThreads(), 0);
    mayLeave.count_down();
    allDone.wait();
}

TEST(DisplayThreadPoolTest, ThreadsThatAreFreeAreUsedInTurn)
{
    const PoolPointer pool = poolOf(2);
    DisplayThread* first = pool->getThread();
    DisplayThread* second = pool->getThread();
    EXPECT_NE(first, second);
    auto runOn = [&pool](DisplayThread* thread, int free) {
        std::latch done(1);
        thread->executeRequest(new Job([&done] { done.count_down(); }));
        done.wait();
        // Behind its job the thread has yet to say that it is free.
        while (pool->availableThreads() < free)
            std::this_thread::yield();
    };
    runOn(first, 1);
    runOn(second, 2);
    for (DisplayThread* expected : {first, second, first}) {
        DisplayThread* thread = pool->getThread();
        EXPECT_EQ(thread, expected);
        runOn(thread, 2);
    }
    EXPECT_EQ(pool->poolSize(), 2);
}

TEST(DisplayThreadPoolTest, NoThreadIsGivenToTwo)
{
    underDisturbance([] {
        const PoolPointer pool = poolOf(3);
        std::latch allDone(16);
        std::array<std::atomic<int>, 16> ran{};
        auto useMany = [&](std::size_t from) {
            for (std::size_t i = from; i < from + 4; ++i)
                pool->getThread()->executeRequest(new Job([&ran, &allDone, i] {
                    ++ran[i];
                    allDone.count_down();
                }));
        };
        {
            std::vector<std::jthread> users;
            for (std::size_t from = 0; from < 16; from += 4)
                users.emplace_back(useMany, from);
        }
        allDone.wait();
        for (const auto& count : ran)
            EXPECT_EQ(count, 1);
        EXPECT_LE(pool->poolSize(), 3);
    });
}

TEST(DisplayThreadPoolTest, ADyingPoolLetsItsThreadsFinishTheirJobs)
{
    underDisturbance([] {
        std::atomic<int> ran = 0;
        {
            std::latch allBegun(4);
            const PoolPointer pool = poolOf(4);
            for (int i = 0; i < 4; ++i) {
                pool->getThread()->executeRequest(new Job([&] {
                    allBegun.count_down();
                    std::this_thread::yield();
                    ++ran;
                }));
            }
            allBegun.wait();
        }
        EXPECT_EQ(ran, 4);
    });
}

TEST(DisplayThreadPoolTest, AJobMayDeleteThePoolThatRunsIt)
{
    std::latch gone(1);
    DisplayThreadPool* pool = DisplayThreadPool::instance(2);
    pool->getThread()->executeRequest(new Job([pool, &gone] {
        delete pool;
        gone.count_down();
    }));
    gone.wait();
    const PoolPointer next = poolOf(5);
    EXPECT_EQ(next->maxPoolSize(), 5);
}

TEST(DisplayThreadTest, AThreadOutsideOfThePoolEndsAndDeletesItselfBehindItsJob)
{
    Threader threader;
    underDisturbance([&threader] {
        std::latch gone(1);
        bool ran = false;
        auto* thread = new WatchedThread(false, gone);
        ASSERT_TRUE(threader.start(thread, "", 1, 0));
        thread->executeRequest(nullptr);
        thread->executeRequest(new Job([&ran] { ran = true; }));
        gone.wait();
        EXPECT_TRUE(ran);
    });
}

TEST(DisplayThreadTest, WhoeverEndsAThreadDeletesItBehindItsJob)
{
    Threader threader;
    underDisturbance([&threader] {
        std::latch gone(1);
        std::latch begun(1);
        Semaphore mayEnd(Semaphore::NOT_AVAILABLE);
        bool ran = false;
        auto thread = std::make_unique<WatchedThread>(true, gone);
        ASSERT_TRUE(threader.start(thread.get(), "", 1, 0));
        thread->executeRequest(new Job([&] {
            begun.count_down();
            mayEnd.take();
            ran = true;
        }));
        begun.wait();
        const std::jthread releaser([&mayEnd] { mayEnd.give(); });
        thread->destroyThread();
        EXPECT_TRUE(ran);
        EXPECT_FALSE(gone.try_wait());
    });
}

TEST(DisplayThreadTest, AThreadThatEndsItselfInItsJobDeletesItself)
{
    Threader threader;
    std::latch gone(1);
    auto* thread = new WatchedThread(true, gone);
    ASSERT_TRUE(threader.start(thread, "", 1, 0));
    thread->executeRequest(new Job([thread] {
        thread->destroyThread();
        thread->destroyThread();
    }));
    gone.wait();
}

TEST(DisplayThreadTest, AJobThatComesDuringAnotherOneIsKept)
{
    Threader threader;
    underDisturbance([&threader] {
        DisplayThread thread(true);
        ASSERT_TRUE(threader.start(&thread, "", 1, 0));
        std::latch begun(1);
        std::latch mayEnd(1);
        std::latch done(1);
        thread.executeRequest(new Job([&] {
            begun.count_down();
            mayEnd.wait();
        }));
        begun.wait();
        thread.executeRequest(new Job([&done] { done.count_down(); }));
        mayEnd.count_down();
        done.wait();
        thread.destroyThread();
    });
}

TEST(DisplayThreadTest, AJobThatNeverRanIsDeletedWithItsThread)
{
    DisplayThread thread(true);
    thread.executeRequest(new Job([] {}));
    thread.executeRequest(new Job([] {}));
    thread.destroyThread();
}
