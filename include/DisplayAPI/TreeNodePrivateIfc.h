#pragma once

#include <DisplayAPI/Export.h>

#include <string>

class UWidget;

namespace DisplayAPI {

/// The half of a node on the GUI thread, as its handle sees it.
///
/// Threads: GUI thread only, but for getText() and setInactive().
/// Ownership: the handle owns it. It owns its translation and the Back row at the end of its children, which belong to
/// their own handles.
class DISPLAYAPI_EXPORT TreeNodePrivateIfc {
public:
    /// The node leaves its tree, which is drawn anew.
    virtual ~TreeNodePrivateIfc() = default;

    virtual std::string getText() = 0;

    /// Adds a child before the Back row. A node that stands in a tree already is ignored.
    virtual void addNode(TreeNodePrivateIfc* child) = 0;
    virtual void setInactive(bool inactive) = 0;
    virtual void enableContextMenuArrow(bool enabled) = 0;

    /// Null: a node has no widget.
    virtual UWidget* getWidget() = 0;
    virtual void releaseOwnership() = 0;
    virtual void gainOwnership() = 0;

    /// Reads its own text and those of all below it again.
    virtual void localeChanged(std::string locale) = 0;
    virtual void setProtected(bool isProtected) = 0;
    virtual bool getProtected() = 0;

    /// Counts at the next addNode().
    virtual void removeBack(bool removed) = 0;
    virtual bool hasRemovedBack() = 0;
};

}
