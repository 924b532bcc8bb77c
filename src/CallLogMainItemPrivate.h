#pragma once

#include <DisplayAPI/CallLogMainItemPrivateIfc.h>
#include <DisplayAPI/CallPartyIdentifier.h>

#include "OwnershipDelegate.h"

#include <CallRowsMEG.h>

#include <memory>
#include <string>

namespace DisplayAPI {

/// The row of the call log on the GUI thread: a CallLogListItemMEG with the texts of its party.
///
/// A list that holds the toolkit's row may delete it; then everything here is without effect.
class CallLogMainItemPrivate : public CallLogMainItemPrivateIfc {
public:
    /// Takes the party over; null is one of whom nothing is known.
    CallLogMainItemPrivate(CallPartyIdentifier* party, const std::string& date, int count, bool bold,
        bool completedElsewhere, int variant, bool arrow);
    ~CallLogMainItemPrivate() override;
    CallLogMainItemPrivate(const CallLogMainItemPrivate&) = delete;
    CallLogMainItemPrivate& operator=(const CallLogMainItemPrivate&) = delete;

    /// Without effect: the texts stay as they were when the row was made.
    void localeChanged(std::string) override { }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    VantoListBoxItemMEG* getVantoListItem() override { return mWidget; }
    void setBold(bool bold) override;
    void event(UEvent* event) override;

private:
    std::unique_ptr<CallPartyIdentifier> mParty;
    CallLogListItemMEG* mWidget; // null once a list that held the row has deleted it
    OwnershipDelegate<CallLogListItemMEG> mOwnership{&mWidget};
};

}
