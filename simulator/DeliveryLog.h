#pragma once

#include <DisplayAPI/DeliveryWatch.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace Simulator {

/// The commands that the phonelet was given, the last thousand of them. Threads: any.
class DeliveryLog {
public:
    struct Entry {
        std::uint64_t number = 0; ///< From 1 on, in the order of delivery.
        DisplayAPI::DeliveryWatch::Delivery delivery;
    };

    void add(const DisplayAPI::DeliveryWatch::Delivery& delivery);

    /// Those behind a number; 0 for all.
    std::vector<Entry> since(std::uint64_t number) const;

    /// How many there have been.
    std::uint64_t count() const;

    /// Waits until there are some behind the number that are as wanted, or `mayStop` answers true behind a wake().
    bool waitFor(std::uint64_t number, const std::function<bool(const Entry&)>& isWanted,
        const std::function<bool()>& mayStop, std::chrono::milliseconds limit) const;
    void wake();

    /// Called after each delivery, on the thread that has it. Set it before the telephone runs.
    void setObserver(std::function<void()> observer) { mObserver = std::move(observer); }

private:
    mutable std::mutex mMutex;
    mutable std::condition_variable mHasGrown;
    std::deque<Entry> mEntries;
    std::uint64_t mCount = 0;
    std::function<void()> mObserver;
};

/// The name of a Command::Type, such as "Select"; its number in digits if it has none.
std::string commandTypeName(int type);

}
