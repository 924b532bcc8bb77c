#include "CallForwardItemPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"

#include <EventTypes.h>
#include <UEvent.h>

namespace DisplayAPI {

namespace {

using IconType = CallForwardListItemMEG::IconType;

constexpr IconType CheckBox{4};
constexpr IconType NoRow{-1};

IconType toolkitType(CallLogMainItem::IconType iconType)
{
    if (CallForwardItemPrivate::hasIcon(iconType))
        return static_cast<IconType>(iconType);
    return iconType == CallLogMainItem::NoIcon ? CheckBox : NoRow;
}

std::string withBlank(const TranslationInfo* prefix)
{
    return prefix ? prefix->getString() + " " : std::string();
}

}

CallForwardItemPrivate::CallForwardItemPrivate(
    CallLogMainItem::IconType iconType, TranslationInfo* text, bool readOnly, bool arrow)
{
    assertGuiThread();
    const std::string shown = mMainInfo.showBare(text);
    if (const IconType type = toolkitType(iconType); type != NoRow) {
        mRow = new CallForwardListItemMEG(type, UString(shown), readOnly);
        mRow->setArrow(arrow);
    }
    mOwnership.gainOwnership();
    joinApplication(this);
}

CallForwardItemPrivate::CallForwardItemPrivate(TranslationInfo* text)
{
    assertGuiThread();
    mRow = new CallForwardListItemMEG(UString(mMainInfo.show(text)));
    mOwnership.gainOwnership();
    joinApplication(this);
}

CallForwardItemPrivate::~CallForwardItemPrivate()
{
    assertGuiThread();
    leaveApplication(this);
}

bool CallForwardItemPrivate::hasIcon(CallLogMainItem::IconType iconType)
{
    return iconType >= CallLogMainItem::ForwardAlways && iconType <= CallLogMainItem::ForwardOnNoAnswer;
}

// Check mark and state

void CallForwardItemPrivate::swapCheck()
{
    if (mRow)
        mRow->swapCheck();
}

void CallForwardItemPrivate::check()
{
    if (mRow)
        mRow->check();
}

void CallForwardItemPrivate::uncheck()
{
    if (mRow)
        mRow->uncheck();
}

void CallForwardItemPrivate::setReadonly(bool readOnly, bool)
{
    if (mRow)
        mRow->setReadonly(readOnly);
}

void CallForwardItemPrivate::setCFIconVisible(bool visible)
{
    if (mRow)
        mRow->setCFIconVisible(visible);
}

// Texts

// The prefix is read first: it may be the very translation that goes.

void CallForwardItemPrivate::setTextBranch(
    const std::string& text, TranslationInfo* prefix, CallForwardItem::eCallForwardBranchLine)
{
    const std::string head = withBlank(prefix);
    showBranchText(head + mBranchInfo.show(text));
}

void CallForwardItemPrivate::setTextBranch(
    TranslationInfo* text, TranslationInfo* prefix, CallForwardItem::eCallForwardBranchLine)
{
    const std::string head = withBlank(prefix);
    showBranchText(head + mBranchInfo.showBare(text));
}

void CallForwardItemPrivate::showMainText(const std::string& text)
{
    if (mRow)
        mRow->setMainText(UString(text));
}

void CallForwardItemPrivate::showBranchText(const std::string& text)
{
    if (mRow)
        mRow->setBranchText(UString(text));
}

void CallForwardItemPrivate::localeChanged(std::string)
{
    if (mMainInfo)
        showMainText(mMainInfo.completeString());
    if (ExpandingListChildBaseMEG* first = mRow ? mRow->branchRow(0) : nullptr; first && mBranchInfo)
        first->setMainText(UString(mBranchInfo.completeString()));
}

void CallForwardItemPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged({});
}

}
