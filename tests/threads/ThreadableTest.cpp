#include "Threadable.h"
#include "Disturbance.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <pthread.h>
#include <unistd.h>

namespace {

class Job : public Threadable {
public:
    explicit Job(std::function<void()> work)
        : mWork(std::move(work))
    {
    }
    void run() override
    {
        // The work may delete the job, so it must not be a part of it.
        const auto work = mWork;
        work();
    }

private:
    const std::function<void()> mWork;
};

std::string currentThreadName()
{
    std::array<char, 32> name{};
    pthread_getname_np(pthread_self(), name.data(), name.size());
    return name.data();
}

}

TEST(ThreadableTest, TheIdIsKnownBeforeTheThreadRuns)
{
    Threader threader;
    std::promise<void> go;
    unsigned int seenInside = 0;
    Job job([&] {
        go.get_future().wait();
        seenInside = Threadable::currentThreadId();
    });
    EXPECT_EQ(job.threadId(), 0U);
    ASSERT_TRUE(threader.start(&job, "", 1, 0));
    const unsigned int id = job.threadId();
    go.set_value();
    job.waitForThreadCompletion();
    EXPECT_NE(id, 0U);
    EXPECT_EQ(seenInside, id);
    EXPECT_EQ(job.threadId(), id);
}

TEST(ThreadableTest, NoTwoThreadsHaveOneId)
{
    std::vector<std::future<unsigned int>> results(16);
    for (auto& result : results) {
        result = std::async(std::launch::async, [] {
            const unsigned int id = Threadable::currentThreadId();
            return id == Threadable::currentThreadId() ? id : 0;
        });
    }
    std::set<unsigned int> ids{Threadable::currentThreadId()};
    for (auto& result : results)
        ids.insert(result.get());
    EXPECT_EQ(ids.size(), 17U);
    EXPECT_EQ(ids.count(0), 0U);
}

TEST(ThreadableTest, WaitingEndsForEveryWaiterAfterRun)
{
    underDisturbance([] {
        Threader threader;
        std::atomic<bool> isDone = false;
        Job job([&] { isDone = true; });
        ASSERT_TRUE(threader.start(&job, "", 1, 0));
        const auto wait = [&] {
            job.waitForThreadCompletion();
            return isDone.load();
        };
        auto first = std::async(std::launch::async, wait);
        auto second = std::async(std::launch::async, wait);
        EXPECT_TRUE(wait());
        EXPECT_TRUE(first.get());
        EXPECT_TRUE(second.get());
    });
}

TEST(ThreadableTest, AJobMayDetachItsThreadWhileAnotherWaits)
{
    Threader threader;
    std::promise<void> go;
    Job job([&] {
        pthread_detach(pthread_self());
        go.get_future().wait();
    });
    ASSERT_TRUE(threader.start(&job, "", 1, 0));
    auto waiter = std::async(std::launch::async, [&] { job.waitForThreadCompletion(); });
    go.set_value();
    waiter.get();
}

TEST(ThreadableTest, AJobMayDeleteItselfAtOnce)
{
    Threader threader;
    underDisturbance([&threader] {
        std::promise<void> deleted;
        Job* job = nullptr;
        std::promise<void> known;
        job = new Job([&] {
            known.get_future().wait();
            delete job;
            deleted.set_value();
        });
        known.set_value();
        ASSERT_TRUE(threader.start(job, "", 1, 0));
        deleted.get_future().wait();
    });
}

TEST(ThreadableTest, AJobMayDeleteItselfUnderItsWaiter)
{
    Threader threader;
    std::promise<void> go;
    Job* job = nullptr;
    job = new Job([&] {
        go.get_future().wait();
        delete job;
    });
    ASSERT_TRUE(threader.start(job, "", 1, 0));
    std::atomic<pid_t> waiterTask = 0;
    auto waiter = std::async(std::launch::async, [&] {
        waiterTask = gettid();
        job->waitForThreadCompletion();
    });
    while (waiterTask == 0 || !isAtRest(waiterTask))
        std::this_thread::yield();
    go.set_value();
    waiter.get();
}

TEST(ThreadableTest, AThreadThatEndsInTheMiddleOfItsRunHasCompleted)
{
    Threader threader;
    Job job([] { pthread_exit(nullptr); });
    ASSERT_TRUE(threader.start(&job, "", 1, 0));
    job.waitForThreadCompletion();
}

TEST(ThreadableTest, NobodyWaitsForAJobThatWasNotStarted)
{
    Job job([] {});
    job.waitForThreadCompletion();
    Threader threader;
    EXPECT_FALSE(threader.start(nullptr, "", 1, 0));
}

TEST(ThreadableTest, AJobRunsOnce)
{
    Threader threader;
    std::atomic<int> runs = 0;
    Job job([&] { ++runs; });
    EXPECT_TRUE(threader.start(&job, "", 1, 0));
    EXPECT_FALSE(threader.start(&job, "", 1, 0));
    job.waitForThreadCompletion();
    EXPECT_FALSE(threader.start(&job, "", 1, 0));
    EXPECT_EQ(runs, 1);
}

TEST(ThreadableTest, TheNameIsCutToWhatThePlatformTakes)
{
    Threader threader;
    std::string name;
    Job job([&] { name = currentThreadName(); });
    ASSERT_TRUE(threader.start(&job, "CommandExecutor worker", 1, 256 * 1024));
    job.waitForThreadCompletion();
    EXPECT_EQ(name, "CommandExecutor");
}
