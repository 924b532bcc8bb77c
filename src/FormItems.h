#pragma once

#include <DisplayAPI/Item.h>

#include "ItemHolder.h"

#include <memory>
#include <mutex>
#include <vector>

namespace DisplayAPI {

class FormPrivateIfc;

/// The items of a form in their order, each with what it takes to survive a notice.
///
/// The form's half changes first. That gives a notice, inside which the application may do anything: delete the item,
/// hand it to another form, change the form again or delete it. So an item has its entry here from the first step of
/// its arrival to the last of its leaving. What all() names changes last.
///
/// Threads: GUI thread, but for all(); once the loop has ended also the thread that deletes the form.
/// Ownership: the items are the form's, who deletes them by deleteAll().
class FormItems final : public ItemHolder {
public:
    /// `half` is where the form keeps its half.
    explicit FormItems(const std::unique_ptr<FormPrivateIfc>& half)
        : mHalf(half)
    {
    }

    /// The living items: one on its way in is not there yet, one on its way out still is. Threads: any.
    std::vector<Item*> all() const;

    /// Takes an item in hand, or keeps one on its way out. False for one that is another's, or that has no half.
    bool expect(Item* item);

    /// An item is in: it stands at an index, or at the end outside, unless it stood somewhere before. Without effect
    /// if it has gone meanwhile.
    void settle(const Living<Item>& item, int index);

    /// From now on another form may have the item.
    void startLeaving(const Living<Item>& item);

    /// The item is the caller's. False if it has died, or another has it already, or it has come back.
    bool finishLeaving(const Living<Item>& item);

    /// Deletes the items from the last to the first.
    void deleteAll();

    // An item tells its holder

    void itemDies(const Living<Item>& item, ItemPrivateIfc* half) override;
    void exchangeRow(FormItemMEG& before, FormItemMEG& now) override;
    bool letGo(Item& item) override;

private:
    struct Entry {
        Living<Item> item;
        bool isTold = false; // all() names it
        bool isLeaving = false;
    };
    using Entries = std::vector<Entry>;

    Entries::iterator find(const Living<Item>& item);
    Entries::iterator position(int index);

    const std::unique_ptr<FormPrivateIfc>& mHalf;
    mutable std::mutex mMutex; // for changes, and for reading elsewhere
    Entries mEntries;
};

}
