#include "SearchableListMEG.h"

#include "TextBlock.h"
#include "TextCells.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoTextEditMEG.h"

#include <algorithm>

namespace {

constexpr int CellWidth = 6;
constexpr int LeastTextColumns = 8; // counters that leave less are not shown

UString ratio(int part, int whole)
{
    return UString(ClientUtils::itos(part) + "/" + ClientUtils::itos(whole));
}

}

SearchableListMEG::SearchableListMEG()
    : mEdit(new VantoTextEditMEG(this))
{
    mEdit->setListener(this);
}

SearchableListMEG::~SearchableListMEG() = default;

void SearchableListMEG::setTitle(const UString& title)
{
    VantoListBoxWithTitleMEG::setTitle(title);
    if (mIsOpen)
        placeList(true);
}

void SearchableListMEG::setHintText(const UString& text)
{
    mHint = text;
    refresh();
}

void SearchableListMEG::setInsideDetailsMenu(bool inside)
{
    mIsInsideDetailsMenu = inside;
    refresh();
}

// Search field

void SearchableListMEG::startSearching()
{
    setOpen(true);
}

void SearchableListMEG::stopSearching()
{
    setOpen(false);
}

void SearchableListMEG::setOpen(bool open)
{
    if (open != mIsOpen)
        mHasMoved = false;
    mIsOpen = open;
    if (!open)
        mEdit->letLetterStand();
    placeList(open || !getTitle().isEmpty());
}

UString SearchableListMEG::getSearchText() const
{
    return mEdit->getText();
}

void SearchableListMEG::setSearchText(const std::string& text)
{
    mEdit->setText(UString(text));
}

void SearchableListMEG::setCountIndicator(int count)
{
    mCount = count;
    refresh();
}

void SearchableListMEG::setSearchCountIndicator(int count)
{
    mFoundCount = count;
    refresh();
}

UString SearchableListMEG::counters() const
{
    const int rows = list()->count();
    return ratio(mFoundCount < 0 ? rows : mFoundCount, mCount < 0 ? rows : mCount);
}

UString SearchableListMEG::getSearchFieldText() const
{
    const auto line
        = [](const char* key, const UString& value) { return key + TextBlock::oneLine(value.toUTF8()) + "\n"; };
    const UString title = getTitle();
    return UString((title.isEmpty() ? "" : line("caption:", title))
        + line("string0:", mEdit->isEmpty() ? mHint : mEdit->getText()) + line("string1:", counters()));
}

// Keys

UWidget* SearchableListMEG::focusTarget()
{
    return isVisible() && list()->isEnabled() ? this : nullptr;
}

bool SearchableListMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() != UGlobal::KeyPressed)
        return false;
    switch (key->key()) {
    case UGlobal::KeyUp:
    case UGlobal::KeyDown: mHasMoved = true; [[fallthrough]];
    case UGlobal::KeyOk:
    case UGlobal::KeyRight: mEdit->letLetterStand(); return list()->keyEvent(key);
    case UGlobal::KeyLeft:
        if (!mIsOpen)
            return list()->keyEvent(key);
        return mEdit->keyEvent(key) || closeByKey();
    default: break;
    }
    if (!mIsOpen && !UGlobal::isDialKey(key->key()))
        return false;
    if (mEdit->keyEvent(key))
        return true;
    if (mIsOpen && key->key() == UGlobal::KeyHash)
        mEdit->nextMode();
    return mIsOpen;
}

bool SearchableListMEG::closeByKey()
{
    setOpen(false);
    emit(EventType::PopupRowMoved, this);
    return true;
}

void SearchableListMEG::event(UEvent* event)
{
    if (event->type == EventType::EditTextChanged)
        typed();
    else if (event->type != EventType::ContentChanged)
        VantoListBoxWithTitleMEG::event(event);
}

void SearchableListMEG::typed()
{
    const bool isOpened = !mIsOpen;
    mHasMoved = false;
    setOpen(true);
    if (!isOpened || emit(EventType::PopupRowMoved, this))
        emit(EventType::SearchTextChanged, this);
}

// Painting

UString SearchableListMEG::placeInList() const
{
    const int rows = list()->count();
    if (mIsInsideDetailsMenu || rows == 0)
        return UString();
    return ratio(list()->currentIndex() + 1, mEdit->isEmpty() ? std::max(rows, mCount) : rows);
}

bool SearchableListMEG::isRowShown() const
{
    return list()->currentItem() && (!mIsOpen || mHasMoved || !mEdit->isEmpty());
}

void SearchableListMEG::paint(UPainter& painter)
{
    painter.clearLines(isFirstLineKept() ? 1 : 0, 1);
    const int fieldLine = isFirstLineTaken() ? 1 : 0;
    if (mIsOpen)
        paintField(painter, fieldLine);
    else if (list()->firstLine() > 0 && fieldLine == 0)
        paintTitle(painter);
    if (mIsOpen && fieldLine == 1)
        return;
    if (mEdit->getKeyPadShown())
        mEdit->paintKeypad(painter, 1);
    else if (mIsOpen && !isRowShown())
        painter.text(1, 0, mHint);
    else if (list()->isVisible())
        list()->paint(painter);
}

void SearchableListMEG::paintTitle(UPainter& painter) const
{
    const UString place = placeInList();
    const int columns = static_cast<int>(place.length());
    painter.textRight(0, UPainter::Columns - 1, place);
    painter.rowText(0, 0, getTitle(), UPainter::Columns - (columns > 0 ? columns + 1 : 0));
}

void SearchableListMEG::paintField(UPainter& painter, int line)
{
    const int first = painter.text(line, 0, UString(std::string("Find: ")));
    const UString counts = counters();
    const int countsStart = UPainter::Columns - TextCells::count(counts);
    const bool isRoom = countsStart - 1 - first >= LeastTextColumns;
    const int end = isRoom ? countsStart - 1 : UPainter::Columns;
    mEdit->setCoordinates(first * CellWidth, line * 15, end * CellWidth - 1, line == 0 ? 14 : 30);
    mEdit->paint(painter);
    if (isRoom)
        painter.textRight(line, UPainter::Columns - 1, counts);
}
