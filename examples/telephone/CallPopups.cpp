#include "CallPopups.h"

#include "PartyTexts.h"

#include <DisplayAPI/CommandListener.h>

using namespace DisplayAPI;
using Diversion = CallService::Diversion;
using Kind = CallService::Kind;
using State = CallService::State;

namespace {

PopupCall::CallState offeredStateOf(Kind kind)
{
    switch (kind) {
    case Kind::Group: return PopupCall::GROUP_CALL;
    case Kind::Direct: return PopupCall::DSS;
    case Kind::Recall: return PopupCall::RECALL;
    case Kind::CallBack: return PopupCall::CALL_BACK;
    case Kind::LinePickUp: return PopupCall::RINGING_BLF;
    case Kind::GroupPickUp: return PopupCall::RINGING_GROUP;
    case Kind::Outgoing:
    case Kind::Incoming: break;
    }
    return PopupCall::INCOMING;
}

PopupCall::CallState stateOf(const CallService::Call& call)
{
    switch (call.state) {
    case State::Ringing: return call.diversion == Diversion::None ? PopupCall::RINGING : PopupCall::RINGING_KEEP_LINE2;
    case State::Busy: return PopupCall::BUSY;
    case State::Unobtainable: return PopupCall::UNOBTAINABLE;
    case State::Incoming: return offeredStateOf(call.kind);
    case State::HeldTooLong: return PopupCall::HOLD_TIMEOUT;
    default: return PopupCall::CONNECTING;
    }
}

PopupCall::CallPriority priorityOf(CallService::Priority priority)
{
    switch (priority) {
    case CallService::Priority::Urgent: return PopupCall::URGENT;
    case CallService::Priority::Direct: return PopupCall::DIRECT;
    case CallService::Priority::Normal: break;
    }
    return PopupCall::NORMAL;
}

}

CallPopups::CallPopups(Screens& screens, Languages& languages, CommandListener& listener)
    : accept(languages.text("Accept", "?"), 1)
    , endAndAccept(languages.text("End, accept", "?"), 2)
    , reject(languages.text("Reject", "?"), 3)
    , deflect(languages.text("Deflect", "?"), 4)
    , pickUp(languages.text("Pick up", "?"), 5)
    , ignore(languages.text("Ignore", "?"), 6)
    , call(languages.text("Call", "?"), 7)
    , callBack(languages.text("Call back", "?"), 8)
    , resume(languages.text("Resume", "?"), 9)
    , disconnect(languages.text("Disconnect", "?"), 10)
    , mScreens(screens)
    , mLanguages(languages)
    , mListener(listener)
{
}

void CallPopups::show(const CallService::Call& shown, bool isWaiting)
{
    Popup& entry = mPopups[shown.id];
    const bool isNew = !entry.popup;
    if (isNew) {
        entry.popup = std::make_unique<PopupCall>();
        entry.popup->addCommandListener(&mListener);
    }
    fill(*entry.popup, shown, isWaiting);
    const bool wantsAnswer
        = shown.state != entry.state && (shown.state == State::Incoming || shown.state == State::HeldTooLong);
    entry.state = shown.state;
    if (!isNew && !wantsAnswer)
        return;
    entry.isAside = false;
    mScreens.showOver(*entry.popup);
}

/// The second line is read with the first choice, so the choices come last.
void CallPopups::fill(PopupCall& popup, const CallService::Call& shown, bool isWaiting)
{
    CallPartyIdentifier party = identifierOf(shown.party);
    CallPartyIdentifier second = identifierOf(shown.second);
    const bool hasSecond = !shown.second.number.empty();
    popup.clearCommands();
    popup.setPopupCallDetails(party, hasSecond ? &second : nullptr, forwardedTypeOf(shown.diversion), "", nullptr);
    popup.setState(stateOf(shown), priorityOf(shown.priority));
    if (shown.state == State::Incoming && shown.kind == Kind::Group)
        popup.setLine2Text(mLanguages.text("Group call"));
    const auto choices = choicesOf(shown, isWaiting);
    popup.setCommands(choices);
    popup.setDefaultCommand(choices.front());
}

std::vector<MenuCommand*> CallPopups::choicesOf(const CallService::Call& shown, bool isWaiting)
{
    if (shown.state == State::HeldTooLong)
        return {&resume, &ignore, &disconnect};
    if (shown.state == State::Busy)
        return {&disconnect, &callBack};
    if (shown.state != State::Incoming)
        return {&disconnect};
    switch (shown.kind) {
    case Kind::CallBack: return {&call, &reject};
    case Kind::LinePickUp:
    case Kind::GroupPickUp: return {&pickUp, &ignore};
    case Kind::Recall: return {&accept, &reject};
    default: break;
    }
    if (isWaiting)
        return {&accept, &endAndAccept, &reject, &deflect};
    return {&accept, &reject, &deflect};
}

void CallPopups::remove(int removed)
{
    const auto found = mPopups.find(removed);
    if (found == mPopups.end())
        return;
    found->second.popup->dismiss();
    mPopups.erase(found);
}

void CallPopups::putAside(int put)
{
    const auto found = mPopups.find(put);
    if (found == mPopups.end())
        return;
    found->second.isAside = true;
    found->second.popup->dismiss();
}

void CallPopups::raise()
{
    for (const auto& [id, entry] : mPopups) {
        if (!entry.isAside)
            mScreens.showOver(*entry.popup);
    }
}

void CallPopups::showAll()
{
    for (auto& [id, entry] : mPopups)
        entry.isAside = false;
    raise();
}

int CallPopups::callOf(const Displayable* displayable) const
{
    for (const auto& [id, entry] : mPopups) {
        if (entry.popup.get() == displayable)
            return id;
    }
    return 0;
}
