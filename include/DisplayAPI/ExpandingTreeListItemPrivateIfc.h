#pragma once

class ExpandingListItemBaseMEG;

namespace DisplayAPI {

/// The half of an item of an expanding list, as the list's half sees it. Threads: GUI thread only.
class ExpandingTreeListItemPrivateIfc {
public:
    virtual ~ExpandingTreeListItemPrivateIfc() = default;

    /// The toolkit's row; null for an item that shows none.
    virtual ExpandingListItemBaseMEG* getWidget() = 0;

    /// The row belongs to the toolkit's list from now on.
    virtual void releaseOwnership() = 0;
    virtual void gainOwnership() = 0;
};

}
