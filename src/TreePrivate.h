#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/TreePrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"
#include "TreeNodePrivate.h"

#include <TwoLineDisplay.h>
#include <Types.h>

#include <cstdint>
#include <string>
#include <vector>

namespace DisplayAPI {

/// The tree on the GUI thread: the levels that the user walks, drawn on a TwoLineDisplay.
///
/// The user's place is a path: the branches that are open, from the top down, and the current row of the level behind
/// the last of them. Its flat index is its place in a walk through the whole tree, Back rows and closed branches
/// included, in which a node stands in front of its children.
class TreePrivate final : public TreePrivateIfc, public GUIEventIfc {
public:
    explicit TreePrivate(Tree* parent);
    ~TreePrivate() override;

    Tree* getParent() const { return mParent; }

    // Nodes

    void addNode(TreeNodePrivateIfc* node) override;
    int getChildCount(bool recursive, bool withCollapsed) const;

    /// The node with this flat index; null outside.
    TreeNodePrivate* getChildNodeAtIndex(int index) const;

    /// A node of this tree is about to go.
    void nodeDies(TreeNodePrivate& node);

    // The user's place

    int getSelectedIndex() override;
    int getSelectedIndexIncludeBack() const;
    void setSelectedIndex(int index) override;

    /// The node of the current row; null on an empty level.
    TreeNodePrivate* selectedNode() const;

    /// The number of branches that are open.
    int depth() const { return static_cast<int>(mPath.size()); }
    void expandNode(TreeNodePrivateIfc* node, bool select) override;
    void collapseNode(TreeNodePrivateIfc* node) override;
    void collapseTreeToLevel(int level) override { mCollapseLevel = level; }

    // Name and icon

    void setTreeName(std::string name) override { mName = mNameInfo.show(name); }
    void setTreeName(TranslationInfo* name) override { mName = mNameInfo.show(name); }
    void setTreeIcon(Tree::TreeIcon icon) override;
    void localeChanged(std::string locale);

    // Keys. Each answers true but setEventHandler(), which does nothing

    bool onLeft(const UKeyEvent* key) override;
    bool onRight(const UKeyEvent* key) override;
    bool onUp(const UKeyEvent* key) override;
    bool onDown(const UKeyEvent* key) override;
    bool onOK(const UKeyEvent* key) override;
    bool setEventHandler(GUIEventIfc* handler) override;
    bool keyEvent(UKeyEvent* key) override;
    void event(UEvent* event) override;

    // Listeners. One that is added twice is told twice, and stays until it leaves or dies

    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void clearCommandListeners() override { }

    // Life on the screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override;

    /// Shows the level and its current row, and tells of it.
    void draw();

    // Screen text, and its pieces

    using DisplayablePrivate::serialise;
    std::string serialise() override;
    std::string serialiseTopLine() const;
    std::string serialiseTopLineText() const;
    std::string serialiseTopLineIconIfRequierd() const;
    std::string serialiseBottomLine() const;
    std::string serialiseBottomLineText() const;
    std::string serialiseScrollArrowsIfRequired() const;

private:
    /// A branch that the user is in, and the row of the level above that was current when it was entered.
    struct OpenBranch {
        TreeNodePrivate* node;
        int savedSelection;
    };

    template <typename Visit>
    void walkToSelection(const Visit& visit) const;
    const TreeRows& level() const;
    int lastRow() const { return static_cast<int>(level().size()) - 1; }
    bool isOnPath(const TreeNodePrivate* node) const;
    bool move(int state, bool& hasJumped, int next, int end);
    void selectAndDraw(int row);
    void closeLastBranch();
    void collapseOneNode(TreeNodePrivate* node);
    void okPressedOnLeafNode();
    void rightPressedOnLeafNode();
    void leaveLevel(TreeNodePrivate& node);
    void drawName();
    void drawRow();
    void drawArrows();

    Command mRightCommand{"", Command::Right};
    Command mOkCommand{"", Command::Select};
    Command mBackCommand{"", Command::Back};
    TwoLineDisplay* mWidget = new TwoLineDisplay;
    Tree* mParent;
    std::string mName;
    TranslationHolder mNameInfo;
    std::uint16_t mTreeIcon = 0;
    TreeRows mChildren; // the top level
    std::vector<OpenBranch> mPath;
    int mSelected = -1;
    int mCollapseLevel = 0; // nothing here reads it
    bool mHasJumpedUp = false;
    bool mHasJumpedDown = false;
    OwnershipDelegate<TwoLineDisplay> mOwnership{&mWidget};
};

}
