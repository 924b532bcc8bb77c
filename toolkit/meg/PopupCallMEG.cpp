#include "PopupCallMEG.h"

#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"

// Popup with a list

PopupWithListMEG::PopupWithListMEG()
    : listBox(new VantoListBoxMEG(this))
{
    listBox->setCoordinates(0, 15, 161, 30);
    listBox->setListener(this);
    updateArrows();
    updatePopupNotificationCoordinates();
}

PopupWithListMEG::~PopupWithListMEG() = default;

bool PopupWithListMEG::hasRows() const
{
    return listBox && listBox->currentItem();
}

void PopupWithListMEG::setListScrollable(bool scrollable)
{
    PopupNotificationMEG::setListScrollable(scrollable);
    updateArrows();
}

void PopupWithListMEG::setDownArrowDisplayable(bool displayable)
{
    PopupNotificationMEG::setDownArrowDisplayable(displayable);
    updateArrows();
}

void PopupWithListMEG::updateArrows()
{
    if (listBox)
        listBox->setScrollArrows(isListScrollable() && isDownArrowDisplayable());
}

void PopupWithListMEG::event(UEvent* event)
{
    relay(*event);
}

UWidget* PopupWithListMEG::focusTarget()
{
    return isUp() ? this : nullptr;
}

bool PopupWithListMEG::keyEvent(UKeyEvent* key)
{
    // The answer is the same whatever the list did with the key: its listener may have deleted this popup.
    if (listBox)
        listBox->keyEvent(key);
    return true;
}

void PopupWithListMEG::childLeft(UWidget* child)
{
    if (child == listBox)
        listBox = nullptr;
}

void PopupWithListMEG::paint(UPainter& painter)
{
    painter.clearLines(0, 1);
    paintLine(painter, 0, 0, headLine(), UPainter::Columns);
    if (!isLine2Shown()) {
        if (listBox)
            listBox->paint(painter);
        return;
    }
    paintLine(painter, 1, 1, line2(), UPainter::Columns - 1, iconColumns(0));
    if (hasRows() && listBox->scrollArrows())
        painter.mark(1, Icons::Mark::MoreBelow);
}

// Call popup

PopupCallMEG::PopupCallMEG() = default;

PopupCallMEG::~PopupCallMEG() = default;

void PopupCallMEG::upChanged()
{
    PopupWithListMEG::upChanged();
    if (!isUp())
        mLine2GivenWay.clear();
}

bool PopupCallMEG::hasLine2Row() const
{
    // The application repeats the second party as a row without a command.
    const VantoListBoxItemMEG* first = listBox ? listBox->item(0) : nullptr;
    return first && first->getHandle() == 0 && !line2().text.isEmpty() && first->getText() == line2().text;
}

bool PopupCallMEG::isLine2Shown() const
{
    if (line2().isEmpty())
        return false;
    if (hasLine2Row())
        return listBox->currentIndex() == 0;
    return !hasRows() || !(line2().prefix + line2().text == mLine2GivenWay);
}

bool PopupCallMEG::keyEvent(UKeyEvent* key)
{
    const bool isMove = key->key() == UGlobal::KeyUp || key->key() == UGlobal::KeyDown;
    if (isMove && key->state() == UGlobal::KeyPressed && hasRows()) {
        const bool isRowHidden = isLine2Shown() && !hasLine2Row();
        mLine2GivenWay = line2().prefix + line2().text;
        if (isRowHidden) {
            // The first move goes from line 2 to the row that is current behind it.
            refresh();
            emit(EventType::PopupRowMoved, listBox->currentItem(), listBox->currentItem());
            return true;
        }
        listBox->setMoveEvent(line2().isEmpty() ? EventType::RowMoved : EventType::PopupRowMoved);
    }
    return PopupWithListMEG::keyEvent(key);
}

// Dialog

PopupDialogMEG::PopupDialogMEG()
{
    setListScrollable(true);
    listBox->setMoveEvent(EventType::PopupRowMoved);
}

PopupDialogMEG::~PopupDialogMEG() = default;

bool PopupDialogMEG::isLine2Shown() const
{
    return !hasRows() && !line2().isEmpty();
}

PopupNotificationMEG::Line PopupDialogMEG::headLine() const
{
    Line head = line1();
    if (isLine2Shown() || line2().isEmpty())
        return head;
    head.text += UString(std::string(" ")) + withColon(line2().prefix) + line2().text;
    head.number.clear();
    return head;
}
