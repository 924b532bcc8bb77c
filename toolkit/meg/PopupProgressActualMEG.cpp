#include "PopupProgressActualMEG.h"

#include "UEvent.h"
#include "UPainter.h"

#include <algorithm>

namespace {

constexpr unsigned long long TurnTime = 3000; // of the two status texts
constexpr int NoBar = -1;
constexpr int Complete = 100;
constexpr int StatusColumns = 13; // beside a bar, at most

}

PopupProgressActualMEG::PopupProgressActualMEG(ProgressType type)
    : mType(type)
    , mTurnTimer(this, TurnTime)
{
}

PopupProgressActualMEG::~PopupProgressActualMEG() = default;

// Texts

void PopupProgressActualMEG::setText(const UString& text)
{
    mText = text;
    refresh();
}

void PopupProgressActualMEG::setStatusText1(const UString& text)
{
    setStatus(mStatusText1, text);
}

void PopupProgressActualMEG::setStatusText2(const UString& text)
{
    setStatus(mStatusText2, text);
}

void PopupProgressActualMEG::setStatus(UString& field, const UString& text)
{
    field = text;
    restartTurns();
    refresh();
}

// Icon and bar

void PopupProgressActualMEG::setIcon(unsigned short icon)
{
    setLine1Icon1(icon);
}

void PopupProgressActualMEG::setProgress(int percent)
{
    mProgress = std::clamp(percent, 0, Complete);
    refresh();
}

// Keys and time

UWidget* PopupProgressActualMEG::focusTarget()
{
    return isUp() ? this : nullptr;
}

bool PopupProgressActualMEG::keyEvent(UKeyEvent*)
{
    return true;
}

void PopupProgressActualMEG::timerEvent(UTimerEvent* event)
{
    if (event->id() != mTurnTimer.id())
        return PopupBaseMEG::timerEvent(event);
    mIsSecondShown = !mIsSecondShown;
    refresh();
}

void PopupProgressActualMEG::upChanged()
{
    PopupBaseMEG::upChanged();
    mTurnTimer.stop();
    restartTurns();
}

void PopupProgressActualMEG::restartTurns()
{
    if (isUp() && !mStatusText1.isEmpty() && !mStatusText2.isEmpty()) {
        // A text that changes often must not keep the other one from its turn.
        if (mTurnTimer.isRunning())
            return;
        mTurnTimer.start();
    } else {
        mTurnTimer.stop();
    }
    mIsSecondShown = false;
}

// Painting

const UString& PopupProgressActualMEG::shownStatus() const
{
    return mStatusText1.isEmpty() || mIsSecondShown ? mStatusText2 : mStatusText1;
}

void PopupProgressActualMEG::paint(UPainter& painter)
{
    painter.clearLines(0, 1);
    for (int line : {0, 1}) {
        int column = 0;
        for (unsigned short icon : iconsOfLine(line))
            column += painter.icon(line, column, icon);
        if (line == 0) {
            painter.text(0, column, mText, UPainter::Columns - column);
        } else if (mProgress == NoBar) {
            painter.text(1, column, shownStatus(), UPainter::Columns - column);
        } else {
            const int taken = painter.text(1, column, shownStatus(), StatusColumns - column);
            // The bar keeps its place while the two texts take turns.
            const int widest = static_cast<int>(std::max(mStatusText1.length(), mStatusText2.length()));
            if (taken > 0)
                column += std::min(widest, StatusColumns - column) + 1;
            painter.bar(1, column, UPainter::Columns - column, 0, Complete, mProgress);
        }
    }
}
