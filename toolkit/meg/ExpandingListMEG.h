#pragma once

#include "Export.h"
#include "UString.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxWithTitleMEG.h"

#include <vector>

class ExpandingListItemBaseMEG;

/// A branch row: a row below a top-level row of an expanding list. It stands in the list only while the highlight
/// is on it, on its top-level row, or on another branch of that.
///
/// Ownership: the top-level row's, wherever the branch row stands.
class TOOLKIT_EXPORT ExpandingListChildBaseMEG : public VantoListBoxItemMEG {
public:
    /// What a top-level row shows in front of its text: 4 a check box, 5 to 7 the icon of a kind of forwarding.
    enum IconType : int {};

    explicit ExpandingListChildBaseMEG(const UString& text = UString());
    ~ExpandingListChildBaseMEG() override;

    int getItemType() const override { return ExpandingRow; }

    /// Replaces the text of this row alone.
    virtual void setMainText(const UString& text) { setText(text); }

    /// The row to which this branch belongs; null for none.
    ExpandingListItemBaseMEG* topLevelRow() const { return mTopLevelRow; }

    bool isChoosable() const override;
    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

private:
    friend class ExpandingListItemBaseMEG;

    ExpandingListItemBaseMEG* mTopLevelRow = nullptr; // which outlives it
};

/// A top-level row of an expanding list. A list of it unfolds its branch rows while the highlight is among them.
///
/// Ownership: the list's while it stands there; the row owns its branch rows.
class TOOLKIT_EXPORT ExpandingListItemBaseMEG : public VantoListBoxItemMEG {
public:
    explicit ExpandingListItemBaseMEG(const UString& text, bool readOnly = false);
    ~ExpandingListItemBaseMEG() override;

    int getItemType() const override { return ExpandingRow; }

    /// A number by which the screen text tells the kinds of rows apart.
    virtual int kind() const { return 0; }

    /// A branch row, null outside.
    virtual ExpandingListChildBaseMEG* branchRow(int index) const;
    int branchCount() const { return static_cast<int>(mBranches.size()); }

protected:
    /// Adds a branch row at the end, and unfolds it where the others are.
    void addBranch(ExpandingListChildBaseMEG* branch);

    /// Deletes the branch rows from `first` on. A highlight on one of them goes to the row that is last then.
    void removeBranches(int first);

private:
    friend class ExpandingListChildBaseMEG;

    void forget(const ExpandingListChildBaseMEG* branch);

    std::vector<ExpandingListChildBaseMEG*> mBranches;
};

/// A list whose rows unfold: below the top-level row that has the highlight stand its branch rows.
///
/// A user's move that folds or unfolds rows raises BranchesFolded behind RowMoved. Whoever else moves the highlight,
/// or changes rows, folds and unfolds silently. Right of the title stands which row of how many is current.
/// Threads: GUI thread only.
/// Ownership, Errors: as VantoListBoxMEG.
class TOOLKIT_EXPORT ExpandingListMEG : public VantoListBoxWithTitleMEG {
public:
    ExpandingListMEG();

    // Top-level rows

    /// Adds a row at the end.
    void addTopLevelItem(ExpandingListItemBaseMEG* row);

    /// Deletes all rows.
    void clear();

    /// The row that has the highlight, on itself or on one of its branches; null without one.
    ExpandingListItemBaseMEG* currentTopLevelItem() const;

    /// The index among the top-level rows, -1 for a row that is not here.
    int indexOfTopLevelItem(const ExpandingListItemBaseMEG* row) const;

    /// The top-level row at an index, null outside.
    ExpandingListItemBaseMEG* topLevelItem(int index) const;
    int topLevelCount() const;

    // Overrides

    void event(UEvent* event) override;

protected:
    UString titleSuffix() const override;
};

/// The row of a kind of call forwarding: a check box or an icon, its name, and below it where the calls go.
///
/// The branch text takes one branch row, and a second one if it does not fit into the first.
class TOOLKIT_EXPORT CallForwardListItemMEG : public ExpandingListItemBaseMEG {
public:
    using IconType = ExpandingListChildBaseMEG::IconType;

    /// A row of kind 4. It has a check box, unless the icon type is one of forwarding (5 to 7).
    CallForwardListItemMEG(IconType iconType, const UString& text, bool readOnly);

    /// A row of kind 0, which is text alone.
    explicit CallForwardListItemMEG(const UString& text);

    int kind() const override { return mKind; }
    IconType iconType() const { return mIconType; }

    // Check mark

    void check() { setChecked(true); }
    void uncheck() { setChecked(false); }
    void swapCheck() { setChecked(!mIsChecked); }
    bool checked() const { return mIsChecked; }

    /// Shows that calls are forwarded: the icon of a row with an icon type of forwarding. A check box gives way.
    void setCFIconVisible(bool visible);

    /// True while setCFIconVisible() has been set.
    bool firstDisplayFlag() const { return mIsIconShown; }

    /// True for the icon types of forwarding.
    bool secondDisplayFlag() const { return mIconType >= FirstForwarding && mIconType <= LastForwarding; }

    // Texts

    virtual void setMainText(const UString& text) { setText(text); }

    /// Replaces the text below the row; an empty one takes the branch rows away.
    virtual void setBranchText(const UString& text);

    /// How the branch texts are to be read; always 1.
    int branchMode() const { return 1; }

    /// The texts 1 to 5: 1 and 4 are the branch text, as the first branch row has it; the others are empty.
    UString branchText(int number) const;

    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

private:
    static constexpr int FirstForwarding = 5;
    static constexpr int LastForwarding = 7;

    void setChecked(bool checked);

    int mKind;
    IconType mIconType;
    bool mIsChecked = false;
    bool mIsIconShown = false;
};
