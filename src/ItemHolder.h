#pragma once

#include <DisplayAPI/Living.h>

class FormItemMEG;

namespace DisplayAPI {

class Item;
class ItemPrivateIfc;

/// Who holds an item: a form. An item has one holder at most, which its half reaches by Item::holder() and tells of its
/// row's fate. Threads: GUI thread only.
///
/// While it is held, the form's widget owns the row. Taken out of the form, it belongs to the item again: the form says
/// so to the half, by gainOwnership() of its own class, since ItemPrivateIfc has no slot for it.
class ItemHolder {
public:
    /// An item is being deleted, and counts as dead already; `half` is its half, null if that has gone before it.
    virtual void itemDies(const Living<Item>& item, ItemPrivateIfc* half) = 0;

    /// Puts another row in all places of `before`, which is the caller's from then on.
    virtual void exchangeRow(FormItemMEG& before, FormItemMEG& now) = 0;

    /// Gives up an item on its way out, so that another holder may have it. False for one that stays.
    virtual bool letGo(Item& item) = 0;

protected:
    ~ItemHolder() = default;
};

}
