#include "PopupBaseMEG.h"

#include "TextCells.h"
#include "UEvent.h"
#include "UPainter.h"

#include <algorithm>
#include <string>

PopupBaseMEG::PopupBaseMEG()
    : RaisedWidget(WhileDown::KeepsFlag)
    , mTimeoutTimer(this)
    , mAnimationTimer(this)
{
    mTimeoutTimer.setSingleShot(true);
    setCoordinates(0, 0, 161, 30);
}

PopupBaseMEG::~PopupBaseMEG() = default;

// Up and down

void PopupBaseMEG::setTimeout(int milliseconds)
{
    mTimeout = milliseconds;
    restartTimeout();
}

void PopupBaseMEG::popupAsCall()
{
    comeUp();
}

void PopupBaseMEG::popupAsNotification()
{
    comeUp();
}

void PopupBaseMEG::dismiss()
{
    if (!isUp())
        return;
    lower();
    emit(EventType::PopupDown, this);
}

void PopupBaseMEG::comeUp()
{
    raise();
    emit(EventType::PopupUp, this);
}

void PopupBaseMEG::upChanged()
{
    restartTimeout();
    restartAnimation();
}

void PopupBaseMEG::timerEvent(UTimerEvent* event)
{
    if (event->id() == mAnimationTimer.id()) {
        mStateIconIndex = (mStateIconIndex + 1) % mStateIcons.size();
        refresh();
    } else if (event->id() == mTimeoutTimer.id()) {
        dismiss();
    }
}

void PopupBaseMEG::restartTimeout()
{
    mTimeoutTimer.stop();
    if (mTimeout <= 0 || !isUp())
        return;
    mTimeoutTimer.setInterval(static_cast<unsigned long long>(mTimeout));
    mTimeoutTimer.start();
}

// Icons and marks

void PopupBaseMEG::setLine1Icon1(unsigned short icon)
{
    setLineIcon(0, 0, icon);
}

void PopupBaseMEG::setLine2Icon1(unsigned short icon)
{
    setLineIcon(1, 0, icon);
}

void PopupBaseMEG::setLine1Icon2(unsigned short icon)
{
    setLineIcon(0, 1, icon);
}

void PopupBaseMEG::setLine2Icon2(unsigned short icon)
{
    setLineIcon(1, 1, icon);
}

void PopupBaseMEG::setLineIcon(std::size_t line, std::size_t place, unsigned short icon)
{
    mLineIcons[line][place] = icon;
    refresh();
}

void PopupBaseMEG::setListScrollable(bool scrollable)
{
    mIsListScrollable = scrollable;
    refresh();
}

void PopupBaseMEG::setDownArrowDisplayable(bool displayable)
{
    mIsDownArrowDisplayable = displayable;
    refresh();
}

void PopupBaseMEG::setStateIcon(unsigned short icon, int line)
{
    mStateIcons.assign(1, icon);
    mStateIconLine = line;
    mAnimationPeriod = 0;
    restartAnimation();
}

void PopupBaseMEG::setStateIconAnimation(const std::vector<unsigned short>& icons, int period)
{
    mStateIcons = icons;
    mStateIconLine = 0;
    mAnimationPeriod = period;
    restartAnimation();
}

void PopupBaseMEG::restartAnimation()
{
    mStateIconIndex = 0;
    mAnimationTimer.stop();
    if (mStateIcons.size() > 1 && mAnimationPeriod > 0 && isUp()) {
        mAnimationTimer.setInterval(static_cast<unsigned long long>(mAnimationPeriod));
        mAnimationTimer.start();
    }
    refresh();
}

std::array<unsigned short, 2> PopupBaseMEG::iconsOfLine(int line) const
{
    if (line < 0 || line > 1)
        return {};
    std::array<unsigned short, 2> icons = mLineIcons[static_cast<std::size_t>(line)];
    if (line == mStateIconLine && !mStateIcons.empty() && mStateIcons[mStateIconIndex] != 0)
        icons[0] = mStateIcons[mStateIconIndex];
    return icons;
}

// Lines

UString PopupBaseMEG::withColon(const UString& prefix)
{
    return prefix.isEmpty() ? UString() : prefix + UString(std::string(": "));
}

UString PopupBaseMEG::Line::shownText() const
{
    return withColon(prePrefix) + withColon(prefix) + text;
}

int PopupBaseMEG::iconColumns(int iconLine) const
{
    const auto icons = iconsOfLine(iconLine);
    return static_cast<int>(2 * std::count_if(icons.begin(), icons.end(), [](unsigned short icon) { return icon; }));
}

int PopupBaseMEG::paintLine(
    UPainter& painter, int glassLine, int iconLine, const Line& content, int columns, int indent) const
{
    int column = 0;
    for (unsigned short icon : iconsOfLine(iconLine))
        column += painter.icon(glassLine, column, icon);
    if (column == 0)
        column = indent;

    const UString text = content.shownText();
    const int room = columns - column;
    const int numberColumns = TextCells::count(content.number, UPainter::Columns);
    if (numberColumns == 0 || TextCells::count(text, room + 1) <= room)
        return column + painter.text(glassLine, column, text, room);
    // The name gives way, since a number without its end is no number.
    painter.text(glassLine, column, text, std::max(0, room - numberColumns - 1));
    painter.textRight(glassLine, columns - 1, content.number, room);
    return columns;
}

void PopupBaseMEG::paintLines(UPainter& painter, const Line& first, const Line& second, int secondIcons) const
{
    painter.clearLines(0, 1);
    paintLine(painter, 0, 0, first, UPainter::Columns);
    paintLine(painter, 1, secondIcons, second, UPainter::Columns, iconColumns(0));
}
