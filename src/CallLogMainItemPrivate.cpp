#include "CallLogMainItemPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "PartyText.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <utility>

namespace DisplayAPI {

namespace {

// The row's icon types: those of the numbers from 0 to 3, and none.
constexpr int NumberIcons = 4;
constexpr int NoNumberIcon = 4;

CallLogListItemMEG::IconType iconOf(const CallPartyIdentifier& party)
{
    const int number = party.numberIconType;
    const bool isKind = !party.isCallHasNameButNoNumber() && number >= 1 && number <= NumberIcons;
    return static_cast<CallLogListItemMEG::IconType>(isKind ? number - 1 : NoNumberIcon);
}

/// What the row shows of a party, side by side.
NameAndNumber shownParty(const CallPartyIdentifier& party)
{
    const std::string unknown = CallPartyIdentifier::UnknownParty;
    std::string number = party.number == unknown ? unknownParty() : party.number;
    if (party.name == unknown)
        return {std::move(number), {}};
    return {party.name, std::move(number)};
}

CallLogListItemMEG* makeRow(const CallPartyIdentifier& party, const std::string& date, int count, bool bold,
    bool completedElsewhere, int variant)
{
    const NameAndNumber shown = shownParty(party);
    return new CallLogListItemMEG(UString(shown.name), UString(shown.number), iconOf(party), UString(date), count, bold,
        party.isMarked, completedElsewhere, variant);
}

}

CallLogMainItemPrivate::CallLogMainItemPrivate(CallPartyIdentifier* party, const std::string& date, int count,
    bool bold, bool completedElsewhere, int variant, bool arrow)
    : mParty(party ? party : new CallPartyIdentifier)
    , mWidget(makeRow(*mParty, date, count, bold, completedElsewhere, variant))
{
    assertGuiThread();
    mWidget->setArrow(arrow);
    joinApplication(this);
}

CallLogMainItemPrivate::~CallLogMainItemPrivate()
{
    assertGuiThread();
}

void CallLogMainItemPrivate::setBold(bool bold)
{
    if (mWidget)
        mWidget->setBold(bold);
}

void CallLogMainItemPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged({});
}

}
