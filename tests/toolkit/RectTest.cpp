#include "Rect.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <vector>

namespace DisplayAPI {

void PrintTo(const Rect& rect, std::ostream* out)
{
    *out << rect.left() << ',' << rect.top() << ' ' << rect.width() << 'x' << rect.height();
}

}

namespace {

using DisplayAPI::Rect;

bool holds(const Rect& rect, int x, int y)
{
    return x >= rect.left() && x < rect.left() + rect.width() && y >= rect.top() && y < rect.top() + rect.height();
}

/// How many of the rectangles hold the pixel.
int layers(const std::vector<Rect>& rects, int x, int y)
{
    int count = 0;
    for (const Rect& rect : rects)
        count += holds(rect, x, y) ? 1 : 0;
    return count;
}

}

TEST(RectTest, WhatStaysComesAboveBelowLeftRight)
{
    const Rect screen(0, 0, 162, 31);
    const struct {
        const char* name;
        std::vector<Rect> taken;
        std::vector<Rect> rest;
    } rows[] = {
        {"nothing", {}, {screen}},
        {"an empty one", {Rect(10, 10, 0, 5)}, {screen}},
        {"one outside", {Rect(0, 31, 162, 16)}, {screen}},
        {"all of it", {screen}, {}},
        {"more than all of it", {Rect(-5, -5, 500, 500)}, {}},
        {"the lower line", {Rect(0, 15, 162, 16)}, {Rect(0, 0, 162, 15)}},
        {"a hole", {Rect(10, 10, 20, 5)},
            {Rect(0, 0, 162, 10), Rect(0, 15, 162, 16), Rect(0, 10, 10, 5), Rect(30, 10, 132, 5)}},
        {"a corner", {Rect(150, 20, 100, 100)}, {Rect(0, 0, 162, 20), Rect(0, 20, 150, 11)}},
        {"both halves", {Rect(0, 0, 80, 31), Rect(80, 0, 82, 31)}, {}},
        {"the line, then a part of what stays", {Rect(0, 15, 162, 16), Rect(10, 0, 5, 15)},
            {Rect(0, 0, 10, 15), Rect(15, 0, 147, 15)}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(screen.subtract(row.taken), row.rest) << row.name;
    EXPECT_TRUE(Rect(3, 3, 0, 9).subtract({}).empty());
}

TEST(RectTest, APixelStaysOnceOrIsGone)
{
    std::mt19937 random(20240301);
    const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 200; ++round) {
        const Rect whole(below(6), below(6), below(12), below(12));
        std::vector<Rect> taken;
        for (int i = below(5); i > 0; --i)
            taken.emplace_back(below(16), below(16), below(8), below(8));
        const std::vector<Rect> rest = whole.subtract(taken);
        for (int y = -1; y < 20; ++y) {
            for (int x = -1; x < 20; ++x) {
                const bool stays = holds(whole, x, y) && layers(taken, x, y) == 0;
                ASSERT_EQ(layers(rest, x, y), stays ? 1 : 0) << "round " << round << " at " << x << ',' << y;
            }
        }
    }
}
