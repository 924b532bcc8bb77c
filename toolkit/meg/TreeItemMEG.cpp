#include "TreeItemMEG.h"

#include "EventTypes.h"
#include "Icons.h"
#include "TextCells.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxMEG.h"

#include <algorithm>
#include <string>

namespace {

constexpr unsigned long long TickInterval = 1000;
constexpr int IconColumns = 2;

// Numbers of icons that the library hands over as well.
constexpr std::uint16_t BusyIcon = 17;
constexpr std::uint16_t RingingIcon = 14;
constexpr std::uint16_t MuteIcon = 46;
constexpr std::uint16_t HeadsetIcon = 90;
constexpr std::uint16_t SpeakerIcon = 102;

}

// The first line

BranchMEG::BranchMEG(TreeItemMEG* row, IconType iconType)
    : UWidget(row)
    , mRow(*row)
    , mTimer(this, TickInterval)
    , mIconType(iconType)
{
    if (isConnected())
        startDuration();
}

BranchMEG::~BranchMEG() = default;

UString BranchMEG::text() const
{
    static const UString blank(" ");
    UString text = mRow.getText();
    if (mPrePrefix.isEmpty())
        return text;
    return text.isEmpty() ? mPrePrefix : mPrePrefix + blank + text;
}

bool BranchMEG::hasContextMenuArrow() const
{
    return mRow.drawCMA();
}

TreeElement* BranchMEG::childElement(int index) const
{
    if (mRow.hasSecondLine() && index-- == 0)
        return mRow.mLeaf;
    return index >= 0 && index < mRow.childCount() ? mRow.mChildren[static_cast<std::size_t>(index)]->branch : nullptr;
}

bool BranchMEG::childShown() const
{
    return mRow.isSecondLineShown() && mRow.isCurrentRow() && mRow.listBox()->visibleLines() > 1;
}

void BranchMEG::setIconType(IconType iconType)
{
    mIconType = iconType;
    if (isConnected())
        startDuration();
    refresh();
}

bool BranchMEG::isConnected() const
{
    return mIconType == CallActive || mIconType == CallActiveHD || mIconType == CallHeldByThisEnd
        || mIconType == CallHeldByFarEnd;
}

// Marks

void BranchMEG::setFlag(bool& flag, bool on)
{
    flag = on;
    refresh();
}

void BranchMEG::setCallSecurityState(CallSecurityState state)
{
    mSecurityState = state;
    refresh();
}

void BranchMEG::setCallRecordingState(CallRecording state)
{
    mRecordingState = state;
    refresh();
}

void BranchMEG::setHeadsetIcon(bool on)
{
    setFlag(mIsHeadset, on);
}

void BranchMEG::setSpeakerIcon(bool on)
{
    setFlag(mIsSpeaker, on);
}

void BranchMEG::setMuteIcon(bool on)
{
    setFlag(mIsMute, on);
}

void BranchMEG::setPhoneLockedIcon(bool on)
{
    setFlag(mIsPhoneLocked, on);
}

void BranchMEG::setRemoteMaintenanceIcon(bool on)
{
    setFlag(mIsRemoteMaintenance, on);
}

std::uint16_t BranchMEG::firstIcon() const
{
    switch (mIconType) {
    case CallActive:
    case CallActiveHD:
        if (mIsMute)
            return MuteIcon;
        if (mIsSpeaker)
            return SpeakerIcon;
        if (mIsHeadset)
            return HeadsetIcon;
        return mIconType == CallActive ? Icons::ConnectedCall : Icons::ConnectedCallHD;
    case CallClearing: return Icons::ClearedCall;
    case CallHeldByThisEnd:
    case CallHeldByFarEnd: return Icons::HeldCall;
    case LineBusy: return BusyIcon;
    case Alerting: return RingingIcon;
    case CallNoIcon: break;
    }
    return 0;
}

std::vector<std::uint16_t> BranchMEG::marks() const
{
    std::vector<std::uint16_t> marks;
    if (mSecurityState == SecureCall)
        marks.push_back(Icons::SecureCall);
    if (mSecurityState == InsecureCall)
        marks.push_back(Icons::InsecureCall);
    if (mRecordingState == Recording)
        marks.push_back(Icons::Recording);
    if (mIsPhoneLocked)
        marks.push_back(Icons::KeyLock);
    if (mIsRemoteMaintenance)
        marks.push_back(Icons::Maintenance);
    return marks;
}

// Duration

void BranchMEG::startDuration()
{
    if (mDuration != Duration::NotStarted)
        return;
    mDuration = Duration::Running;
    mStartedAt = ULoop::instance().now();
    mTimer.start();
}

void BranchMEG::stopDuration()
{
    if (mDuration != Duration::Running)
        return;
    mDuration = Duration::Stopped;
    mStoppedAt = ULoop::instance().now();
    mTimer.stop();
}

void BranchMEG::cancelDuration()
{
    mDuration = Duration::Cancelled;
    mTimer.stop();
    refresh();
}

std::uint64_t BranchMEG::seconds() const
{
    if (!isDurationShown())
        return 0;
    const std::uint64_t end = mDuration == Duration::Running ? ULoop::instance().now() : mStoppedAt;
    return (end - mStartedAt) / TickInterval;
}

UString BranchMEG::getTimeDuration() const
{
    constexpr std::uint64_t sixty = 60;
    const auto twoDigits = [](std::uint64_t number) { return (number < 10 ? ":0" : ":") + std::to_string(number); };
    const std::uint64_t total = seconds();
    const std::uint64_t minutes = total / sixty;
    const std::uint64_t hours = minutes / sixty;
    const std::string ahead = hours == 0 ? std::to_string(minutes) : std::to_string(hours) + twoDigits(minutes % sixty);
    return UString(ahead + twoDigits(total % sixty));
}

void BranchMEG::timerEvent(UTimerEvent* event)
{
    if (event->id() != mTimer.id())
        return;
    refresh();
    emit(EventType::ContentChanged, this);
}

// The second line

Leaf::Leaf(TreeItemMEG* row)
    : UWidget(row)
    , mRow(*row)
{
}

URect Leaf::getRect() const
{
    return mRow.isCurrentRow() ? mRow.listBox()->getRect() : mRow.getRect();
}

// The row

TreeItemMEG::TreeItemMEG(
    BranchMEG::IconType iconType, const UString& text, bool hasContextMenuArrow, bool showsDuration)
    : VantoListBoxItemMEG(text)
    , branch(new BranchMEG(this, iconType))
    , mLeaf(new Leaf(this))
    , mShowsDuration(showsDuration)
{
    setArrow(hasContextMenuArrow);
}

TreeItemMEG::~TreeItemMEG() = default;

void TreeItemMEG::setFirstIconType(BranchMEG::IconType iconType)
{
    branch->setIconType(iconType);
}

void TreeItemMEG::setSecondLineText(const UString& text)
{
    mLeaf->mText = text;
    refresh();
}

void TreeItemMEG::clearSecondLineText()
{
    mLeaf->mText.clear();
    refresh();
}

void TreeItemMEG::setPrePrefixText(const UString& text)
{
    branch->mPrePrefix = text;
    refresh();
}

void TreeItemMEG::stopDurationTimer()
{
    branch->stopDuration();
}

void TreeItemMEG::cancelDurationTimer()
{
    branch->cancelDuration();
}

void TreeItemMEG::enabled(bool enabled)
{
    setEnabled(enabled);
}

bool TreeItemMEG::isChoosable() const
{
    return VantoListBoxItemMEG::isChoosable() && getEnabled();
}

VantoListBoxMEG* TreeItemMEG::listBox() const
{
    return dynamic_cast<VantoListBoxMEG*>(parentWidget());
}

bool TreeItemMEG::isCurrentRow() const
{
    const VantoListBoxMEG* list = listBox();
    return list && list->currentItem() == this;
}

bool TreeItemMEG::isMember() const
{
    return mTreeType == ConferenceType && dynamic_cast<TreeItemMEG*>(parentWidget());
}

// Child rows

void TreeItemMEG::addChildItem(TreeItemMEG* child)
{
    if (!child || child->parentWidget() == this)
        return;
    child->setParent(this);
    if (child->parentWidget() == this)
        mChildren.push_back(child);
    refresh();
}

void TreeItemMEG::removeChildItem(int number)
{
    if (number >= 1 && number <= childCount())
        removeWidget(mChildren[static_cast<std::size_t>(number - 1)]);
}

void TreeItemMEG::removeChildItem(TreeItemMEG* child)
{
    if (std::find(mChildren.begin(), mChildren.end(), child) != mChildren.end())
        removeWidget(child);
}

void TreeItemMEG::setCurrentChild(int number)
{
    if (number < 0 || number > childCount())
        return;
    mCurrentChild = number;
    if (VantoListBoxMEG* list = listBox())
        list->setCurrentIndex(list->indexOf(this));
    refresh();
}

void TreeItemMEG::setTreeType(TreeItemTypes type)
{
    mTreeType = type;
    refresh();
}

void TreeItemMEG::childLeft(UWidget* child)
{
    const auto place = std::find(mChildren.begin(), mChildren.end(), child);
    if (place == mChildren.end())
        return;
    const int number = static_cast<int>(place - mChildren.begin()) + 1;
    mChildren.erase(place);
    if (number < mCurrentChild)
        --mCurrentChild;
    mCurrentChild = std::min(mCurrentChild, childCount());
    refresh();
}

// For the list

int TreeItemMEG::lineCount() const
{
    return hasSecondLine() || hasInnerRows() ? 2 : 1;
}

int TreeItemMEG::highlightedLine() const
{
    return mCurrentChild > 0 ? 1 : 0;
}

bool TreeItemMEG::moveInside(int step)
{
    const int next = mCurrentChild + step;
    if (next < 0 || next > childCount())
        return false;
    mCurrentChild = next;
    return true;
}

bool TreeItemMEG::hasMoreInside(int step) const
{
    if (!hasInnerRows())
        return false;
    return step > 0 ? shownChild() < childCount() : shownChild() > 1;
}

bool TreeItemMEG::enterFrom(int step)
{
    const int number = step > 0 ? 0 : childCount();
    const bool isOther = number != mCurrentChild;
    mCurrentChild = number;
    return isOther;
}

void TreeItemMEG::paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const
{
    if (rowLine == 0)
        paintBranch(painter, line, column, columns);
    else if (isSecondLineShown())
        painter.rowText(line, column, mLeaf->text(), columns);
    else
        mChildren[static_cast<std::size_t>(shownChild() - 1)]->paintBranch(painter, line, column, columns);
}

void TreeItemMEG::paintBranch(UPainter& painter, int line, int column, int columns) const
{
    int left = column + (isMember() ? IconColumns : painter.icon(line, column, branch->firstIcon()));
    int end = column + columns;
    if (mShowsDuration && branch->isDurationShown() && !isMember()) {
        const UString duration = branch->getTimeDuration();
        painter.textRight(line, end - 1, duration);
        end -= TextCells::count(duration);
    }
    const std::vector<std::uint16_t> marks = branch->marks();
    for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) {
        end -= IconColumns;
        painter.icon(line, end, *mark);
    }
    const bool isRightFree = end == column + columns;
    painter.text(line, left, branch->text(), end - left - (isRightFree ? 0 : 1));
}
