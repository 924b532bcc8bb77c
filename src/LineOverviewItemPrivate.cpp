#include "LineOverviewItemPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <array>

namespace DisplayAPI {

namespace {

constexpr int NoIcon = -1;
constexpr int ActiveHD = 9;

/// The row's icon types, by the number of the line's state.
constexpr std::array<int, 12> StateIcons = {0, 1, NoIcon, 2, 3, 4, 5, 6, 7, NoIcon, NoIcon, 8};

int iconOf(LineOverviewItem::LineState state, bool isHD)
{
    if (state == LineOverviewItem::LINE_ACTIVE && isHD)
        return ActiveHD;
    const bool isState = state >= 0 && state < static_cast<int>(StateIcons.size());
    return isState ? StateIcons[static_cast<std::size_t>(state)] : NoIcon;
}

LineOverviewListItem* makeRow(
    LineOverviewItem::LineState state, const std::string& name, const std::string& identity, bool arrow)
{
    const int icon = iconOf(state, false);
    if (icon == NoIcon)
        return nullptr;
    const auto iconType = static_cast<LineOverviewListItem::LineStateIconType>(icon);
    return new LineOverviewListItem(iconType, UString(name), UString(identity), arrow);
}

}

LineOverviewItemPrivate::LineOverviewItemPrivate(LineOverviewItem::LineState state, const std::string& name,
    const std::string& identity, bool arrow, TranslationInfo* prefix)
    : mLineState(state)
    , mLineName(name)
    , mIdentityText(identity)
    , mWidget(makeRow(state, name, identity, arrow))
{
    assertGuiThread();
    mHoldTimer.setSingleShot(true);
    setLineNamePrefix(prefix);
    joinApplication(this);
}

LineOverviewItemPrivate::~LineOverviewItemPrivate()
{
    assertGuiThread();
}

// The line

void LineOverviewItemPrivate::setLineState(LineOverviewItem::LineState state)
{
    mLineState = state;
    showState(shownRow());
}

void LineOverviewItemPrivate::showState(LineOverviewListItem* row) const
{
    const int icon = iconOf(mLineState, mShowHDIcon);
    if (row && icon != NoIcon)
        row->setIconType(static_cast<LineOverviewListItem::LineStateIconType>(icon));
}

void LineOverviewItemPrivate::setLineName(const std::string& name)
{
    mLineName = name;
    if (LineOverviewListItem* row = shownRow())
        row->setName(UString(name));
}

void LineOverviewItemPrivate::setLineNamePrefix(TranslationInfo* prefix)
{
    mNamePrefixInfo.take(prefix);
    if (LineOverviewListItem* row = shownRow())
        row->setPrefix(UString(mNamePrefixInfo.string()));
}

void LineOverviewItemPrivate::setLineIdentity(const std::string& identity)
{
    mIdentityInfo.forget();
    mIdentityText = identity;
    if (LineOverviewListItem* row = shownRow())
        row->setIdentity(UString(identity));
}

void LineOverviewItemPrivate::setLineIdentity(TranslationInfo* identity)
{
    mIdentityText.reset();
    mIdentityInfo.take(identity);
    if (LineOverviewListItem* row = shownRow(); row && mIdentityInfo)
        row->setIdentity(UString(mIdentityInfo.string()));
}

// Hold

void LineOverviewItemPrivate::holdItem(int milliseconds)
{
    if (mHeld) {
        mHoldTimer.stop();
        refreshItem();
    }
    mHeld = milliseconds > 0;
    if (!mHeld)
        return;
    mHoldTimer.setInterval(static_cast<unsigned long long>(milliseconds));
    mHoldTimer.start();
}

void LineOverviewItemPrivate::timerEvent(UTimerEvent*)
{
    mHeld = false;
    refreshItem();
}

void LineOverviewItemPrivate::refreshItem()
{
    if (!mWidget)
        return;
    mWidget->setName(UString(mLineName));
    if (mIdentityInfo)
        mWidget->setIdentity(UString(mIdentityInfo.string()));
    else if (mIdentityText)
        mWidget->setIdentity(UString(*mIdentityText));
    if (mNamePrefixInfo)
        mWidget->setPrefix(UString(mNamePrefixInfo.string()));
    showState(mWidget);
}

void LineOverviewItemPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged({});
}

}
