#include "VantoListBoxMEG.h"

#include "TextBlock.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxWithTitleMEG.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int GlassRight = 161;
constexpr int GlassBottom = 30;
constexpr int SecondLineTop = 15;
constexpr int RowHeight = 15;

// Rows beyond this are all parked at one place, since a corner has 16 bits only.
constexpr int FarthestRow = 2000;

UString& sharedBackText()
{
    static UString text("Back?");
    return text;
}

UString& sharedDeleteText()
{
    static UString text("Delete?");
    return text;
}

/// The built-in row of addDeleteItem(). It asks for its text each time, so that it follows the locale.
class DeleteItem : public VantoListBoxItemMEG {
public:
    UString getText() const override { return sharedDeleteText(); }
    int getItemType() const override { return DeleteRow; }
};

/// The rectangle of a row whose first line of pixels is `top`.
URect rowAt(int top)
{
    return URect(0, top, GlassRight, top + RowHeight - 1);
}

/// An icon word comes with or without a line feed at its end.
std::string iconLine(const char* key, std::string word)
{
    while (!word.empty() && word.back() == '\n')
        word.pop_back();
    return word.empty() ? std::string() : key + TextBlock::oneLine(word) + "\n";
}

}

VantoListBoxMEG::VantoListBoxMEG(UWidget* parent)
    : UListWidget(parent)
{
    setRect(URect(0, 0, GlassRight, GlassBottom));
}

VantoListBoxMEG::~VantoListBoxMEG() = default;

// Rows

void VantoListBoxMEG::addItem(VantoListBoxItemMEG* row)
{
    insertItem(row, count());
}

void VantoListBoxMEG::insertItem(VantoListBoxItemMEG* row, int index)
{
    if (!row || indexOf(row) >= 0)
        return;
    row->setParent(this);
    if (row->parentWidget() != this)
        return;
    index = std::clamp(index, 0, count());
    if (index == 0)
        --mFrontPosition;
    mRows.insert(mRows.begin() + index, row);
    row->mPositionHint = mFrontPosition + index;
    if (index <= mTop && count() > 1)
        ++mTop;
    if (index <= mCurrent)
        ++mCurrent;
    if (count() == 1)
        makeCurrent(0);
    rowAdded(row);
    refresh();
    tellCurrent();
}

void VantoListBoxMEG::removeItem(VantoListBoxItemMEG* row)
{
    const int index = indexOf(row);
    if (index < 0)
        return;
    dropRow(index);
    mLeaving = row;
    removeWidget(row);
    mLeaving = nullptr;
    tellCurrent();
}

void VantoListBoxMEG::clear()
{
    mCurrent = -1;
    mTop = 0;
    while (!mRows.empty()) {
        VantoListBoxItemMEG* row = mRows.back();
        mRows.pop_back();
        mLeaving = row;
        delete row;
        mLeaving = nullptr;
    }
    // A row that came while another died has made itself current, and has gone with the rest.
    mCurrent = -1;
    mTop = 0;
    refresh();
    tellCurrent();
}

VantoListBoxItemMEG* VantoListBoxMEG::item(int index) const
{
    return index >= 0 && index < count() ? mRows[static_cast<std::size_t>(index)] : nullptr;
}

int VantoListBoxMEG::indexOf(const VantoListBoxItemMEG* row) const
{
    if (!row || row->parentWidget() != this || mRows.empty())
        return -1;
    // The row knows where it once stood. What has come and gone in front of it since is all that can have moved
    // it, so the search begins there and goes both ways.
    const int last = count() - 1;
    const int guess = static_cast<int>(std::clamp<std::int64_t>(row->mPositionHint - mFrontPosition, 0, last));
    for (int distance = 0; distance <= last; ++distance) {
        for (const int index : {guess - distance, guess + distance}) {
            if (item(index) != row)
                continue;
            row->mPositionHint = mFrontPosition + index;
            return index;
        }
    }
    return -1;
}

VantoListBoxItemMEG* VantoListBoxMEG::getItemByHandle(long handle) const
{
    const auto row = std::find_if(mRows.begin(), mRows.end(),
        [handle](const VantoListBoxItemMEG* entry) { return entry->getHandle() == handle; });
    return row == mRows.end() ? nullptr : *row;
}

void VantoListBoxMEG::addDeleteItem()
{
    const bool isThere = std::any_of(mRows.begin(), mRows.end(),
        [](const VantoListBoxItemMEG* row) { return row->getItemType() == VantoListBoxItemMEG::DeleteRow; });
    if (!isThere)
        addItem(new DeleteItem);
}

void VantoListBoxMEG::dropRow(int index)
{
    mRows.erase(mRows.begin() + index);
    if (index == 0)
        ++mFrontPosition;
    if (index < mTop)
        --mTop;
    if (index < mCurrent)
        --mCurrent;
    else if (index == mCurrent)
        makeCurrent(std::min(mCurrent, count() - 1));
    refresh();
}

void VantoListBoxMEG::childLeft(UWidget* child)
{
    if (child == mLeaving)
        return;
    // The row may be half destroyed: only its address tells which one it is.
    for (int front = 0, back = count() - 1; front <= back; ++front, --back) {
        for (const int index : {back, front}) {
            if (item(index) == child) {
                dropRow(index);
                tellCurrent();
                return;
            }
        }
    }
}

void VantoListBoxMEG::rowAdded(VantoListBoxItemMEG*) { }

// Current row

void VantoListBoxMEG::setCurrentIndex(int index)
{
    if (index < -1 || index >= count())
        return;
    makeCurrent(index);
    tellCurrent();
}

void VantoListBoxMEG::makeCurrent(int index)
{
    mCurrent = index;
    mTop = topIndex();
    if (VantoListBoxItemMEG* row = currentItem())
        row->mHasBackground = true;
    refresh();
}

void VantoListBoxMEG::tellCurrent()
{
    // No other row can have the address of the one told last: its going was told too.
    const VantoListBoxItemMEG* row = currentItem();
    if (row == mToldRow)
        return;
    mToldRow = row;
    currentChanged();
}

// State

void VantoListBoxMEG::enable()
{
    setEnabled(true);
}

void VantoListBoxMEG::disable()
{
    setEnabled(false);
}

void VantoListBoxMEG::showHighlightBar()
{
    mIsHighlightBarShown = true;
    refresh();
}

void VantoListBoxMEG::hideHighlightBar()
{
    mIsHighlightBarShown = false;
    refresh();
}

void VantoListBoxMEG::setReadOnly(int index, bool readOnly)
{
    if (VantoListBoxItemMEG* row = item(index))
        row->setReadonly(readOnly);
}

void VantoListBoxMEG::setScrollArrows(bool scrollArrows)
{
    mHasScrollArrows = scrollArrows;
    refresh();
}

void VantoListBoxMEG::setBackText(const UString& text)
{
    sharedBackText() = text;
}

void VantoListBoxMEG::setDeleteText(const UString& text)
{
    sharedDeleteText() = text;
}

UString VantoListBoxMEG::deleteText()
{
    return sharedDeleteText();
}

void VantoListBoxMEG::translateBack(const UString& text)
{
    mBackText = text;
    refresh();
}

UString VantoListBoxMEG::backText() const
{
    return mBackText.isEmpty() ? sharedBackText() : mBackText;
}

// Keys

UWidget* VantoListBoxMEG::focusTarget()
{
    return isEnabled() && isVisible() ? this : nullptr;
}

bool VantoListBoxMEG::keyEvent(UKeyEvent* key)
{
    if (askListener(key))
        return true;
    if (key->state() != UGlobal::KeyPressed)
        return false;
    switch (key->key()) {
    case UGlobal::KeyUp: return move(-1);
    case UGlobal::KeyDown: return move(1);
    case UGlobal::KeyOk: return choose();
    case UGlobal::KeyRight: return goRight();
    case UGlobal::KeyLeft: emit(EventType::LeftPressed, this); return true;
    default: return false;
    }
}

bool VantoListBoxMEG::askListener(UKeyEvent* key)
{
    // The widget around the list relays events only; it may have handed this very key on to the list. Where it
    // is a list with a title, the listener behind it is asked as the list's own would be.
    UAgent* agent = listener();
    if (agent && agent == parentWidget()) {
        const auto* outer = dynamic_cast<const VantoListBoxWithTitleMEG*>(parentWidget());
        agent = outer && outer->listener() != outer->parentWidget() ? outer->listener() : nullptr;
    }
    if (!agent)
        return false;
    LifeNode life(this);
    return agent->keyEvent(key) || !life.isAlive();
}

bool VantoListBoxMEG::move(int step)
{
    if (mRows.empty())
        return true;
    VantoListBoxItemMEG* row = currentItem();
    if (!row || !row->moveInside(step)) {
        const int last = count() - 1;
        const int from = mCurrent;
        const int to = step > 0 ? (from >= last ? 0 : from + 1) : (from <= 0 ? last : from - 1);
        makeCurrent(to);
        row = currentItem();
        if (!row->enterFrom(step) && to == from)
            return true;
        tellCurrent();
        row = currentItem();
    }
    refresh();
    if (row)
        emit(mMoveEvent, row, row);
    return true;
}

bool VantoListBoxMEG::choose()
{
    VantoListBoxItemMEG* row = currentItem();
    if (!row || !row->isChoosable())
        return true;
    rowChosen(row);
    refresh();
    emit(EventType::RowChosen, row, row);
    return true;
}

bool VantoListBoxMEG::goRight()
{
    if (mRightEqualsOK)
        return choose();
    VantoListBoxItemMEG* row = currentItem();
    emit(EventType::RightPressed, row, row);
    return true;
}

void VantoListBoxMEG::rowChosen(VantoListBoxItemMEG*) { }

// Screen text

UString VantoListBoxMEG::screenText()
{
    const std::string text = TextBlock::oneLine(std::exchange(mNotificationText, {}));
    const std::string icon = std::exchange(mNotificationIcon, {});
    const std::string secondIcon = std::exchange(mNotificationSecondIcon, {});
    const VantoListBoxItemMEG* row = currentItem();
    if (!row)
        return UString();
    const std::string rowText = TextBlock::oneLine(row->getText().toUTF8());
    std::string block = "subitem:\nname:VantoListBoxItem\n";
    block += iconLine("icon0:", icon);
    block += iconLine("icon1:", secondIcon);
    block += "string0:" + rowText + (row->drawCMA() ? " ->\n" : "\n");
    if (!text.empty() && text != rowText)
        block += "string1:" + text + "\n";
    block += "endsubitem:\n";
    return UString::fromUTF8(block);
}

UString VantoListBoxMEG::screenText(const std::vector<URect>& rects)
{
    // The set texts are used up also when nothing of the list is in the rectangles.
    const UString text = screenText();
    const URect place = rowRect(currentItem());
    const bool isInside
        = std::any_of(rects.begin(), rects.end(), [&place](const URect& rect) { return rect.contains(place); });
    return isInside ? text : UString();
}

// Geometry

int VantoListBoxMEG::firstLine() const
{
    return getRect().top() >= SecondLineTop || isFirstLineTaken() ? 1 : 0;
}

int VantoListBoxMEG::rowsInView() const
{
    const VantoListBoxItemMEG* row = currentItem();
    return visibleLines() > 1 && row && row->lineCount() > 1 ? 1 : visibleLines();
}

int VantoListBoxMEG::topIndex() const
{
    const int shown = rowsInView();
    int top = mTop;
    if (mCurrent >= 0)
        top = std::clamp(top, mCurrent - shown + 1, mCurrent);
    return std::clamp(top, 0, std::max(count() - shown, 0));
}

URect VantoListBoxMEG::rowRect(const VantoListBoxItemMEG* row) const
{
    const int index = indexOf(row);
    if (index < 0)
        return URect();
    const int top = topIndex();
    const int below = index - top - rowsInView();
    if (index < top)
        return rowAt(-RowHeight * std::min(top - index, FarthestRow));
    if (below >= 0)
        return rowAt(GlassBottom + 1 + RowHeight * std::min(below, FarthestRow));
    const int line = firstLine() + index - top;
    return line == 0 ? rowAt(0) : URect(0, SecondLineTop, GlassRight, GlassBottom);
}

// Painting

void VantoListBoxMEG::paint(UPainter& painter)
{
    if (mRows.empty())
        return;
    const int first = firstLine();
    painter.clearLines(first, 1);
    const int top = topIndex();
    const int shown = rowsInView();
    int line = first;
    for (int index = top; index < std::min(top + shown, count()); ++index) {
        const VantoListBoxItemMEG& row = *item(index);
        if (!row.isVisible()) {
            ++line;
            continue;
        }
        const int rowLines = shown == 1 ? row.lineCount() : 1;
        for (int rowLine = visibleLines() == 1 ? row.highlightedLine() : 0; rowLine < rowLines && line <= 1; ++rowLine)
            paintLine(painter, row, rowLine, line++);
    }
    painter.mark(1, scrollMark());
}

void VantoListBoxMEG::paintLine(UPainter& painter, const VantoListBoxItemMEG& row, int rowLine, int line) const
{
    // Two rows give way to the mark together, so that what stands at their right edges is in line.
    int columns = UPainter::Columns;
    if ((line == 1 || rowsInView() > 1) && scrollMark() != Icons::Mark::None)
        --columns;
    const bool isCurrent = &row == currentItem();
    int rowColumns = columns;
    if (rowLine == 0 && row.drawCMA()) {
        --rowColumns;
        if (isCurrent)
            painter.mark(line, Icons::Mark::ContextArrow, rowColumns);
    }
    const int head = paintRowHead(painter, row, line);
    if (visibleLines() == 1)
        row.paintInOneLine(painter, line, head, rowColumns - head);
    else
        row.paintRow(painter, rowLine, line, head, rowColumns - head);
    if (isCurrent && rowLine == row.highlightedLine() && hasBar(row))
        painter.invert(line, 0, columns - 1);
}

int VantoListBoxMEG::paintRowHead(UPainter&, const VantoListBoxItemMEG&, int) const
{
    return 0;
}

bool VantoListBoxMEG::hasBar(const VantoListBoxItemMEG& row) const
{
    const bool hasSeveralRows = (rowsInView() > 1 && count() > 1) || (visibleLines() > 1 && row.hasInnerRows());
    return hasSeveralRows && mIsHighlightBarShown && row.hasBackground();
}

bool VantoListBoxMEG::hasMore(int step) const
{
    const VantoListBoxItemMEG* row = currentItem();
    if (row && row->hasMoreInside(step))
        return true;
    return step > 0 ? topIndex() + rowsInView() < count() : topIndex() > 0;
}

Icons::Mark VantoListBoxMEG::scrollMark() const
{
    return mHasScrollArrows ? Icons::scrollMark(hasMore(-1), hasMore(1)) : Icons::Mark::None;
}
