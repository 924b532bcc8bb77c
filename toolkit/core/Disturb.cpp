#include "Disturb.h"

#if TOOLKIT_DISTURB

#include <atomic>
#include <chrono>
#include <thread>

namespace {

std::atomic<std::uint64_t> gSeed = 0;
std::atomic<std::uint64_t> gSeeding = 0; // counts the seeds, so that a thread notices a new one
std::atomic<std::uint64_t> gNextThread = 0;

struct Generator {
    std::uint64_t seeding = 0;
    std::uint64_t state = 0;

    /// The next number of the sequence SplitMix64.
    std::uint64_t next()
    {
        state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state;
        mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBU;
        return mixed ^ mixed >> 31;
    }
};

/// The generator of the calling thread. Each has a sequence of its own, by the order in which the threads
/// first met a hook after the seed was set.
Generator& generator(std::uint64_t seed)
{
    thread_local Generator theGenerator;
    const std::uint64_t seeding = gSeeding.load(std::memory_order_acquire);
    if (theGenerator.seeding != seeding) {
        theGenerator.seeding = seeding;
        theGenerator.state = seed;
        theGenerator.state = theGenerator.next() + gNextThread.fetch_add(1, std::memory_order_relaxed);
    }
    return theGenerator;
}

}

void setDisturbanceSeed(std::uint64_t seed)
{
    gNextThread = 0;
    gSeed = seed;
    ++gSeeding;
}

void disturb()
{
    const std::uint64_t seed = gSeed.load(std::memory_order_relaxed);
    if (seed == 0)
        return;
    const std::uint64_t number = generator(seed).next();
    const std::uint64_t choice = number % 64;
    if (choice == 0)
        std::this_thread::sleep_for(std::chrono::microseconds(1 + (number >> 32) % 40));
    else if (choice < 12)
        std::this_thread::yield();
}

#endif
