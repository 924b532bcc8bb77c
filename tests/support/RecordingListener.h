#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

/// A listener that keeps what it hears, in order, and lets a test wait for it.
class RecordingListener : public DisplayAPI::CommandListener {
public:
    using Delivery = std::pair<DisplayAPI::Command*, DisplayAPI::Displayable*>;

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override
    {
        if (reaction)
            reaction(command);
        std::lock_guard lock(mMutex);
        mDeliveries.emplace_back(command, displayable);
        mArrived.notify_all();
    }

    /// Waits for so many deliveries and returns them all. A lost delivery ends in a short list.
    std::vector<Delivery> waitFor(std::size_t count)
    {
        std::unique_lock lock(mMutex);
        mArrived.wait_for(lock, std::chrono::seconds(20), [&] { return mDeliveries.size() >= count; });
        return mDeliveries;
    }

    /// The commands alone.
    std::vector<DisplayAPI::Command*> commands(std::size_t count)
    {
        std::vector<DisplayAPI::Command*> all;
        for (const Delivery& delivery : waitFor(count))
            all.push_back(delivery.first);
        return all;
    }

    std::size_t count()
    {
        std::lock_guard lock(mMutex);
        return mDeliveries.size();
    }

    /// What the listener does on the worker thread before it keeps the delivery; set before the first.
    std::function<void(DisplayAPI::Command*)> reaction;

private:
    std::mutex mMutex;
    std::condition_variable mArrived;
    std::vector<Delivery> mDeliveries;
};
