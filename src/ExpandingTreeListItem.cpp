#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/ExpandingTreeListItem.h>
#include <DisplayAPI/ExpandingTreeListItemPrivateIfc.h>

#include <ExpandingListMEG.h>

#include <utility>

namespace DisplayAPI {

ExpandingTreeListItem::~ExpandingTreeListItem()
{
    // An item of the application's own, perhaps. Behind the loop its list finds out when it asks.
    if (isGuiThread())
        retireItem(nullptr);
    leave();
}

void ExpandingTreeListItem::retireItem(ExpandingTreeListItemPrivateIfc* half)
{
    retire();
    leave();
    if (half) {
        if (ExpandingListItemBaseMEG* row = half->getWidget())
            row->setParent(nullptr);
        half->gainOwnership();
    }
    if (ExpandingTreeList* list = std::exchange(mList, nullptr))
        list->itemHasDied();
}

}
