#include "VantoListBoxItemMEG.h"

#include "TextCells.h"
#include "UPainter.h"
#include "VantoListBoxMEG.h"

#include <algorithm>

VantoListBoxItemMEG::VantoListBoxItemMEG(const UString& text, long handle, bool readOnly)
    : mText(text)
    , mHandle(handle)
    , mIsReadonly(readOnly)
{
}

VantoListBoxItemMEG::~VantoListBoxItemMEG() = default;

void VantoListBoxItemMEG::setText(const UString& text)
{
    mText = text;
    refresh();
}

void VantoListBoxItemMEG::setRightText(const UString& text)
{
    mRightText = text;
    refresh();
}

void VantoListBoxItemMEG::setIcon(std::uint16_t icon)
{
    mIcon = icon;
    refresh();
}

void VantoListBoxItemMEG::setArrow(bool arrow)
{
    mHasArrow = arrow;
    refresh();
}

void VantoListBoxItemMEG::setReadonly(bool readOnly)
{
    mIsReadonly = readOnly;
    refresh();
}

void VantoListBoxItemMEG::clearBackground()
{
    mHasBackground = false;
    refresh();
}

URect VantoListBoxItemMEG::getRect() const
{
    const auto* list = dynamic_cast<const VantoListBoxMEG*>(parentWidget());
    if (list && list->indexOf(this) >= 0)
        return list->rowRect(this);
    return UWidget::getRect();
}

void VantoListBoxItemMEG::paintRow(UPainter& painter, int, int line, int column, int columns) const
{
    const int iconColumns = painter.icon(line, column, mIcon);
    paintTexts(painter, line, column + iconColumns, columns - iconColumns, getDisplayedText(), mRightText, columns / 2);
}

void VantoListBoxItemMEG::paintInOneLine(UPainter& painter, int line, int column, int columns) const
{
    paintRow(painter, highlightedLine(), line, column, columns);
}

bool VantoListBoxItemMEG::moveInside(int)
{
    return false;
}

bool VantoListBoxItemMEG::hasMoreInside(int) const
{
    return false;
}

bool VantoListBoxItemMEG::enterFrom(int)
{
    return false;
}

void VantoListBoxItemMEG::paintTexts(UPainter& painter, int line, int column, int columns, const UString& text,
    const UString& rightText, int rightColumns)
{
    if (rightText.isEmpty()) {
        painter.rowText(line, column, text, columns);
        return;
    }
    const int taken = TextCells::count(rightText, rightColumns);
    painter.textRight(line, column + columns - 1, rightText, taken);
    painter.text(line, column, text, columns - taken - 1);
}
