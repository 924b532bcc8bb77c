#pragma once

#include <DisplayAPI/DisplayEventIfc.h>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <utility>

/// The subscriber of the tests: it counts the notices, and may do something inside them.
class Subscriber : public DisplayAPI::DisplayEventIfc {
public:
    void displayChanged(std::string text) override
    {
        EXPECT_EQ(text, "");
        ++count;
        if (onNotice)
            onNotice();
        if (const auto now = std::exchange(onNextNotice, nullptr))
            now();
    }

    /// The number since the last call.
    int takeNotices() { return count.exchange(0); }

    std::atomic<int> count = 0;
    std::function<void()> onNotice;     // in each
    std::function<void()> onNextNotice; // in the next one alone
};
