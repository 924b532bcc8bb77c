#include "Benchmarks.h"
#include "Phone.h"
#include "Report.h"

#include <atomic>
#include <barrier>
#include <linux/futex.h>
#include <memory>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

void registerRounds(const std::string& mode, const std::string& name, long operations,
    const std::function<double()>& measure, int rounds)
{
    benchmark::RegisterBenchmark((mode + "/" + name).c_str(),
        [mode, operations, measure](benchmark::State& state) {
            setMode(mode);
            for (auto _ : state)
                state.SetIterationTime(measure() * static_cast<double>(operations) / 1e9);
            state.SetItemsProcessed(state.iterations() * operations);
        })
        ->UseManualTime()
        ->Iterations(rounds);
}

void registerRatio(const std::string& mode, const std::string& name, long operations, double allowed,
    const std::function<double()>& measure)
{
    registerRounds(mode, name, operations, [=] {
        const double time = measure();
        Report::addRatio(mode, name, time, mode == "one core" ? allowed : Report::NoLimit);
        return time;
    });
}

namespace {

void futexWait(std::atomic<std::uint32_t>& word, std::uint32_t value)
{
    syscall(SYS_futex, &word, FUTEX_WAIT_PRIVATE, value, nullptr, nullptr, 0);
}

void futexWake(std::atomic<std::uint32_t>& word)
{
    syscall(SYS_futex, &word, FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0);
}

/// Two threads that hand one word each to the other: what a call would cost if it were nothing but two wakings.
double pingPong(long rounds)
{
    std::atomic<std::uint32_t> ping = 0;
    std::atomic<std::uint32_t> pong = 0;
    auto hand = [](std::atomic<std::uint32_t>& word) {
        word.store(1);
        futexWake(word);
    };
    auto await = [](std::atomic<std::uint32_t>& word) {
        while (word.exchange(0) == 0)
            futexWait(word, 0);
    };
    std::thread other([&] {
        for (long i = 0; i < rounds; ++i) {
            await(ping);
            hand(pong);
        }
    });
    const double start = nowInNanoseconds();
    for (long i = 0; i < rounds; ++i) {
        hand(ping);
        await(pong);
    }
    const double time = nowInNanoseconds() - start;
    other.join();
    return time / static_cast<double>(rounds);
}

/// The time for each call when so many threads call at once, each on a handle of its own or all on one.
double synchronousCalls(int callers, long callsEach, bool onOneHandle, Phone::Reader reader = Phone::Reader::None)
{
    Phone phone(reader);
    std::vector<std::unique_ptr<Probe>> probes;
    for (int i = 0; i < (onOneHandle ? 1 : callers); ++i)
        probes.push_back(std::make_unique<Probe>());
    std::barrier start(callers + 1);
    std::vector<std::thread> threads;
    for (int i = 0; i < callers; ++i) {
        threads.emplace_back([&, i] {
            Probe& probe = *probes[onOneHandle ? 0 : static_cast<std::size_t>(i)];
            start.arrive_and_wait();
            for (long call = 0; call < callsEach; ++call)
                probe.call();
        });
    }
    start.arrive_and_wait();
    const double begin = nowInNanoseconds();
    for (std::thread& thread : threads)
        thread.join();
    return (nowInNanoseconds() - begin) / static_cast<double>(callers * callsEach);
}

/// The time for each asynchronous call, from the first until all have run.
double asynchronousCalls(int threadCount, long postsEach)
{
    Phone phone;
    Probe last;
    std::vector<std::unique_ptr<Probe>> probes;
    for (int i = 0; i < threadCount; ++i)
        probes.push_back(std::make_unique<Probe>());
    std::barrier start(threadCount + 1);
    std::vector<std::thread> threads;
    for (auto& probe : probes) {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            for (long post = 0; post < postsEach; ++post)
                probe->post();
        });
    }
    start.arrive_and_wait();
    const double begin = nowInNanoseconds();
    for (std::thread& thread : threads)
        thread.join();
    last.call();
    return (nowInNanoseconds() - begin) / static_cast<double>(threadCount * postsEach);
}

}

void registerFrameBenchmarks(const std::string& mode)
{
    constexpr long Calls = 50'000;
    constexpr long Posts = 1'000'000;
    registerRounds(mode, "futex ping-pong", Calls, [mode] {
        const double time = pingPong(Calls);
        Report::setYardstick(mode, time);
        return time;
    });
    using Report::NoLimit;
    registerRatio(mode, "synchronous call, 1 caller", Calls, 1.0, [] { return synchronousCalls(1, Calls, false); });
    registerRatio(mode, "synchronous call, 1 caller, with a subscriber", Calls, NoLimit,
        [] { return synchronousCalls(1, Calls, false, Phone::Reader::Subscribed); });
    registerRatio(
        mode, "synchronous call, 4 callers", Calls, 1.0, [] { return synchronousCalls(4, Calls / 4, false); });
    registerRatio(mode, "synchronous call, 4 callers of one handle", Calls, NoLimit,
        [] { return synchronousCalls(4, Calls / 4, true); });
    registerRatio(mode, "asynchronous call, 1 thread", Posts, 0.018, [] { return asynchronousCalls(1, Posts); });
    registerRatio(mode, "asynchronous call, 4 threads", Posts, 0.018, [] { return asynchronousCalls(4, Posts / 4); });
}
