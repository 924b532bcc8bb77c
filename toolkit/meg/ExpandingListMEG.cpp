#include "ExpandingListMEG.h"

#include "TextCells.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxMEG.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

constexpr std::uint16_t ForwardedIcon = 8;
constexpr int IconColumns = 2;
constexpr int BranchIndent = 2;
constexpr int BranchColumns = UPainter::Columns - BranchIndent - 1; // the last cell is the scroll mark's
constexpr int CheckBoxKind = 4;

/// The rows of an expanding list: all top-level rows in order, and below one of them, the unfolded one, its
/// branch rows.
class ExpandingListBox : public VantoListBoxMEG {
public:
    /// The box in which a row stands, or null.
    static ExpandingListBox* of(const VantoListBoxItemMEG& row)
    {
        return dynamic_cast<ExpandingListBox*>(row.parentWidget());
    }

    ExpandingListItemBaseMEG* topLevelRow(const VantoListBoxItemMEG* row) const
    {
        if (const auto* branch = dynamic_cast<const ExpandingListChildBaseMEG*>(row)) {
            ExpandingListItemBaseMEG* top = branch->topLevelRow();
            return top && top->parentWidget() == this ? top : nullptr;
        }
        return dynamic_cast<ExpandingListItemBaseMEG*>(const_cast<VantoListBoxItemMEG*>(row));
    }

    int topLevelCount() const { return count() - unfoldedCount(); }

    ExpandingListItemBaseMEG* topLevelItem(int index) const
    {
        const int place = mUnfolded && index > indexOf(mUnfolded) ? index + unfoldedCount() : index;
        return index < 0 ? nullptr : dynamic_cast<ExpandingListItemBaseMEG*>(item(place));
    }

    int indexOfTopLevelItem(const ExpandingListItemBaseMEG* row) const
    {
        const int place = indexOf(row);
        return mUnfolded && place > indexOf(mUnfolded) ? place - unfoldedCount() : place;
    }

    /// Brings the branch rows in accord with the highlight.
    void settle()
    {
        if (std::exchange(mIsSettling, true))
            return;
        ExpandingListItemBaseMEG* top = nullptr;
        do {
            top = topLevelRow(currentItem());
            if (top != mUnfolded)
                fold();
            mUnfolded = top;
            unfold();
        } while (topLevelRow(currentItem()) != top); // the highlight was on a branch of a row that has left
        mIsSettling = false;
        refresh();
    }

    /// A top-level row has deleted its branches and is about to die.
    void forget(const ExpandingListItemBaseMEG* row)
    {
        if (row == mUnfolded)
            mUnfolded = nullptr;
    }

    /// Whether rows have folded or unfolded since the key in hand came, or since the last call.
    bool takeFolded() { return std::exchange(mHasFolded, false); }

    bool keyEvent(UKeyEvent* key) override
    {
        mHasFolded = false;
        return VantoListBoxMEG::keyEvent(key);
    }

    void childLeft(UWidget* child) override
    {
        VantoListBoxMEG::childLeft(child);
        if (child != mUnfolded)
            return;
        // The row moves elsewhere, and takes its branches with it.
        mIsSettling = true;
        fold();
        mUnfolded = nullptr;
        mIsSettling = false;
        settle();
    }

protected:
    void currentChanged() override { settle(); }

private:
    bool isHere(const ExpandingListChildBaseMEG* branch) const { return branch && branch->parentWidget() == this; }

    int unfoldedCount() const
    {
        int count = 0;
        for (int index = 0; mUnfolded && index < mUnfolded->branchCount(); ++index)
            count += isHere(mUnfolded->branchRow(index)) ? 1 : 0;
        return count;
    }

    void fold()
    {
        for (int index = mUnfolded ? mUnfolded->branchCount() - 1 : -1; index >= 0; --index) {
            ExpandingListChildBaseMEG* branch = mUnfolded->branchRow(index);
            if (!isHere(branch))
                continue;
            removeItem(branch);
            branch->setParent(mUnfolded);
            mHasFolded = true;
        }
    }

    void unfold()
    {
        for (int index = 0; mUnfolded && index < mUnfolded->branchCount(); ++index) {
            ExpandingListChildBaseMEG* branch = mUnfolded->branchRow(index);
            if (isHere(branch))
                continue;
            insertItem(branch, indexOf(mUnfolded) + 1 + index);
            mHasFolded = true;
        }
    }

    ExpandingListItemBaseMEG* mUnfolded = nullptr;
    bool mIsSettling = false;
    bool mHasFolded = false;
};

ExpandingListBox& box(const ExpandingListMEG& list)
{
    return static_cast<ExpandingListBox&>(*list.list());
}

/// A branch row of a text that goes on in the next one.
class ContinuedBranch : public ExpandingListChildBaseMEG {
public:
    using ExpandingListChildBaseMEG::ExpandingListChildBaseMEG;

    UString getDisplayedText() const override { return firstLine(getText()); }

    static UString firstLine(const UString& text)
    {
        // What lies farther behind has no influence on the first line, however long the text is.
        const UString head = text.mid(0, TextCells::forward(text, 0, 2 * BranchColumns));
        const std::vector<UString> lines = TextCells::lines(head, BranchColumns);
        return lines.empty() ? UString() : lines.front();
    }
};

}

// Branch rows

ExpandingListChildBaseMEG::ExpandingListChildBaseMEG(const UString& text)
    : VantoListBoxItemMEG(text)
{
}

ExpandingListChildBaseMEG::~ExpandingListChildBaseMEG()
{
    if (mTopLevelRow)
        mTopLevelRow->forget(this);
}

bool ExpandingListChildBaseMEG::isChoosable() const
{
    return VantoListBoxItemMEG::isChoosable() && (!mTopLevelRow || mTopLevelRow->isChoosable());
}

void ExpandingListChildBaseMEG::paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const
{
    VantoListBoxItemMEG::paintRow(painter, rowLine, line, column + BranchIndent, columns - BranchIndent);
}

// Top-level rows

ExpandingListItemBaseMEG::ExpandingListItemBaseMEG(const UString& text, bool readOnly)
    : VantoListBoxItemMEG(text, 0, readOnly)
{
}

ExpandingListItemBaseMEG::~ExpandingListItemBaseMEG()
{
    while (!mBranches.empty())
        delete mBranches.back();
    if (ExpandingListBox* list = ExpandingListBox::of(*this))
        list->forget(this);
}

ExpandingListChildBaseMEG* ExpandingListItemBaseMEG::branchRow(int index) const
{
    return index >= 0 && index < branchCount() ? mBranches[static_cast<std::size_t>(index)] : nullptr;
}

void ExpandingListItemBaseMEG::addBranch(ExpandingListChildBaseMEG* branch)
{
    if (!branch || branch->mTopLevelRow)
        return;
    branch->mTopLevelRow = this;
    mBranches.push_back(branch);
    branch->setParent(this);
    if (ExpandingListBox* list = ExpandingListBox::of(*this))
        list->settle();
}

void ExpandingListItemBaseMEG::removeBranches(int first)
{
    for (int index = branchCount() - 1; index >= std::max(first, 0); --index) {
        ExpandingListChildBaseMEG* branch = branchRow(index);
        ExpandingListBox* list = ExpandingListBox::of(*branch);
        if (list && list->currentItem() == branch)
            list->setCurrentIndex(list->currentIndex() - 1);
        delete branch;
    }
}

void ExpandingListItemBaseMEG::forget(const ExpandingListChildBaseMEG* branch)
{
    std::erase(mBranches, branch);
}

// The list

ExpandingListMEG::ExpandingListMEG()
    : VantoListBoxWithTitleMEG(new ExpandingListBox)
{
}

void ExpandingListMEG::addTopLevelItem(ExpandingListItemBaseMEG* row)
{
    list()->addItem(row);
}

void ExpandingListMEG::clear()
{
    list()->clear();
}

ExpandingListItemBaseMEG* ExpandingListMEG::currentTopLevelItem() const
{
    return box(*this).topLevelRow(list()->currentItem());
}

int ExpandingListMEG::indexOfTopLevelItem(const ExpandingListItemBaseMEG* row) const
{
    return box(*this).indexOfTopLevelItem(row);
}

ExpandingListItemBaseMEG* ExpandingListMEG::topLevelItem(int index) const
{
    return box(*this).topLevelItem(index);
}

int ExpandingListMEG::topLevelCount() const
{
    return box(*this).topLevelCount();
}

void ExpandingListMEG::event(UEvent* event)
{
    const bool hasFolded = event->type == EventType::RowMoved && box(*this).takeFolded();
    if (relay(*event) && hasFolded)
        emit(EventType::BranchesFolded, this);
}

UString ExpandingListMEG::titleSuffix() const
{
    const int current = list()->currentIndex();
    return current < 0 ? UString() : UString(std::to_string(current + 1) + "/" + std::to_string(list()->count()));
}

// Call forwarding

CallForwardListItemMEG::CallForwardListItemMEG(IconType iconType, const UString& text, bool readOnly)
    : ExpandingListItemBaseMEG(text, readOnly)
    , mKind(CheckBoxKind)
    , mIconType(iconType)
{
    setCheckbox(!secondDisplayFlag());
}

CallForwardListItemMEG::CallForwardListItemMEG(const UString& text)
    : ExpandingListItemBaseMEG(text)
    , mKind(0)
    , mIconType(IconType{})
{
}

void CallForwardListItemMEG::setChecked(bool checked)
{
    mIsChecked = checked;
    refresh();
}

void CallForwardListItemMEG::setCFIconVisible(bool visible)
{
    mIsIconShown = visible;
    refresh();
}

void CallForwardListItemMEG::setBranchText(const UString& text)
{
    std::size_t rest = ContinuedBranch::firstLine(text).length();
    while (rest < text.length() && (text[rest] == ' ' || text[rest] == '\n'))
        ++rest;
    // Rows that stay are not made anew, so that a highlight on them stays too.
    const int rows = text.isEmpty() ? 0 : rest < text.length() ? 2 : 1;
    removeBranches(rows);
    if (rows > 0 && branchCount() == 0)
        addBranch(new ContinuedBranch);
    if (rows > 1 && branchCount() == 1)
        addBranch(new ExpandingListChildBaseMEG);
    if (rows > 0)
        branchRow(0)->setMainText(text);
    if (rows > 1)
        branchRow(1)->setMainText(text.mid(rest));
}

UString CallForwardListItemMEG::branchText(int number) const
{
    const ExpandingListChildBaseMEG* branch = number == 1 || number == 4 ? branchRow(0) : nullptr;
    return branch ? branch->getText() : UString();
}

void CallForwardListItemMEG::paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const
{
    static const UString checked("[x] ");
    static const UString unchecked("[ ] ");
    int taken = 0;
    if (secondDisplayFlag()) {
        painter.icon(line, column, mIsIconShown ? ForwardedIcon : std::uint16_t{0});
        taken = IconColumns; // also where the icon is not shown, so that the text keeps its place
    } else if (isCheckboxIcon() && !mIsIconShown) {
        taken = painter.text(line, column, mIsChecked ? checked : unchecked, columns);
    }
    ExpandingListItemBaseMEG::paintRow(painter, rowLine, line, column + taken, columns - taken);
}
