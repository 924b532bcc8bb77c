#include "TwoLineDisplay.h"

#include "TextCells.h"
#include "UEvent.h"
#include "UPainter.h"

#include <utility>

namespace {

constexpr int IconColumns = 2;

// Nothing behind these pieces can be seen; a user that adds without clearing must not fill the memory.
constexpr std::size_t MostPieces = 64;

Icons::Mark arrowMark(int mode)
{
    switch (mode) {
    case TwoLineDisplay::ArrowUp: return Icons::Mark::MoreAbove;
    case TwoLineDisplay::ArrowDown: return Icons::Mark::MoreBelow;
    case TwoLineDisplay::ArrowBoth: return Icons::Mark::MoreBoth;
    default: return Icons::Mark::None;
    }
}

}

TwoLineDisplay::TwoLineDisplay()
{
    setCoordinates(0, 0, 161, 30);
}

bool TwoLineDisplay::setEventHandler(GUIEventIfc* handler)
{
    mLink.attach(handler);
    return true;
}

// Content

void TwoLineDisplay::clear()
{
    for (std::vector<Piece>& line : mLines)
        line.clear();
    refresh();
}

void TwoLineDisplay::addText(int line, const UString& text)
{
    if (!text.isEmpty())
        add(line, {0, text.mid(0, TextCells::forward(text, 0, UPainter::Columns))});
}

void TwoLineDisplay::addIcon(int line, std::uint16_t icon)
{
    if (icon != 0)
        add(line, {icon, UString()});
}

void TwoLineDisplay::add(int line, Piece piece)
{
    if (line < 0 || line >= static_cast<int>(mLines.size()))
        return;
    std::vector<Piece>& pieces = mLines[static_cast<std::size_t>(line)];
    if (pieces.size() < MostPieces)
        pieces.push_back(std::move(piece));
    refresh();
}

void TwoLineDisplay::setScrollIndication(bool shown)
{
    mHasScrollIndication = shown;
    refresh();
}

void TwoLineDisplay::setArrowMode(int mode)
{
    mArrowMode = mode;
    refresh();
}

// Keys

UWidget* TwoLineDisplay::focusTarget()
{
    return isWidgetEnabled() && isVisible() ? this : nullptr;
}

bool TwoLineDisplay::keyEvent(UKeyEvent* key)
{
    // The handler may delete this display: nothing of it is touched behind the calls.
    GUIEventIfc* handler = mLink.handler();
    if (!handler)
        return false;
    switch (key->key()) {
    case UGlobal::KeyUp: return handler->onUp(key);
    case UGlobal::KeyDown: return handler->onDown(key);
    default: break;
    }
    if (key->state() != UGlobal::KeyPressed)
        return false;
    switch (key->key()) {
    case UGlobal::KeyLeft: return handler->onLeft(key);
    case UGlobal::KeyRight: return handler->onRight(key);
    case UGlobal::KeyOk: return handler->onOK(key);
    default: return false;
    }
}

// Painting

void TwoLineDisplay::paint(UPainter& painter)
{
    const int first = isFirstLineTaken() ? 1 : 0;
    painter.clearLines(first, 1);
    if (first == 0)
        paintPieces(painter, 0, 0, UPainter::Columns);
    const Icons::Mark mark = mHasScrollIndication ? arrowMark(mArrowMode) : Icons::Mark::None;
    const bool beginsWithIcon = !mLines[1].empty() && mLines[1].front().icon != 0;
    const int columns = mark == Icons::Mark::None ? UPainter::Columns : UPainter::Columns - 1;
    paintPieces(painter, 1, beginsWithIcon ? 0 : IconColumns, columns);
    painter.mark(1, mark);
}

void TwoLineDisplay::paintPieces(UPainter& painter, int line, int column, int columns) const
{
    for (const Piece& piece : mLines[static_cast<std::size_t>(line)]) {
        if (piece.icon == 0)
            column += painter.text(line, column, piece.text, columns - column);
        else if (column + IconColumns <= columns)
            column += painter.icon(line, column, piece.icon);
    }
}
