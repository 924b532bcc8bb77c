#pragma once

#include <DisplayAPI/List.h>

#include "HeldDialer.h"
#include "HeldRows.h"

namespace DisplayAPI {

/// The rows of a list, and what they ask of its half. Threads: GUI thread.
class List::Rows final : public HeldRows {
public:
    explicit Rows(List& list)
        : mList(list)
    {
    }

    /// Puts an expected row in the place of another one, whose half is `before`. If that was current, it becomes
    /// current.
    void exchange(int index, ListItemPrivateIfc* before, const Row& row);

    /// Forgets the rows that have died behind the loop's end, and takes them off the glass.
    void forgetDead();

    void rowChanged(ListItem& row, ListItemPrivateIfc* before) override;

protected:
    void takeOut(int index, ListItemPrivateIfc* half) override;

private:
    List& mList;
};

}
