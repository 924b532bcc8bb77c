#pragma once

#include <Disturb.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

/// Runs a small workload under each of 200 disturbances of the order of threads, until one fails.
inline void underDisturbance(const std::function<void()>& workload)
{
    for (std::uint64_t seed = 1; seed <= 200 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        setDisturbanceSeed(seed);
        workload();
    }
    setDisturbanceSeed(0);
}

/// Runs `work(number)` on so many threads at once, and returns when all have ended.
inline void runThreads(int count, const std::function<void(int)>& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (std::thread& thread : threads)
        thread.join();
}

/// Whether the kernel has put a task of this process to sleep, or the task has ended.
inline bool isAtRest(pid_t task)
{
    std::ifstream file("/proc/self/task/" + std::to_string(task) + "/status");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("State:"))
            return line.find('S', 6) != std::string::npos;
    }
    return true;
}
