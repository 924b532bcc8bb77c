#include "LivingSet.h"
#include "Disturb.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <random>
#include <set>
#include <thread>

using namespace DisplayAPI;

TEST(LivingSetTest, AgreesWithASetWhateverComesAndGoes)
{
    std::array<char, 512> objects{};
    std::set<const char*> expected;
    LivingSet<char> living;
    std::mt19937 random(7);
    for (int step = 0; step < 20'000; ++step) {
        // Mostly few live, so that slots are used again; at times many, so that the table grows.
        const unsigned int among = step % 5000 < 4000 ? 40 : 512;
        const char* object = &objects[random() % among];
        if (random() % 2) {
            living.add(object);
            expected.insert(object);
        } else {
            living.remove(object);
            expected.erase(object);
        }
        const char* asked = &objects[random() % among];
        ASSERT_EQ(living.contains(asked), expected.contains(asked)) << "step " << step;
    }
    for (const char& object : objects)
        EXPECT_EQ(living.contains(&object), expected.contains(&object));
    EXPECT_FALSE(living.contains(nullptr));
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
            const char* object = &objects[16 + random() % (step < 150 ? 15 : 112)];
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
