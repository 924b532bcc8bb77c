#include "PopupDialerMEG.h"

#include "TextCells.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "UWindowManager.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoTextEditMEG.h"

#include <string>
#include <utility>

namespace {

constexpr int CellWidth = 6;
constexpr int LeastEditColumns = 10; // a longer prefix is cut
constexpr int MostModeColumns = 8;

bool isDeleteRow(const VantoListBoxItemMEG* row)
{
    return row && row->getItemType() == VantoListBoxItemMEG::DeleteRow;
}

/// A list that keeps its delete row behind all others, so that a command has the same index with and without it.
class DialerListBox : public VantoListBoxMEG {
public:
    using VantoListBoxMEG::VantoListBoxMEG;

protected:
    void rowAdded(VantoListBoxItemMEG* row) override
    {
        VantoListBoxItemMEG* before = item(indexOf(row) - 1);
        if (!isDeleteRow(before))
            return;
        // It stays current only where the user went to it: alone it had no choice.
        const bool staysCurrent = currentItem() == before && count() > 2;
        removeItem(before);
        insertItem(before, count());
        if (staysCurrent)
            setCurrentIndex(count() - 1);
    }
};

bool isInTreeOfScreens(const UWidget* widget)
{
    const UWidget* root = UWindowManager::instance().root();
    while (widget && widget != root)
        widget = widget->parentWidget();
    return widget;
}

bool endsIn(const UString& text, const UString& end)
{
    return text.length() >= end.length() && text.mid(text.length() - end.length()) == end;
}

/// A label with what separates it from the edit line, where it has none of its own.
UString separated(UString label)
{
    while (endsIn(label, UString(std::string(" "))))
        label.removeLast();
    if (label.isEmpty())
        return label;
    const bool endsInSign = endsIn(label, UString(std::string(":"))) || endsIn(label, UString(std::string("=")));
    return label + UString(std::string(endsInSign ? " " : ": "));
}

}

PopupDialerMEG::PopupDialerMEG(UAgent* agent, bool)
    : listBox(new DialerListBox(this))
    , editArea(new VantoTextEditMEG(this))
{
    listBox->setCoordinates(0, 15, 161, 30);
    listBox->setListener(this);
    editArea->setNumberInput(true);
    editArea->setListener(this);
    PopupBaseMEG::setListScrollable(true);
    PopupBaseMEG::setDownArrowDisplayable(true);
    setListener(agent);
}

PopupDialerMEG::~PopupDialerMEG() = default;

void PopupDialerMEG::childLeft(UWidget* child)
{
    if (child == listBox)
        listBox = nullptr;
    if (child == editArea)
        editArea = nullptr;
}

// Lines

void PopupDialerMEG::setText(const UString& text)
{
    mText = text;
    refresh();
}

void PopupDialerMEG::setLine1PrefixText(const UString& text)
{
    mPrefix = text;
    refresh();
}

void PopupDialerMEG::setLine2Text(const UString& text)
{
    mLine2 = text;
    mHasMoved = false;
    refresh();
}

// Edit line

void PopupDialerMEG::setEditText(const UString& text)
{
    if (!editArea)
        return;
    editArea->setText(text);
    updateDeleteRow();
}

UString PopupDialerMEG::getEditText() const
{
    return editArea ? editArea->getText() : UString();
}

void PopupDialerMEG::setEditMode()
{
    showEditLine(true);
}

void PopupDialerMEG::showLabel()
{
    showEditLine(false);
}

void PopupDialerMEG::showEditLine(bool shown)
{
    mIsEditShown = shown;
    if (editArea && !shown)
        editArea->letLetterStand();
    refresh();
}

void PopupDialerMEG::updateDeleteRow()
{
    if (!listBox)
        return;
    const bool isWanted = editArea && editArea->isNumberInput() && !editArea->isEmpty();
    VantoListBoxItemMEG* last = listBox->item(listBox->count() - 1);
    if (isWanted)
        listBox->addDeleteItem();
    else if (isDeleteRow(last))
        delete last;
    refresh();
}

// Input

void PopupDialerMEG::setNumberInput(bool numberInput)
{
    if (!editArea)
        return;
    editArea->setNumberInput(numberInput);
    updateDeleteRow();
}

void PopupDialerMEG::setModePromptVisible(bool visible)
{
    mIsModePromptVisible = visible;
    refresh();
}

void PopupDialerMEG::setTextEditMode(int mode)
{
    mIsTextLabel = true;
    if (editArea)
        editArea->setMode(mode);
    refresh();
}

void PopupDialerMEG::setEditEchoMode(int mode)
{
    if (editArea)
        editArea->setEchoMode(mode);
}

UString PopupDialerMEG::getInputModeInText() const
{
    return editArea ? editArea->modeText() : UString();
}

void PopupDialerMEG::genNextInputMode()
{
    if (editArea)
        editArea->nextMode();
}

// Up and down

void PopupDialerMEG::upChanged()
{
    PopupBaseMEG::upChanged();
    if (isUp())
        return;
    mHasBegun = false;
    mHasMoved = false;
    if (editArea)
        editArea->letLetterStand();
}

void PopupDialerMEG::setListScrollable(bool scrollable)
{
    PopupBaseMEG::setListScrollable(scrollable);
    updateArrows();
}

void PopupDialerMEG::setDownArrowDisplayable(bool displayable)
{
    PopupBaseMEG::setDownArrowDisplayable(displayable);
    updateArrows();
}

void PopupDialerMEG::updateArrows()
{
    if (listBox)
        listBox->setScrollArrows(isListScrollable() && isDownArrowDisplayable());
}

bool PopupDialerMEG::hasRows() const
{
    return listBox && listBox->currentItem();
}

// Keys

UWidget* PopupDialerMEG::focusTarget()
{
    return isUp() ? this : nullptr;
}

bool PopupDialerMEG::keyEvent(UKeyEvent* key)
{
    const bool isKept = std::exchange(mKeepsNextKey, false);
    if (key->state() != UGlobal::KeyPressed)
        return isKept;
    const bool isHandedOn = mHandsDialKeysOn && !isKept && UGlobal::isDialKey(key->key());
    if (!isHandedOn && use(*key))
        return true;
    // A key that comes back from the listener must not go there again.
    if (isKept || !listener())
        return isKept;
    return listener()->keyEvent(key);
}

bool PopupDialerMEG::use(UKeyEvent& key)
{
    mIsTyping = UGlobal::isDialKey(key.key());
    if (mIsTyping)
        return editArea && editArea->keyEvent(&key);
    if (!isUp())
        return false;
    switch (key.key()) {
    case UGlobal::KeyUp:
    case UGlobal::KeyDown: return move(key);
    case UGlobal::KeyOk: return hasRows() && listBox->keyEvent(&key);
    case UGlobal::KeyClear: return mIsEditShown && editArea && editArea->keyEvent(&key);
    case UGlobal::KeyLeft:
        if (!mIsEditShown || !editArea || !editArea->keyEvent(&key))
            goBack();
        return true;
    default: return false;
    }
}

bool PopupDialerMEG::move(UKeyEvent& key)
{
    const bool wasKeypadShown = isKeypadShown();
    if (editArea)
        editArea->letLetterStand();
    if (!hasRows())
        return wasKeypadShown;
    const bool isRowHidden = isLine2Shown();
    mHasMoved = true;
    if (!isRowHidden)
        return listBox->keyEvent(&key);
    // The first move goes from line 2 to the row that is current behind it.
    refresh();
    emit(EventType::RowMoved, listBox->currentItem(), listBox->currentItem());
    return true;
}

void PopupDialerMEG::goBack()
{
    if (emit(EventType::EmptyLineLeft, this) && !isInTreeOfScreens(this))
        dismiss();
}

// Events of the edit line and the list

void PopupDialerMEG::event(UEvent* event)
{
    auto* row = dynamic_cast<VantoListBoxItemMEG*>(event->source());
    if (event->type == EventType::EditTextChanged) {
        typed();
    } else if (event->type == EventType::ContentChanged) {
        VantoListBoxItemMEG* current = listBox ? listBox->currentItem() : nullptr;
        emit(EventType::RowMoved, current, current);
    } else if (event->type == EventType::RowChosen && isDeleteRow(row)) {
        eraseByRow();
    } else {
        relay(*event);
    }
}

void PopupDialerMEG::typed()
{
    const bool isSwitched = mIsTyping && !mIsEditShown;
    const bool isFirst = mIsTyping && !mHasBegun && editArea->isNumberInput();
    mHasBegun = mHasBegun || isFirst;
    if (isSwitched)
        showEditLine(true);
    updateDeleteRow();
    // OK behind a digit must not delete it again.
    if (mIsTyping && listBox && isDeleteRow(listBox->currentItem()))
        listBox->setCurrentIndex(0);

    LifeNode life(this);
    if (!isUp())
        popupAsNotification();
    if (!life.isAlive() || (isSwitched && !emit(EventType::EditLineShown, this)))
        return;
    if (!isFirst || emit(EventType::SearchTextChanged, this))
        emit(EventType::EditTextChanged, this);
}

void PopupDialerMEG::eraseByRow()
{
    if (!editArea || !editArea->deleteCharacter())
        return;
    updateDeleteRow();
    emit(EventType::EditTextChanged, this);
}

// Painting

bool PopupDialerMEG::isKeypadShown() const
{
    return mIsEditShown && editArea && editArea->getKeyPadShown();
}

bool PopupDialerMEG::isLine2Shown() const
{
    return !mLine2.isEmpty() && (!hasRows() || (!mIsEditShown && !mHasMoved));
}

UString PopupDialerMEG::editHead() const
{
    if (!mPrefix.isEmpty())
        return withColon(mPrefix);
    return mIsTextLabel ? separated(mText) : UString();
}

UString PopupDialerMEG::modePrompt() const
{
    const UString mode = getInputModeInText();
    const bool isOnRow = !isLine2Shown() && hasRows() && endsIn(listBox->currentItem()->getText(), mode);
    return mIsModePromptVisible && !isKeypadShown() && !isOnRow ? mode : UString();
}

void PopupDialerMEG::paint(UPainter& painter)
{
    painter.clearLines(0, 1);
    if (mIsEditShown && editArea)
        paintEditLine(painter);
    else
        paintLine(painter, 0, 0, {{}, mPrefix, mText, {}}, UPainter::Columns);
    if (isKeypadShown()) {
        editArea->paintKeypad(painter, 1);
    } else if (isLine2Shown()) {
        paintLine(painter, 1, 1, {{}, {}, mLine2, {}}, UPainter::Columns - 1, iconColumns(0));
        if (hasRows() && listBox->scrollArrows())
            painter.mark(1, Icons::Mark::MoreBelow);
    } else if (listBox) {
        listBox->paint(painter);
    }
}

void PopupDialerMEG::paintEditLine(UPainter& painter)
{
    const UString mode = modePrompt();
    const int modeColumns = TextCells::count(mode, MostModeColumns);
    const int last = UPainter::Columns - (modeColumns > 0 ? modeColumns + 1 : 0);
    const int first = paintLine(painter, 0, 0, {{}, {}, editHead(), {}}, last - LeastEditColumns);
    editArea->setCoordinates(first * CellWidth, 0, last * CellWidth - 1, 14);
    editArea->paint(painter);
    painter.textRight(0, UPainter::Columns - 1, mode, modeColumns);
}
