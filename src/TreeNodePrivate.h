#pragma once

#include <DisplayAPI/TreeNodePrivateIfc.h>

#include "TranslationHolder.h"

#include <string>
#include <vector>

namespace DisplayAPI {

class TreeNodePrivate;
class TreePrivate;

/// The rows of a level, the Back row as the last.
using TreeRows = std::vector<TreeNodePrivate*>;

/// A node on the GUI thread: a row with its text, and the rows of the level behind it.
///
/// Rows, and who has them, know of each other: whoever dies first leaves the other.
class TreeNodePrivate final : public TreeNodePrivateIfc {
public:
    explicit TreeNodePrivate(const std::string& text);
    explicit TreeNodePrivate(TranslationInfo* text);
    ~TreeNodePrivate() override;

    // Texts

    std::string getText() override { return mText; }

    /// The translation without prefix and suffix; empty for a plain text.
    std::string getBasicText() const { return mInfo.string(); }
    TranslatorIfc* getTranslator() const { return mInfo.translator(); }
    void localeChanged(std::string locale) override;

    // Children

    void addNode(TreeNodePrivateIfc* child) override;
    void removeBack(bool removed) override { mHasRemovedBack = removed; }
    bool hasRemovedBack() override { return mHasRemovedBack; }
    const TreeRows& children() const { return mChildren; }

    /// The rows behind this one. `recursive` counts theirs too: of those that are open, or with `withCollapsed` of all.
    int getChildCount(bool recursive, bool withCollapsed) const;
    static int countRows(const TreeRows& rows, bool recursive, bool withCollapsed);

    /// Calls visit(node) for the node and all below it, each in front of its children.
    template <typename Visit>
    void walk(const Visit& visit)
    {
        visit(*this);
        for (TreeNodePrivate* child : mChildren)
            child->walk(visit);
    }

    /// True for a row that the library made, and for one that reads "Back?" or as the label that is handed in.
    bool isBackRow(const std::string& label) const;

    // State

    /// An open branch is one that the user is in.
    bool isCollapsed() const { return mIsCollapsed; }
    void expand();
    void collapse() { mIsCollapsed = true; }
    void setProtected(bool isProtected) override { mIsProtected = isProtected; }
    bool getProtected() override { return mIsProtected; }
    void enableContextMenuArrow(bool enabled) override { mHasContextArrow = enabled; }
    bool hasContextArrow() const { return mHasContextArrow; }
    void setInactive(bool inactive) override { mIsInactive = inactive; }
    bool getInactive() const { return mIsInactive; }

    // Place

    /// Makes it a row of the top level; null takes it out.
    void setTree(TreePrivate* tree) { mTree = tree; }
    bool isPlaced() const { return mTree || mParent; }

    /// Leaves the level of its parent.
    void leaveParent();

    /// The branch that the row belongs to; null at the top.
    TreeNodePrivate* parent() const { return mParent; }

    // Ownership: there is no widget to own

    UWidget* getWidget() override { return nullptr; }
    void releaseOwnership() override { mIsOwned = false; }
    void gainOwnership() override { mIsOwned = true; }
    bool hasOwnership() const { return mIsOwned; }

private:
    void addBackItem();
    void removeBackItem();
    TreePrivate* tree() const;

    bool mIsOwned = true;
    bool mHasContextArrow = false;
    bool mIsInactive = false;
    bool mIsProtected = false;
    bool mIsCollapsed = true;
    bool mHasRemovedBack = false;
    bool mIsMadeByLibrary = false; // a Back row, whatever it reads
    TreeRows mChildren;
    std::string mText;
    TranslationHolder mInfo;
    TreeNodePrivate* mParent = nullptr;
    TreePrivate* mTree = nullptr; // of a row of the top level
};

}
