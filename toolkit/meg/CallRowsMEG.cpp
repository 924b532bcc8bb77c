#include "CallRowsMEG.h"

#include "Icons.h"
#include "UEvent.h"
#include "ULoop.h"
#include "UPainter.h"

#include <ctime>
#include <iterator>
#include <string>

namespace {

constexpr std::uint16_t CallBackIcon = 6;
constexpr std::uint16_t SuccessIcon = 22;

constexpr int PrivateNumber = 0;
constexpr int MobileNumber = 3;

constexpr unsigned long long BarInterval = 110;
constexpr int BarPositions = 10; // from one end to the other

/// The states of a line, by the number of the state: at rest, a call here, one at another telephone; the last has
/// the better voice.
constexpr std::uint16_t lineIcons[]
    = {91, Icons::ConnectedCall, 14, 45, Icons::HeldCall, 95, 96, 97, 98, Icons::ConnectedCallHD};

/// True for "YYYY-MM-DD hh:mm".
bool isMoment(const std::string& text)
{
    static const std::string form = "dddd-dd-dd dd:dd";
    if (text.size() != form.size())
        return false;
    for (std::size_t index = 0; index < form.size(); ++index) {
        const bool isDigit = text[index] >= '0' && text[index] <= '9';
        if (form[index] == 'd' ? !isDigit : text[index] != form[index])
            return false;
    }
    return true;
}

std::string today()
{
    const std::time_t now = ULoop::instance().wallClock();
    std::tm local{};
    localtime_r(&now, &local);
    char date[sizeof "YYYY-MM-DD"] = "";
    return std::strftime(date, sizeof date, "%Y-%m-%d", &local) > 0 ? date : "";
}

/// Both texts with a blank between them, if neither is empty.
UString joined(const UString& left, const UString& right)
{
    static const UString blank(" ");
    if (left.isEmpty() || right.isEmpty())
        return left.isEmpty() ? right : left;
    return left + blank + right;
}

std::uint16_t numberIcon(int iconType)
{
    if (iconType < PrivateNumber || iconType > MobileNumber)
        return 0;
    return iconType == MobileNumber ? Icons::MobileTelephone : Icons::Person;
}

}

// The moment

CallMomentMEG::CallMomentMEG(const UString& moment)
    : mDate(moment)
    , mTime(moment)
    , mIsParsed(isMoment(moment.toUTF8()))
{
    if (!mIsParsed)
        return;
    constexpr std::size_t dateLength = sizeof "YYYY-MM-DD" - 1;
    mDate = moment.mid(0, dateLength);
    mTime = moment.mid(dateLength + 1);
}

bool CallMomentMEG::isPresentDay() const
{
    return mIsParsed && mDate.toUTF8() == today();
}

UString CallMomentMEG::shown() const
{
    if (!mIsParsed)
        return mDate;
    constexpr std::size_t yearLength = sizeof "YYYY-" - 1;
    const std::string day = today();
    const std::string date = mDate.toUTF8();
    if (date == day)
        return mTime;
    return date.compare(0, yearLength, day, 0, yearLength) == 0 ? mDate.mid(yearLength) : mDate;
}

// The call log

CallLogListItemMEG::CallLogListItemMEG(const UString& name, const UString& number, IconType iconType,
    const UString& date, int numberOfCalls, bool bold, bool, bool completedElsewhere, int)
    : VantoListBoxItemMEG(joined(name, number))
    , mMoment(date)
    , mIconType(iconType)
    , mNumberOfCalls(numberOfCalls)
    , mIsBold(bold)
    , mIsCompletedElsewhere(completedElsewhere)
{
}

void CallLogListItemMEG::setBold(bool bold)
{
    mIsBold = bold;
    refresh();
}

void CallLogListItemMEG::paintRow(UPainter& painter, int, int line, int column, int columns) const
{
    const std::uint16_t ownIcon = mIsCompletedElsewhere ? SuccessIcon : numberIcon(mIconType);
    const int taken = painter.icon(line, column, icon() ? icon() : ownIcon);
    UString right = mMoment.shown();
    if (mNumberOfCalls > 1) // in brackets, so that it doesn't look like the end of the number
        right = joined(UString("(" + std::to_string(mNumberOfCalls) + ")"), right);
    const int textColumns = columns - taken;
    paintTexts(painter, line, column + taken, textColumns, getDisplayedText(), right, textColumns * 2 / 3);
    if (mIsBold)
        painter.embolden(line, column + taken, column + columns - 1);
}

// Call backs

CallBackListItemMEG::CallBackListItemMEG(
    const UString& text, CallBackType type, CallBackState state, IconType iconType, const UString& date)
    : VantoListBoxItemMEG(text)
    , mMoment(date)
    , mType(type)
    , mState(state)
    , mIconType(iconType)
{
}

void CallBackListItemMEG::paintRow(UPainter& painter, int, int line, int column, int columns) const
{
    const std::uint16_t ownIcon = mState == Paused ? static_cast<std::uint16_t>(Icons::HeldCall) : CallBackIcon;
    const int taken = painter.icon(line, column, icon() ? icon() : ownIcon);
    const int textColumns = columns - taken;
    paintTexts(painter, line, column + taken, textColumns, getDisplayedText(), mMoment.shown(), textColumns / 2);
}

// The line overview

LineOverviewListItem::LineOverviewListItem(
    LineStateIconType iconType, const UString& name, const UString& identity, bool hasArrow)
    : mIconType(iconType)
    , mName(name)
    , mIdentity(identity)
{
    setArrow(hasArrow);
}

UString LineOverviewListItem::label() const
{
    return joined(mPrefix, mName);
}

UString LineOverviewListItem::getText() const
{
    return joined(label(), mIdentity);
}

void LineOverviewListItem::setIconType(LineStateIconType iconType)
{
    mIconType = iconType;
    refresh();
}

void LineOverviewListItem::setName(const UString& name)
{
    mName = name;
    refresh();
}

void LineOverviewListItem::setIdentity(const UString& identity)
{
    mIdentity = identity;
    refresh();
}

void LineOverviewListItem::setPrefix(const UString& prefix)
{
    mPrefix = prefix;
    refresh();
}

void LineOverviewListItem::paintRow(UPainter& painter, int, int line, int column, int columns) const
{
    const auto state = static_cast<unsigned>(mIconType);
    const std::uint16_t ownIcon = state < std::size(lineIcons) ? lineIcons[state] : std::uint16_t{0};
    const int taken = painter.icon(line, column, icon() ? icon() : ownIcon);
    const int textColumns = columns - taken;
    paintTexts(painter, line, column + taken, textColumns, label(), joined(mIdentity, getRightText()), textColumns / 2);
}

// The endless bar

InfiniteBarItemMEG::InfiniteBarItemMEG()
    : mTimer(this, BarInterval)
{
    mTimer.setSingleShot(true);
}

void InfiniteBarItemMEG::startInfiniteProgressBar()
{
    mIsRunning = true;
    refresh();
}

void InfiniteBarItemMEG::timerEvent(UTimerEvent* event)
{
    if (event->id() != mTimer.id())
        return;
    mStep = (mStep + 1) % (2 * BarPositions);
    refresh();
}

void InfiniteBarItemMEG::paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const
{
    if (!mIsRunning) {
        VantoListBoxItemMEG::paintRow(painter, rowLine, line, column, columns);
        return;
    }
    const UString text = getDisplayedText();
    const int textColumns = text.isEmpty() ? 0 : painter.text(line, column, text, columns / 2) + 1;
    const int position = mStep <= BarPositions ? mStep : 2 * BarPositions - mStep;
    painter.blockBar(line, column + textColumns, columns - textColumns, BarPositions, position);
    // Each painting asks for the next one, so that a row that nobody paints wakes nobody up.
    if (!mTimer.isRunning())
        mTimer.start();
}
