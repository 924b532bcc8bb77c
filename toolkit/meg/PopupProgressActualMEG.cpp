#include "PopupProgressActualMEG.h"

#include "TextCells.h"
#include "UEvent.h"
#include "UPainter.h"

#include <algorithm>
#include <vector>

namespace {

constexpr unsigned long long TurnTime = 3000; // of the two status texts
constexpr int NoBar = -1;
constexpr int Complete = 100;
constexpr int StatusColumns = 17; // beside a bar, at most

/// What of a status text stands beside the bar: as many words as there is room for.
UString besideBar(const UString& status)
{
    const UString head = status.mid(0, TextCells::forward(status, 0, 2 * StatusColumns));
    const std::vector<UString> lines = TextCells::lines(head, StatusColumns);
    return lines.empty() ? UString() : lines.front();
}

/// Where the bar beside a status text begins.
int barColumn(const UString& status)
{
    return status.isEmpty() ? 0 : TextCells::count(besideBar(status)) + 1;
}

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
    paintLine(painter, 0, 0, {{}, {}, mText, {}}, UPainter::Columns);
    if (mProgress == NoBar) {
        painter.text(1, 0, shownStatus());
        return;
    }
    // The bar keeps its place while the two texts take turns.
    const int left = std::max(barColumn(mStatusText1), barColumn(mStatusText2));
    painter.text(1, 0, besideBar(shownStatus()));
    painter.bar(1, left, UPainter::Columns - left, 0, Complete, mProgress);
}
