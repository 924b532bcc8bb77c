#include "ConferenceCallItemPrivate.h"

#include "Road.h"

#include <climits>

namespace DisplayAPI {

namespace {

/// A subclass of the application may have a half with a row of another kind, which cannot join.
TreeItemMEG* rowOf(ListItemPrivateIfc* half)
{
    return half ? dynamic_cast<TreeItemMEG*>(half->getVantoListItem()) : nullptr;
}

}

ConferenceCallItemPrivate::ConferenceCallItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text,
    CallConnectedItem* handle, bool headset, bool widgetFlag1)
    : CallConnectedItemPrivate(state, text, headset, nullptr, widgetFlag1, true, false, false, false)
    , mTitleCall(handle)
{
    widget()->setTreeType(TreeItemMEG::ConferenceType);
    widget()->clearSecondLineText();
}

ConferenceCallItemPrivate::~ConferenceCallItemPrivate()
{
    mMembers.giveBackAll([this](ListItemPrivateIfc* half) { takeOut(half); });
}

// Title

void ConferenceCallItemPrivate::setTitleSuffix(const std::string& text, TranslationInfo* info)
{
    const std::string shown = info ? mTitleSuffixInfo.showBare(info) : mTitleSuffixInfo.show(text);
    if (widget())
        widget()->setPrePrefixText(UString(shown));
}

CallConnectedItem* ConferenceCallItemPrivate::getTitleCall()
{
    return static_cast<CallConnectedItem*>(mTitleCall.get());
}

void ConferenceCallItemPrivate::localeChanged(std::string locale)
{
    CallConnectedItemPrivate::localeChanged(locale);
    // The half of a member may be the application's own, and take the conference with it.
    LifeNode life(this);
    mMembers.localeChanged(locale);
    if (life.isAlive() && mTitleSuffixInfo && widget())
        widget()->setPrePrefixText(UString(mTitleSuffixInfo.string()));
}

// Members

std::vector<ListItem*> ConferenceCallItemPrivate::members()
{
    // With the halves go their rows of the toolkit.
    if (mMembers.forgetDead())
        deleteKeptHalves();
    return mMembers.all();
}

void ConferenceCallItemPrivate::appendCall(CallConnectedItem* call, bool)
{
    const HeldRows::Row row(call);
    members();
    if (!mayJoin(row.get()))
        return;
    // Whoever holds the call gives it up, which the display may tell of: then everything may be different.
    const HeldRows::Step step(mMembers);
    if (RowHolder* holder = call->holder())
        holder->letGo(*call);
    if (!step || !mayJoin(row.get()) || !HeldRows::isFree(row.get()))
        return;
    mMembers.expect(*call, INT_MAX);
    mMembers.bringIn(row, [this](ListItemPrivateIfc* half) { join(half); });
}

bool ConferenceCallItemPrivate::mayJoin(ListItem* call) const
{
    return rowOf(HeldRows::halfOf(call)) && widget() && !mMembers.holds(call) && !isPartOf(call);
}

/// True for the conference itself and for one that holds it, at any depth.
bool ConferenceCallItemPrivate::isPartOf(const ListItem* conference) const
{
    const ListItem* outer = mTitleCall.get();
    while (outer && outer != conference) {
        const auto* holder = dynamic_cast<const Members*>(outer->holder());
        outer = holder ? holder->conference().mTitleCall.get() : nullptr;
    }
    return outer != nullptr;
}

void ConferenceCallItemPrivate::join(ListItemPrivateIfc* half)
{
    TreeItemMEG* row = rowOf(half);
    half->releaseOwnership();
    row->setTreeType(TreeItemMEG::ConferenceType);
    row->cancelDurationTimer();
    widget()->addChildItem(row);
}

void ConferenceCallItemPrivate::takeOut(ListItemPrivateIfc* half)
{
    if (!half)
        return;
    if (widget())
        widget()->removeChildItem(rowOf(half));
    half->gainOwnership();
}

void ConferenceCallItemPrivate::removeCall(CallConnectedItem* call)
{
    if (mMembers.holds(call))
        mMembers.giveBack(HeldRows::Row(call), [&] { takeOut(HeldRows::halfOf(call)); });
}

void ConferenceCallItemPrivate::removeCall(int member)
{
    if (CallConnectedItem* call = getIndexedCall(member))
        removeCall(call);
}

CallConnectedItem* ConferenceCallItemPrivate::getIndexedCall(int member)
{
    const std::vector<ListItem*> all = members();
    if (member < 1 || member > static_cast<int>(all.size()))
        return nullptr;
    return static_cast<CallConnectedItem*>(all[static_cast<std::size_t>(member) - 1]);
}

void ConferenceCallItemPrivate::Members::rowChanged(ListItem& row, ListItemPrivateIfc* before)
{
    giveBack(Row(&row), [&] { mConference.takeOut(before); });
    // The new row of the toolkit comes behind the others.
    mConference.appendCall(static_cast<CallConnectedItem*>(&row), false);
}

// Selection

void ConferenceCallItemPrivate::setCallItem(int row)
{
    if (row >= 0 && row <= static_cast<int>(members().size()) && widget())
        widget()->setCurrentChild(row);
}

CallConnectedItem* ConferenceCallItemPrivate::getSelectedCall()
{
    if (!widget())
        return nullptr;
    const int row = widget()->getCurrentChild();
    return row == 0 ? getTitleCall() : getIndexedCall(row);
}

}
