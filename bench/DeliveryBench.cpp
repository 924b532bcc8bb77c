#include "Benchmarks.h"
#include "Phone.h"
#include "Report.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/MenuCommand.h>

#include <Semaphore.h>

#include <ctime>
#include <memory>
#include <sys/resource.h>
#include <vector>

using namespace DisplayAPI;

namespace {

double threadTimeInNanoseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

/// Counts deliveries, and the times that its worker went to sleep between the first and the last.
class Counter : public CommandListener {
public:
    explicit Counter(long expected)
        : mExpected(expected)
    {
    }

    void commandAction(Command*, Displayable*) override
    {
        rusage usage = {};
        if (delivered == 0 || delivered + 1 == mExpected) {
            getrusage(RUSAGE_THREAD, &usage);
            (delivered == 0 ? mSleepsAtFirst : mSleepsAtLast) = usage.ru_nvcsw;
        }
        if (++delivered == mExpected || answersEach)
            answer.release();
    }

    double sleepsForEachDelivery() const
    {
        return static_cast<double>(mSleepsAtLast - mSleepsAtFirst) / static_cast<double>(mExpected - 1);
    }

    long delivered = 0;
    bool answersEach = false;
    Wait answer;

private:
    long mExpected;
    long mSleepsAtFirst = 0;
    long mSleepsAtLast = 0;
};

/// What a post costs the GUI thread while many come one behind the other, in bursts that are each delivered before the
/// next begins.
double bursts(long count, long postsEach)
{
    Phone phone;
    MenuCommand command("Call?", 1);
    double time = 0;
    for (long burst = 0; burst < count; ++burst) {
        Counter listener(postsEach);
        phone.onGui([&] {
            const double begin = threadTimeInNanoseconds();
            for (long post = 0; post < postsEach; ++post)
                listener.postCommandAction(&command, nullptr);
            time += threadTimeInNanoseconds() - begin;
        });
        listener.answer.wait();
    }
    return time / static_cast<double>(count * postsEach);
}

/// From the post until the application has heard and answered, one delivery at a time.
double oneByOne(const std::string& mode, long posts)
{
    Phone phone;
    MenuCommand command("Call?", 1);
    Counter listener(posts);
    listener.answersEach = true;
    double time = 0;
    phone.onGui([&] {
        const double begin = nowInNanoseconds();
        for (long post = 0; post < posts; ++post) {
            listener.postCommandAction(&command, nullptr);
            listener.answer.wait();
        }
        time = nowInNanoseconds() - begin;
    });
    Report::addFigure(
        mode, "sleeps of the worker for each single delivery", listener.sleepsForEachDelivery(), "sleeps", 1.01);
    return time / static_cast<double>(posts);
}

/// A post with so many other commands alive.
double postAmongCommands(long living)
{
    std::vector<std::unique_ptr<MenuCommand>> commands;
    for (long i = 0; i < living; ++i)
        commands.push_back(std::make_unique<MenuCommand>("Command", static_cast<unsigned long>(i)));
    return bursts(2, 10'000);
}

}

void registerDeliveryBenchmarks(const std::string& mode)
{
    constexpr long Posts = 100'000;
    constexpr long Single = 20'000;
    using Report::NoLimit;
    registerRatio(mode, "delivery in a burst, GUI-thread time for each post", Posts, 0.015,
        [] { return bursts(10, Posts / 10); });
    registerRatio(mode, "delivery one by one, post to answer", Single, 1.4, [mode] { return oneByOne(mode, Single); });
    registerRatio(mode, "post with 10 commands alive", 20'000, NoLimit, [] { return postAmongCommands(10); });
    registerRatio(mode, "post with 100,000 commands alive", 20'000, NoLimit, [] { return postAmongCommands(100'000); });
}
