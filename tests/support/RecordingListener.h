#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ItemStateListener.h>
#include <Threadable.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

/// The tests' listener of both kinds: keeps what it hears, in order, lets a test wait for it, and does what the test
/// wishes when it hears. Set what it does before the first delivery.
class RecordingListener : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    using Delivery = std::pair<DisplayAPI::Command*, DisplayAPI::Displayable*>;

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override
    {
        if (reaction)
            reaction(command);
        keep(command, [&] { mDeliveries.emplace_back(command, displayable); });
    }

    void itemStateChanged(DisplayAPI::Item* item) override
    {
        if (changeReaction)
            changeReaction(item);
        keep(item, [] {});
    }

    void postCommandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override
    {
        if (postReaction)
            postReaction(command);
        else
            CommandListener::postCommandAction(command, displayable);
    }

    /// Waits for so many deliveries of commands and returns them all. A lost delivery ends in a short list.
    std::vector<Delivery> waitFor(std::size_t count)
    {
        std::unique_lock lock(mMutex);
        mArrived.wait_for(lock, patience, [&] { return mDeliveries.size() >= count; });
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

    /// Waits for so many deliveries of either kind and returns what all were about: commands and items, in order.
    std::vector<const void*> told(std::size_t count)
    {
        std::unique_lock lock(mMutex);
        mArrived.wait_for(lock, patience, [&] { return mTold.size() >= count; });
        return mTold;
    }

    /// The deliveries so far, of both kinds.
    std::size_t count()
    {
        std::lock_guard lock(mMutex);
        return mTold.size();
    }

    /// The numbers of the threads that delivered.
    std::set<unsigned int> threads()
    {
        std::lock_guard lock(mMutex);
        return mThreads;
    }

    /// What it does on the worker thread before it keeps a command's delivery.
    std::function<void(DisplayAPI::Command*)> reaction;
    /// The same for an item's change.
    std::function<void(DisplayAPI::Item*)> changeReaction;
    /// What it does on the posting thread instead of queuing the command.
    std::function<void(DisplayAPI::Command*)> postReaction;

private:
    static constexpr std::chrono::seconds patience{20};

    template <typename KeepMore>
    void keep(const void* what, const KeepMore& keepMore)
    {
        std::lock_guard lock(mMutex);
        mTold.push_back(what);
        mThreads.insert(Threadable::currentThreadId());
        keepMore();
        mArrived.notify_all();
    }

    std::mutex mMutex;
    std::condition_variable mArrived;
    std::vector<Delivery> mDeliveries;
    std::vector<const void*> mTold;
    std::set<unsigned int> mThreads;
};
