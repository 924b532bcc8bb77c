#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/ExpandingTreeList.h>

#include <UAgent.h>

namespace DisplayAPI {

class ExpandingTreeListItemPrivateIfc;

/// The expanding list on the GUI thread, as its handle sees it. It knows the halves of the items, and no items.
///
/// Threads: GUI thread only, but for addCommandListener().
/// Errors: when the widget has been deleted by a tree that owned it, every operation is without effect.
class DISPLAYAPI_EXPORT ExpandingTreeListPrivateIfc : public DisplayablePrivate, public UAgent {
public:
    /// Hands the item's row, if it has one, to the toolkit's list, which owns it from then on.
    virtual void append(ExpandingTreeListItemPrivateIfc* item) = 0;

    // Title: it is forgotten, or taken over

    virtual void setTitle(const std::string& title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;

    /// Deletes the toolkit's rows.
    virtual void clear() = 0;

    /// The top-level row that has the highlight on itself or below, -1 for none.
    virtual int getSelectedIndex() = 0;
    virtual void setRightArrowEqualsOK(bool equals) = 0;
    virtual void localeChanged(std::string locale) = 0;
    virtual void setReadonly(int index, bool readOnly) = 0;

    /// Without effect, both.
    virtual void align() = 0;
    virtual void unalign() = 0;

    void event(UEvent* event) override = 0;
};

}
