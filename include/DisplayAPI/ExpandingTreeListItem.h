#pragma once

#include <DisplayAPI/Numbered.h>
#include <DisplayAPI/Widget.h>

#include <string>

namespace DisplayAPI {

class ExpandingTreeList;
class ExpandingTreeListItemPrivateIfc;

/// What stands in an ExpandingTreeList: a row with branch rows below it.
///
/// Threads: any, but for getPrivateImpl().
/// Ownership: an item belongs to the application until a list takes it. One that is deleted while it stands in a list
/// leaves that list.
class DISPLAYAPI_EXPORT ExpandingTreeListItem : public Widget, public Numbered<ExpandingTreeListItem> {
public:
    ~ExpandingTreeListItem() override;

    /// The half on the GUI thread; null until it has been made. Threads: GUI thread.
    virtual ExpandingTreeListItemPrivateIfc* getPrivateImpl() = 0;

    /// Reads the texts again. Threads: GUI thread.
    virtual void localeChanged(std::string locale) = 0;

    /// The list that has the item; null while it is the application's. Threads: GUI thread.
    ExpandingTreeList* list() const { return mList; }

protected:
    ExpandingTreeListItem() = default;

    /// The deletion of an item's half on the GUI thread: retires the handle, and takes the row off its list, which
    /// tells of it. What is left is to delete the half, which the caller names: a destructor reaches no override. A
    /// class of the application's own that has a half calls it first in its destructor.
    void retireItem(ExpandingTreeListItemPrivateIfc* half);

private:
    friend class ExpandingTreeList;
    friend class Road;

    ExpandingTreeList* mList = nullptr;
};

}
