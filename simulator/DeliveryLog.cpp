#include "DeliveryLog.h"

#include <DisplayAPI/Command.h>

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t MostEntries = 1000;

using DisplayAPI::Command;
constexpr std::pair<Command::Type, const char*> TypeNames[] = {
    {Command::Back, "Back"},
    {Command::Select, "Select"},
    {Command::Menu, "Menu"},
    {Command::Right, "Right"},
    {Command::Save, "Save"},
    {Command::TabBarActive, "TabBarActive"},
    {Command::TabBarInactive, "TabBarInactive"},
    {Command::TabBack, "TabBack"},
    {Command::TabForward, "TabForward"},
    {Command::DisplayChanged, "DisplayChanged"},
    {Command::Dismiss, "Dismiss"},
};

}

std::string commandTypeName(int type)
{
    const auto found = std::ranges::find(TypeNames, type, [](const auto& entry) { return int{entry.first}; });
    return found == std::end(TypeNames) ? std::to_string(type) : found->second;
}

void DeliveryLog::add(const DisplayAPI::DeliveryWatch::Delivery& delivery)
{
    {
        const std::lock_guard lock(mMutex);
        mEntries.push_back({++mCount, delivery});
        if (mEntries.size() > MostEntries)
            mEntries.pop_front();
    }
    mHasGrown.notify_all();
    if (mObserver)
        mObserver();
}

std::vector<DeliveryLog::Entry> DeliveryLog::since(std::uint64_t number) const
{
    std::vector<Entry> entries;
    const std::lock_guard lock(mMutex);
    std::ranges::copy_if(
        mEntries, std::back_inserter(entries), [number](const Entry& entry) { return entry.number > number; });
    return entries;
}

std::uint64_t DeliveryLog::count() const
{
    const std::lock_guard lock(mMutex);
    return mCount;
}

bool DeliveryLog::waitFor(std::uint64_t number, const std::function<bool(const Entry&)>& isWanted,
    const std::function<bool()>& mayStop, std::chrono::milliseconds limit) const
{
    const auto isThere = [&] {
        return std::ranges::any_of(
            mEntries, [&](const Entry& entry) { return entry.number > number && isWanted(entry); });
    };
    std::unique_lock lock(mMutex);
    mHasGrown.wait_for(lock, limit, [&] { return isThere() || mayStop(); });
    return isThere();
}

void DeliveryLog::wake()
{
    {
        const std::lock_guard lock(mMutex);
    }
    mHasGrown.notify_all();
}

}
