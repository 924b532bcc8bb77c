#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/Tree.h>

#include <UAgent.h>

namespace DisplayAPI {

class TreeNodePrivateIfc;

/// The half of a tree on the GUI thread, as its handle sees it: an operation for each request.
///
/// An operation that draws the level ends with the display's notice, in which the subscriber may delete the tree: a
/// caller who goes on asks first whether it still lives.
///
/// Threads: GUI thread only, but for the listeners.
/// Ownership: the handle owns it. It owns its widget while no tree of the toolkit does, and the translation of its
/// name; nodes belong to their handles, listeners to the application.
/// Errors: when the widget has been deleted nothing is drawn and nobody told.
class DISPLAYAPI_EXPORT TreePrivateIfc : public DisplayablePrivate, public UAgent {
public:
    /// Adds a row at the end of the top level and draws. A node that stands in a tree already is ignored.
    virtual void addNode(TreeNodePrivateIfc* node) = 0;

    /// The nodes in front of the current row in a walk through the whole tree, Back rows left out.
    virtual int getSelectedIndex() = 0;

    /// A node that is no row of the level that is shown and not on the user's path is ignored.
    virtual void expandNode(TreeNodePrivateIfc* node, bool select) = 0;
    virtual void collapseNode(TreeNodePrivateIfc* node) = 0;

    /// Stored only.
    virtual void collapseTreeToLevel(int level) = 0;

    // Name and icon. None of them draws

    virtual void setTreeName(std::string name) = 0;

    /// Null is an empty name; the same translation again is read again.
    virtual void setTreeName(TranslationInfo* name) = 0;
    virtual void setTreeIcon(Tree::TreeIcon icon) = 0;

    /// A row of the level that is shown.
    virtual void setSelectedIndex(int index) = 0;
};

}
