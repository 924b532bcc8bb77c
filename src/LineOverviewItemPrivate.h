#pragma once

#include <DisplayAPI/LineOverviewItemPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <CallRowsMEG.h>
#include <ULoop.h>

#include <optional>
#include <string>

namespace DisplayAPI {

/// The row of a line on the GUI thread: a LineOverviewListItem, and what it shows when it is not held.
///
/// Without a toolkit row, since the state has none or a list has deleted it, everything is stored and nothing shown.
class LineOverviewItemPrivate : public LineOverviewItemPrivateIfc {
public:
    /// Takes the prefix over; null is none.
    LineOverviewItemPrivate(LineOverviewItem::LineState state, const std::string& name, const std::string& identity,
        bool arrow, TranslationInfo* prefix);
    ~LineOverviewItemPrivate() override;
    LineOverviewItemPrivate(const LineOverviewItemPrivate&) = delete;
    LineOverviewItemPrivate& operator=(const LineOverviewItemPrivate&) = delete;

    /// Without effect: a translation is read when it is set and when a hold ends.
    void localeChanged(std::string) override { }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    VantoListBoxItemMEG* getVantoListItem() override { return mWidget; }

    // The line. The forms with a translation take it over.

    void setLineState(LineOverviewItem::LineState state) override;
    void setLineName(const std::string& name) override;
    void setLineNamePrefix(TranslationInfo* prefix);
    void setLineIdentity(const std::string& identity) override;
    void setLineIdentity(TranslationInfo* identity);
    void setDisplayHDIconStatus(bool shown) override { mShowHDIcon = shown; }

    // Hold

    void holdItem(int milliseconds) override;

    /// Writes all that is stored on the row, held or not.
    void refreshItem();

    void event(UEvent* event) override;
    void timerEvent(UTimerEvent* event) override;

private:
    LineOverviewListItem* shownRow() const { return mHeld ? nullptr : mWidget; }
    void showState(LineOverviewListItem* row) const;

    TranslationHolder mNamePrefixInfo;
    TranslationHolder mIdentityInfo;
    bool mShowHDIcon = false;
    bool mHeld = false;
    LineOverviewItem::LineState mLineState;
    std::string mLineName;
    std::optional<std::string> mIdentityText; // none while a translation stands for it
    UTimer mHoldTimer{this};
    LineOverviewListItem* mWidget;
    OwnershipDelegate<LineOverviewListItem> mOwnership{&mWidget};
};

}
