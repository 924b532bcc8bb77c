#include "LivingSet.h"
#include "Disturb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <random>
#include <thread>
#include <vector>

using namespace DisplayAPI;

TEST(LivingSetTest, AgreesWithAMapWhateverComesAndGoes)
{
    std::array<char, 512> objects{};
    std::map<const char*, std::uint64_t> expected;
    LivingSet<char> living;
    std::uint64_t lastNumber = 0;
    std::mt19937 random(7);
    for (int step = 0; step < 20'000; ++step) {
        // Mostly few live, so that slots are used again; at times many, so that the table grows.
        const unsigned int among = step % 5000 < 4000 ? 40 : 512;
        char* object = &objects[random() % among];
        if (random() % 2) {
            living.add(object);
            if (!expected.contains(object))
                expected[object] = ++lastNumber;
        } else {
            living.remove(object);
            expected.erase(object);
        }
        const char* asked = &objects[random() % among];
        ASSERT_EQ(living.numberOf(asked), expected.contains(asked) ? expected[asked] : 0) << "step " << step;
    }
    const std::vector<char*> all = living.all();
    EXPECT_EQ(all.size(), expected.size());
    for (const char* object : all)
        EXPECT_TRUE(expected.contains(object));
    EXPECT_FALSE(living.contains(nullptr));
}

TEST(LivingSetTest, NobodyGetsTheNumberOfAnotherObject)
{
    // One place that many objects have in turn, in slots that move: a reader sees each number at most as the one that
    // was given last, and never a smaller one again.
    std::array<char, 8> others{};
    char place = 0;
    for (std::uint64_t seed = 0; seed <= 100; ++seed) {
        setDisturbanceSeed(seed);
        LivingSet<char> living;
        std::atomic<std::uint64_t> given = 0;
        std::atomic<bool> isOver = false;
        std::atomic<int> wrong = 0;
        std::jthread reader([&] {
            std::uint64_t seen = 0;
            while (!isOver) {
                const std::uint64_t before = given;
                const std::uint64_t number = living.numberOf(&place);
                // Every ninth number is the place's.
                wrong += number != 0 && (number % 9 != 0 || number < before || number < seen) ? 1 : 0;
                seen = std::max(seen, number);
            }
        });
        for (int round = 0; round < 100; ++round) {
            for (char& other : others)
                living.add(&other);
            living.add(&place);
            given = living.numberOf(&place);
            for (char& other : others)
                living.remove(&other);
            living.remove(&place);
        }
        isOver = true;
        reader.join();
        ASSERT_EQ(wrong, 0) << "seed " << seed;
    }
    setDisturbanceSeed(0);
}

TEST(LivingSetTest, TheLivingAreFoundWhileOthersComeAndGo)
{
    std::array<char, 128> objects{};
    for (std::uint64_t seed = 0; seed <= 200; ++seed) {
        setDisturbanceSeed(seed);
        LivingSet<char> living;
        for (std::size_t i = 0; i < 16; ++i)
            living.add(&objects[i]);
        std::atomic<bool> isOver = false;
        std::atomic<int> missed = 0;
        std::jthread reader([&] {
            while (!isOver) {
                for (std::size_t i = 0; i < 16; ++i)
                    missed += living.contains(&objects[i]) ? 0 : 1;
            }
        });
        std::mt19937_64 random(seed);
        for (int step = 0; step < 200; ++step) {
            char* object = &objects[16 + random() % (step < 150 ? 15 : 112)];
            if (random() % 2)
                living.add(object);
            else
                living.remove(object);
        }
        isOver = true;
        reader.join();
        ASSERT_EQ(missed, 0) << "seed " << seed;
    }
    setDisturbanceSeed(0);
}
