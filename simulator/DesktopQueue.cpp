#include "DesktopQueue.h"

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t MostCommands = 1000;
constexpr std::chrono::hours LongestAdvance{24}; // the channel takes a week

}

void DesktopQueue::open()
{
    const std::lock_guard lock(mMutex);
    mIsOpen = true;
    mLooksDone = mLooksAsked;
}

void DesktopQueue::close()
{
    {
        const std::lock_guard lock(mMutex);
        mIsOpen = false;
        mCommands.clear();
    }
    mHasLooked.notify_all();
    mWake.set();
}

bool DesktopQueue::isOpen() const
{
    const std::lock_guard lock(mMutex);
    return mIsOpen;
}

void DesktopQueue::tell(const std::string& step, const std::string& argument)
{
    const std::lock_guard lock(mMutex);
    add({Command::Kind::Step, step, argument});
}

void DesktopQueue::advance(std::chrono::milliseconds time)
{
    const std::lock_guard lock(mMutex);
    const bool isBehindOther = !mCommands.empty() && mCommands.back().kind == Command::Kind::Advance;
    if (isBehindOther && mCommands.back().time + time <= LongestAdvance)
        mCommands.back().time += time;
    else
        add({.kind = Command::Kind::Advance, .time = time});
}

bool DesktopQueue::finish(std::chrono::milliseconds limit)
{
    std::unique_lock lock(mMutex);
    const std::uint64_t look = ++mLooksAsked;
    add({Command::Kind::Look});
    mHasLooked.wait_for(lock, limit, [&] { return !mIsOpen || mLooksDone >= look; });
    return mIsOpen && mLooksDone >= look;
}

void DesktopQueue::add(Command command)
{
    if (!mIsOpen)
        return;
    if (mCommands.size() >= MostCommands) {
        const auto isLook = [](const Command& other) { return other.kind == Command::Kind::Look; };
        const auto oldest = std::ranges::find_if_not(mCommands, isLook);
        if (oldest != mCommands.end())
            mCommands.erase(oldest);
    }
    mCommands.push_back(std::move(command));
    mWake.set();
}

std::optional<DesktopQueue::Command> DesktopQueue::take()
{
    const std::lock_guard lock(mMutex);
    if (mCommands.empty())
        return std::nullopt;
    Command command = std::move(mCommands.front());
    mCommands.pop_front();
    return command;
}

void DesktopQueue::noteLook()
{
    {
        const std::lock_guard lock(mMutex);
        ++mLooksDone;
    }
    mHasLooked.notify_all();
}

}
