#include "ConnectedCalls.h"

#include "PartyTexts.h"

#include <algorithm>
#include <utility>

using namespace DisplayAPI;
using State = CallService::State;

ConnectedCalls::ConnectedCalls(Screens& screens, Languages& languages, CommandListener& listener)
    : mScreens(screens)
    , mLanguages(languages)
{
    mList.addCommandListener(&listener);
}

ConnectedCalls::~ConnectedCalls()
{
    // The list deletes its rows; those in the conference are left.
    for (const auto& [id, entry] : mCalls) {
        if (entry.isMember)
            delete entry.row;
    }
}

void ConnectedCalls::show()
{
    mScreens.show(mList);
}

void ConnectedCalls::leaveIfEmpty()
{
    if (isEmpty() && mScreens.isShown(mList))
        mScreens.showIdle();
}

// Calls

void ConnectedCalls::add(const CallService::Call& call)
{
    auto* row = new Row(Row::CALL_ACTIVE, nullptr, false, nullptr, false, true, true, false, false);
    CallPartyIdentifier party = identifierOf(call.party);
    party.displayText = shortNameOf(call.party, mLanguages);
    row->setPartyDetails(party, nullptr, forwardedTypeOf(CallService::Diversion::None), "", nullptr);
    row->setMuteIcon(mIsMuted);
    mCalls[call.id] = {row, call.state};
    mList.append(row);
    mList.setSelected(row);
}

void ConnectedCalls::update(const CallService::Call& call)
{
    const auto found = mCalls.find(call.id);
    if (found == mCalls.end())
        return;
    Entry& entry = found->second;
    entry.state = call.state;
    entry.row->setState(call.state == State::Connected ? Row::CALL_ACTIVE
            : call.state == State::HeldThere           ? Row::CALL_HELD_BY_FAR_END
                                                       : Row::CALL_HELD_BY_THIS_END);
    if (mConference && entry.isMember)
        mConference->setState(isConferenceHeld() ? Row::CALL_HELD_BY_THIS_END : Row::CALL_ACTIVE);
}

void ConnectedCalls::remove(int call)
{
    const auto found = mCalls.find(call);
    if (found == mCalls.end())
        return;
    const Entry entry = found->second;
    mCalls.erase(found);
    entry.row->setState(Row::CALL_CLEARING);
    if (entry.isMember)
        mConference->removeCall(entry.row);
    else
        mList.remove(entry.row);
    delete entry.row;
    if (mConference && members().size() < 2)
        dissolve();
}

ConnectedCalls::Selection ConnectedCalls::selected()
{
    ListItem* item = mList.getSelected();
    if (mConference && item == mConference) {
        item = mConference->getSelectedMember();
        if (item == mConference)
            return {0, true};
    }
    for (const auto& [id, entry] : mCalls) {
        if (entry.row == item)
            return {id, false};
    }
    return {};
}

void ConnectedCalls::setMuted(bool muted)
{
    mIsMuted = muted;
    for (const auto& [id, entry] : mCalls)
        entry.row->setMuteIcon(muted);
    if (mConference)
        mConference->setMuteIcon(muted);
}

// Conference

void ConnectedCalls::join(const std::vector<int>& calls)
{
    if (!mConference) {
        mConference = new ConferenceCallItem(Row::CALL_ACTIVE, mLanguages.text("Conference"), false, false);
        mConference->setMuteIcon(mIsMuted);
        mList.append(mConference);
    }
    for (const int call : calls) {
        const auto found = mCalls.find(call);
        if (found == mCalls.end() || std::exchange(found->second.isMember, true))
            continue;
        mConference->appendCall(found->second.row, false);
    }
    mList.setSelected(mConference);
}

void ConnectedCalls::takeOut(int call)
{
    const auto found = mCalls.find(call);
    if (found == mCalls.end() || !std::exchange(found->second.isMember, false))
        return;
    mConference->removeCall(found->second.row);
    mList.append(found->second.row);
    mList.setSelected(found->second.row);
    if (members().size() < 2)
        dissolve();
}

bool ConnectedCalls::isMember(int call) const
{
    const auto found = mCalls.find(call);
    return found != mCalls.end() && found->second.isMember;
}

std::vector<int> ConnectedCalls::members() const
{
    std::vector<int> all;
    for (const auto& [id, entry] : mCalls) {
        if (entry.isMember)
            all.push_back(id);
    }
    return all;
}

bool ConnectedCalls::isConferenceHeld() const
{
    return std::none_of(mCalls.begin(), mCalls.end(),
        [](const auto& call) { return call.second.isMember && call.second.state == State::Connected; });
}

void ConnectedCalls::dissolve()
{
    mList.remove(mConference);
    for (auto& [id, entry] : mCalls) {
        if (!std::exchange(entry.isMember, false))
            continue;
        mConference->removeCall(entry.row);
        mList.append(entry.row);
    }
    delete std::exchange(mConference, nullptr);
}
