#pragma once

#include <DisplayAPI/ListItemPrivateIfc.h>

#include "HeldRows.h"
#include "Road.h"

#include <climits>
#include <memory>

namespace DisplayAPI {

/// The rows of a list whose half has a box of the toolkit's rows, and the steps in which both change together.
///
/// The box changes first and all() after it. In between the display tells its subscriber, who may delete the list: then
/// nothing of it may be touched. Threads: GUI thread.
template <typename Box>
class BoxRows : public HeldRows {
public:
    /// The list's own field, which is null before its half is made and behind its end.
    explicit BoxRows(const std::unique_ptr<Box>& box)
        : mBox(box)
    {
    }

    // Steps of requests. A row that is not free is refused

    void append(ListItem* item)
    {
        if (isFree(item))
            bringToEnd(*item);
    }

    void insertAt(ListItem* item, int index)
    {
        if (!isFree(item))
            return;
        expect(*item, index);
        bringIn(Row(item), [this, index](ListItemPrivateIfc* half) {
            if (mBox)
                mBox->insertAt(half, index);
        });
    }

    /// Gives the row at an index to the caller; null where there is none, or where it has gone or has been handed on
    /// meanwhile.
    ListItem* removeAt(int index)
    {
        ListItem* item = at(index);
        if (!item)
            return nullptr;
        const bool isGiven = giveBack(Row(item), [this, index, item] {
            if (mBox)
                mBox->removeAt(index, halfOf(item));
        });
        return isGiven ? item : nullptr;
    }

    void remove(ListItem* item)
    {
        giveBack(Row(item), [this, item] {
            if (mBox)
                mBox->remove(halfOf(item));
        });
    }

    void clear()
    {
        const Step step(*this);
        loseToolkitRows();
        if (mBox)
            mBox->clear();
        if (!step)
            return;
        // A row that has come in the notice goes with the rest, and so does what the glass has of it.
        const bool haveCome = at(0) != nullptr;
        deleteAll();
        if (step && haveCome && mBox)
            mBox->generateDisplayChangedEvent();
    }

    // Parts of steps

    /// As append(), of a row that is free or expected.
    void bringToEnd(ListItem& item)
    {
        expect(item, INT_MAX);
        bringIn(Row(&item), [this](ListItemPrivateIfc* half) {
            if (mBox)
                mBox->append(half);
        });
    }

    /// Puts an expected row in the place of another one, whose half is `before`. If that was current, it becomes
    /// current.
    void exchange(int index, ListItemPrivateIfc* before, const Row& row)
    {
        const Step step(*this);
        Box* box = mBox.get();
        const bool wasCurrent = box && box->getSelectedIndex() == index;
        // Not remove(), which may take a list without rows off the screen.
        if (box)
            box->removeAt(index, before);
        if (!step)
            return;
        bringIn(row, [this, box, &row, wasCurrent, &step](ListItemPrivateIfc* half) {
            if (!box)
                return;
            box->insertAt(half, indexOf(row));
            if (step && wasCurrent && indexOf(row) >= 0)
                makeCurrent(*box, half, indexOf(row));
        });
    }

    /// Forgets the rows that have died behind the loop's end, and takes them off the glass.
    void forgetDead()
    {
        // With the halves go their rows of the toolkit.
        if (HeldRows::forgetDead())
            deleteKeptHalves();
    }

    void rowChanged(ListItem& row, ListItemPrivateIfc* before) override
    {
        const Row changed(&row);
        const int index = indexOf(changed);
        if (index < 0)
            return;
        expect(row, index);
        exchange(index, before, changed);
    }

protected:
    void takeOut(int index, ListItemPrivateIfc* half) override
    {
        if (mBox)
            mBox->removeAt(index, half);
    }

private:
    /// A box whose current row and selected row are not one hears of both; setSelected() tells the display.
    static void makeCurrent(Box& box, ListItemPrivateIfc* half, int index)
    {
        box.setSelectedIndex(index);
        if constexpr (requires { box.setSelected(half); })
            box.setSelected(half);
    }

    const std::unique_ptr<Box>& mBox;
};

}
