#include "VantoTextBoxMEG.h"

#include "EventTypes.h"
#include "Icons.h"
#include "TextBlock.h"
#include "TextCells.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"

#include <algorithm>

namespace {

const URect wholeGlass(0, 0, 161, 30);
const URect belowTitle(0, 15, 161, 30);
constexpr int TextColumns = UPainter::Columns - 1; // the last one has the scroll mark
constexpr unsigned short LineFeed = '\n';

}

VantoTextBoxMEG::VantoTextBoxMEG(UWidget* parent)
    : UWidget(parent)
{
    setRect(wholeGlass);
}

VantoTextBoxMEG::~VantoTextBoxMEG() = default;

void VantoTextBoxMEG::setText(const UString& text, bool keepPosition)
{
    const int top = keepPosition ? topInView() : 0;
    mText = text;
    wrap();
    scrollTo(top);
}

void VantoTextBoxMEG::setTopLineSlidableOffAndTruncationOn(bool fixed)
{
    mIsTopLineFixed = fixed;
    wrap();
    scrollTo(0);
}

void VantoTextBoxMEG::wrap()
{
    mTopLine.clear();
    UString scrolling = mText;
    if (mIsTopLineFixed) {
        UString lineFeed;
        lineFeed.append(LineFeed);
        const int end = mText.find(lineFeed);
        mTopLine = end < 0 ? mText : mText.mid(0, static_cast<std::size_t>(end));
        scrolling = end < 0 ? UString() : mText.mid(static_cast<std::size_t>(end) + 1);
    }
    mLines = TextCells::lines(scrolling, TextColumns);
}

int VantoTextBoxMEG::firstGlassLine() const
{
    return isFirstLineTaken() ? 1 : 0;
}

/// Where the first line is taken, the fixed one gives way to what scrolls.
bool VantoTextBoxMEG::isTopLineShown() const
{
    return mIsTopLineFixed && firstGlassLine() == 0;
}

int VantoTextBoxMEG::furthestTop() const
{
    const int scrollingLines = 2 - firstGlassLine() - (isTopLineShown() ? 1 : 0);
    return std::max(static_cast<int>(mLines.size()) - scrollingLines, 0);
}

/// Lines may have come since the last move.
int VantoTextBoxMEG::topInView() const
{
    return std::min(mTop, furthestTop());
}

void VantoTextBoxMEG::scrollTo(int line)
{
    mTop = std::clamp(line, 0, furthestTop());
    refresh();
}

bool VantoTextBoxMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() != UGlobal::KeyPressed)
        return false;
    switch (key->key()) {
    case UGlobal::KeyUp: scrollTo(topInView() - 1); return true;
    case UGlobal::KeyDown: scrollTo(topInView() + 1); return true;
    case UGlobal::KeyLeft: emit(EventType::LeftPressed, this); return true;
    case UGlobal::KeyRight: emit(EventType::RightPressed, this); return true;
    default: return false;
    }
}

void VantoTextBoxMEG::paint(UPainter& painter)
{
    int line = firstGlassLine();
    painter.clearLines(line, 1);
    if (isTopLineShown())
        painter.text(line++, 0, mTopLine);
    const int top = topInView();
    for (int row = top; line <= 1 && row < static_cast<int>(mLines.size()); ++line, ++row)
        painter.text(line, 0, mLines[static_cast<std::size_t>(row)], TextColumns);
    painter.mark(1, Icons::scrollMark(top > 0, top < furthestTop()));
}

// With a title

VantoTextBoxWithTitleMEG::VantoTextBoxWithTitleMEG()
    : mTextBox(new VantoTextBoxMEG(this))
{
    setRect(wholeGlass);
}

VantoTextBoxWithTitleMEG::~VantoTextBoxWithTitleMEG() = default;

void VantoTextBoxWithTitleMEG::setTitle(const UString& title)
{
    mTitle = title;
    mTextBox->setRect(title.isEmpty() ? wholeGlass : belowTitle);
    refresh();
}

void VantoTextBoxWithTitleMEG::paint(UPainter& painter)
{
    if (isFirstLineTaken())
        return;
    painter.clearLine(0);
    painter.rowText(0, 0, UString(TextBlock::oneLine(mTitle.toUTF8())), UPainter::Columns);
}
