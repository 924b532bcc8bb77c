#include "PopupNotificationMEG.h"

#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "UWindowManager.h"

namespace {

constexpr unsigned short ArrowIcon = 55;
constexpr unsigned long long TurnTime = 3000; // of the second and the third line

}

PopupNotificationMEG::PopupNotificationMEG()
    : mTurnTimer(this, TurnTime)
{
    place(PopupNotificationMEG::coversGlass());
}

PopupNotificationMEG::~PopupNotificationMEG() = default;

// Texts

void PopupNotificationMEG::setText(const UString& text)
{
    mLine1.number.clear();
    setField(mLine1.text, text);
}

void PopupNotificationMEG::setLine1TextNN(const UString& name, const UString& number)
{
    setParty(mLine1, name, number);
}

void PopupNotificationMEG::setLine2TextNN(const UString& name, const UString& number)
{
    setParty(mLine2, name, number);
}

void PopupNotificationMEG::setLine1PrefixText(const UString& text)
{
    setField(mLine1.prefix, text);
}

void PopupNotificationMEG::setLine1PrePrefixText(const UString& text)
{
    setField(mLine1.prePrefix, text);
}

void PopupNotificationMEG::setLine2Text(const UString& text)
{
    mLine2.number.clear();
    if (text.isEmpty())
        mIsSplit = false;
    setField(mLine2.text, text);
}

void PopupNotificationMEG::setLine2PrefixText(const UString& text)
{
    setField(mLine2.prefix, text);
}

void PopupNotificationMEG::setLine3Text(const UString& text)
{
    setField(mLine3.text, text);
}

void PopupNotificationMEG::setField(UString& field, const UString& text)
{
    field = text;
    contentChanged();
}

void PopupNotificationMEG::setParty(Line& line, const UString& name, const UString& number)
{
    const bool areBoth = !name.isEmpty() && !number.isEmpty();
    line.number = areBoth ? number : UString();
    setField(line.text, areBoth ? name + UString(std::string(" ")) + number : name + number);
}

void PopupNotificationMEG::contentChanged()
{
    updatePopupNotificationCoordinates();
    restartTurns();
    refresh();
}

// Icons and layout

void PopupNotificationMEG::setLine2Icon(bool shown)
{
    if (!shown) {
        setLine2Icon1(0);
        setLine2Icon2(0);
    } else if (line2Icon1() == 0) {
        setLine2Icon1(ArrowIcon);
    }
}

int PopupNotificationMEG::countLines() const
{
    return (mLine1.isEmpty() ? 0 : 1) + (mLine2.isEmpty() ? 0 : 1) + (mLine3.isEmpty() ? 0 : 1);
}

void PopupNotificationMEG::setIsSplit(bool split)
{
    mIsSplit = split;
    contentChanged();
}

void PopupNotificationMEG::updatePopupNotificationCoordinates()
{
    place(coversGlass());
}

void PopupNotificationMEG::place(bool coversGlass)
{
    setCoordinates(0, coversGlass ? 0 : 15, 161, 30);
}

// Keys and time

UWidget* PopupNotificationMEG::focusTarget()
{
    return isUp() && UWindowManager::instance().hasFocusRequest(this) ? this : nullptr;
}

bool PopupNotificationMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() != UGlobal::KeyPressed || !mIsDismissible)
        return false;
    dismiss();
    return true;
}

void PopupNotificationMEG::timerEvent(UTimerEvent* event)
{
    if (event->id() != mTurnTimer.id())
        return PopupBaseMEG::timerEvent(event);
    mIsThirdLineShown = !mIsThirdLineShown;
    refresh();
}

void PopupNotificationMEG::upChanged()
{
    PopupBaseMEG::upChanged();
    mTurnTimer.stop();
    restartTurns();
}

void PopupNotificationMEG::restartTurns()
{
    if (isUp() && !mLine2.isEmpty() && !mLine3.isEmpty()) {
        if (mTurnTimer.isRunning())
            return;
        mTurnTimer.start();
    } else {
        mTurnTimer.stop();
    }
    mIsThirdLineShown = false;
}

// Painting

void PopupNotificationMEG::paint(UPainter& painter)
{
    const bool isThird = mLine2.isEmpty() || mIsThirdLineShown;
    const Line& second = isThird ? mLine3 : mLine2;
    const int secondIcons = isThird ? 2 : 1;
    if (isTwoLine()) {
        paintLines(painter, mLine1, second, secondIcons);
        return;
    }
    painter.clearLine(1);
    const bool isFirst = !mLine1.isEmpty() || second.isEmpty();
    paintLine(painter, 1, isFirst ? 0 : secondIcons, isFirst ? mLine1 : second, UPainter::Columns);
}
