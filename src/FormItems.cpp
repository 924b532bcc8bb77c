#include "FormItems.h"

#include <DisplayAPI/FormPrivateIfc.h>

#include <algorithm>

namespace DisplayAPI {

std::vector<Item*> FormItems::all() const
{
    std::lock_guard lock(mMutex);
    std::vector<Item*> items;
    items.reserve(mEntries.size());
    for (const Entry& entry : mEntries) {
        Item* item = entry.isTold ? entry.item.get() : nullptr;
        if (item)
            items.push_back(item);
    }
    return items;
}

FormItems::Entries::iterator FormItems::find(const Living<Item>& item)
{
    return std::find_if(mEntries.begin(), mEntries.end(), [&item](const Entry& entry) { return entry.item == item; });
}

bool FormItems::expect(Item* item)
{
    if (!Item::exists(item) || !item->getPrivateImpl())
        return false;
    if (item->mHolder && item->mHolder != this && !item->mHolder->letGo(*item))
        return false;
    std::lock_guard lock(mMutex);
    // Those whose death was refused, since the loop had ended.
    std::erase_if(mEntries, [](const Entry& entry) { return !entry.item; });
    const auto known = find(Living<Item>(item));
    if (known != mEntries.end())
        known->isLeaving = false;
    else
        mEntries.push_back({Living<Item>(item)});
    item->mHolder = this;
    return true;
}

void FormItems::settle(const Living<Item>& item, int index)
{
    std::lock_guard lock(mMutex);
    const auto found = find(item);
    if (found == mEntries.end() || found->isTold)
        return;
    Entry entry = *found;
    entry.isTold = true;
    mEntries.erase(found);
    mEntries.insert(position(index), entry);
}

/// In front of the item that all() names at an index; the end outside.
FormItems::Entries::iterator FormItems::position(int index)
{
    if (index < 0)
        return mEntries.end();
    return std::find_if(mEntries.begin(), mEntries.end(),
        [&index](const Entry& entry) { return entry.isTold && entry.item && index-- == 0; });
}

void FormItems::startLeaving(const Living<Item>& item)
{
    const auto found = find(item);
    if (found != mEntries.end())
        found->isLeaving = true;
}

bool FormItems::finishLeaving(const Living<Item>& item)
{
    const auto found = find(item);
    if (found == mEntries.end() || !found->isLeaving)
        return false;
    {
        std::lock_guard lock(mMutex);
        mEntries.erase(found);
    }
    Item* living = item.get();
    if (living)
        living->mHolder = nullptr;
    return living != nullptr;
}

void FormItems::deleteAll()
{
    // An item's destructor is the application's own, perhaps.
    while (!mEntries.empty()) {
        Item* item = mEntries.back().item.get();
        {
            std::lock_guard lock(mMutex);
            mEntries.pop_back();
        }
        if (!item)
            continue;
        item->mHolder = nullptr;
        delete item;
    }
}

// An item tells its holder

void FormItems::itemDies(const Living<Item>& item, ItemPrivateIfc* half)
{
    const auto found = find(item);
    if (found != mEntries.end()) {
        std::lock_guard lock(mMutex);
        mEntries.erase(found);
    }
    // It gives a notice, in which the form may be deleted.
    if (mHalf)
        mHalf->dropItem(static_cast<Item*>(const_cast<void*>(item.address())), half);
}

void FormItems::exchangeRow(FormItemMEG& before, FormItemMEG& now)
{
    if (mHalf)
        mHalf->exchangeRow(before, now);
}

bool FormItems::letGo(Item& item)
{
    return finishLeaving(Living<Item>(&item));
}

}
