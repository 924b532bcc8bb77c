#pragma once

#include <DisplayAPI/Living.h>

namespace DisplayAPI {

class ListItem;
class ListItemPrivateIfc;

/// Who holds a row: a list, or the row of a conference. A row has one holder at most, which it tells of its fate.
/// Threads: GUI thread only.
class RowHolder {
public:
    /// A row is being deleted, and counts as dead already; `half` is its half, null if that has gone before it.
    virtual void rowDies(const Living<ListItem>& row, ListItemPrivateIfc* half) = 0;

    /// A row has got another half, and so another row of the toolkit. `before` still lives.
    virtual void rowChanged(ListItem& row, ListItemPrivateIfc* before) = 0;

    /// Gives a row up, since another holder takes it over. The display may tell of it: ask behind it whether the row
    /// lives and has no holder.
    virtual void letGo(ListItem& row) = 0;

protected:
    ~RowHolder() = default;
};

}
