#include "CallScreens.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/ForwardedCallType.h>

#include <utility>

using namespace DisplayAPI;
using State = CallService::State;

namespace {

constexpr int MenuTime = 10;                 // seconds
constexpr ForwardedCallType NotForwarded{5}; // none of the enumeration, so that no text says so

CallPartyIdentifier partyOf(const CallService::Call& call)
{
    CallPartyIdentifier party(call.name.empty() ? CallPartyIdentifier::UnknownParty : call.name,
        call.number.empty() ? CallPartyIdentifier::UnknownParty : call.number);
    party.displayText = call.name.empty() ? call.number : call.name;
    return party;
}

bool isTalking(State state)
{
    return state == State::Connected || state == State::HeldHere || state == State::HeldThere;
}

}

CallScreens::CallScreens(Display& display, Languages& languages, CallService& service, IdleDisplay& idle)
    : mDisplay(display)
    , mLanguages(languages)
    , mService(service)
    , mIdle(idle)
    , mCall(languages.text("Call", "?"), 1)
    , mAccept(languages.text("Accept", "?"), 2)
    , mReject(languages.text("Reject", "?"), 3)
    , mDisconnect(languages.text("Disconnect", "?"), 4)
    , mHold(languages.text("Hold", "?"), 5)
    , mResume(languages.text("Resume", "?"), 6)
    , mJoin(languages.text("Conference", "?"), 7)
    , mSplit(languages.text("End conference", "?"), 8)
{
    mDialer.setLine1PrefixText(languages.text("Dial"));
    mDialer.addCommand(&mCall);
    mDialer.addCommandListener(this);
    mDialer.addItemStateListener(this);
    mIdle.addDialer(&mDialer);

    mOutgoing.addCommand(&mDisconnect);
    mOutgoing.addCommandListener(this);
    mIncoming.addCommand(&mAccept);
    mIncoming.addCommand(&mReject);
    mIncoming.addCommandListener(this);
    mConnected.addCommandListener(this);
    mMenu.setAutoHideTimeout(MenuTime);
    mMenu.addCommandListener(this);
    mService.setListener(this);
}

CallScreens::~CallScreens()
{
    mService.setListener(nullptr);
    // The list deletes its rows; those in the conference are left.
    for (const auto& [id, entry] : mCalls) {
        if (entry.isMember)
            delete entry.row;
    }
}

void CallScreens::dial(const std::string& number)
{
    mDialer.dismiss();
    mDialer.setLineEditText("");
    if (!number.empty())
        mService.dial(number);
}

void CallScreens::showConnected()
{
    if (mConnected.size() > 0)
        mDisplay.setCurrent(&mConnected);
}

// The line

void CallScreens::callChanged(const CallService::Call& call)
{
    {
        std::lock_guard lock(mMutex);
        mNews.push_back(call);
    }
    postCommandAction(&mHearLine, nullptr);
}

void CallScreens::hearLine()
{
    std::vector<CallService::Call> news;
    {
        std::lock_guard lock(mMutex);
        news.swap(mNews);
    }
    for (const CallService::Call& call : news) {
        Entry& entry = mCalls[call.id];
        entry.call = call;
        follow(entry);
    }
}

void CallScreens::follow(Entry& entry)
{
    switch (entry.call.state) {
    case State::Connecting:
    case State::Ringing:
    case State::Busy:
    case State::Unobtainable: showOutgoing(entry.call); break;
    case State::Incoming: showIncoming(entry.call); break;
    case State::Connected:
        if (!entry.row)
            connect(entry);
        [[fallthrough]];
    case State::HeldHere:
    case State::HeldThere: showRowState(entry); break;
    case State::Ended: end(entry); break;
    }
}

void CallScreens::showOutgoing(const CallService::Call& call)
{
    CallPartyIdentifier party = partyOf(call);
    mOutgoing.setPopupCallDetails(party, nullptr, NotForwarded, "", nullptr);
    mOutgoing.setState(call.state == State::Ringing ? PopupCall::RINGING
            : call.state == State::Busy             ? PopupCall::BUSY
            : call.state == State::Unobtainable     ? PopupCall::UNOBTAINABLE
                                                    : PopupCall::CONNECTING,
        PopupCall::NORMAL);
    if (call.state == State::Connecting || call.state == State::Unobtainable)
        mDisplay.setCurrent(&mOutgoing);
}

void CallScreens::showIncoming(const CallService::Call& call)
{
    CallPartyIdentifier party = partyOf(call);
    mIncoming.setPopupCallDetails(party, nullptr, NotForwarded, "", nullptr);
    mIncoming.setState(PopupCall::INCOMING, PopupCall::NORMAL);
    mIncoming.setDefaultCommand(&mAccept);
    mDisplay.setCurrent(&mIncoming);
}

/// The call gets a row, and the voice.
void CallScreens::connect(Entry& entry)
{
    entry.row = new Row(Row::CALL_ACTIVE, nullptr, false, nullptr, false, true, true, false, false);
    const CallPartyIdentifier party = partyOf(entry.call);
    entry.row->setPartyDetails(party, nullptr, NotForwarded, "", nullptr);
    mConnected.append(entry.row);
    holdAllBut(entry.call.id);
    if (entry.call.isIncoming)
        mIncoming.dismiss();
    else
        mOutgoing.dismiss();
    mConnected.setSelected(entry.row);
    mDisplay.setCurrent(&mConnected);
}

void CallScreens::showRowState(Entry& entry)
{
    if (entry.row)
        entry.row->setState(entry.call.state == State::Connected ? Row::CALL_ACTIVE
                : entry.call.state == State::HeldHere            ? Row::CALL_HELD_BY_THIS_END
                                                                 : Row::CALL_HELD_BY_FAR_END);
}

void CallScreens::end(const Entry& ended)
{
    const Entry entry = ended;
    mCalls.erase(entry.call.id);
    const Entry* ringing = withState(State::Incoming);
    if (entry.row) {
        dropRow(entry);
    } else if (entry.call.isIncoming) {
        mIncoming.dismiss();
        if (ringing)
            showIncoming(ringing->call);
    } else {
        mOutgoing.dismiss();
    }
    if (onEnded)
        onEnded({entry.call, entry.row != nullptr});
    if (entry.row && !ringing)
        showWhatIsLeft();
}

void CallScreens::dropRow(const Entry& entry)
{
    entry.row->setState(Row::CALL_CLEARING);
    if (entry.isMember && mConference)
        mConference->removeCall(entry.row);
    else
        mConnected.remove(entry.row);
    delete entry.row;
    int members = 0;
    for (const auto& [id, each] : mCalls)
        members += each.isMember ? 1 : 0;
    if (mConference && members < 2)
        dissolve();
}

// What the user does

void CallScreens::itemStateChanged(Item*)
{
    // From now on the dialer's text is read, too.
    if (mDisplay.getCurrent() == &mIdle)
        mDisplay.setCurrent(&mDialer);
}

void CallScreens::commandAction(Command* command, Displayable* displayable)
{
    if (command == &mHearLine)
        hearLine();
    if (command == PopupDialer::BackCommand())
        mDialer.dismiss();
    if (command == &mCall)
        dial(mDialer.getLineEditText());
    if (displayable == &mOutgoing || displayable == &mIncoming || displayable == &mConnected)
        chooseOnCalls(command);
    // A menu that went by itself tells of that only.
    if (displayable == &mMenu && command->getType() != Command::Dismiss) {
        mMenu.dismiss();
        chooseInMenu(command);
    }
}

void CallScreens::chooseOnCalls(Command* command)
{
    if (command == &mDisconnect) {
        for (const State state : {State::Connecting, State::Ringing, State::Busy, State::Unobtainable}) {
            if (const Entry* entry = withState(state))
                return mService.hangUp(entry->call.id);
        }
    }
    const Entry* ringing = withState(State::Incoming);
    if (command == &mAccept && ringing)
        mService.answer(ringing->call.id);
    if (command == &mReject && ringing)
        mService.hangUp(ringing->call.id);
    if (command == List::BACK_COMMAND())
        mDisplay.setCurrent(&mIdle);
    if (command == List::SELECT_COMMAND())
        openMenu();
}

/// The menu offers what the state of the selected call allows.
void CallScreens::openMenu()
{
    std::vector<MenuCommand*> commands;
    if (isConferenceSelected()) {
        commands = {&mSplit, &mDisconnect};
    } else if (const Entry* entry = selected()) {
        if (entry->call.state == State::Connected)
            commands.push_back(&mHold);
        if (entry->call.state == State::HeldHere)
            commands.push_back(&mResume);
        if (countConnected() > 1 && !entry->isMember)
            commands.push_back(&mJoin);
        commands.push_back(&mDisconnect);
    }
    mMenu.clearCommands();
    for (MenuCommand* command : commands)
        mMenu.addCommand(command, nullptr, false, false, "");
    if (!commands.empty())
        mDisplay.setCurrent(&mMenu);
}

void CallScreens::chooseInMenu(Command* command)
{
    if (isConferenceSelected()) {
        if (command == &mSplit)
            return dissolve();
        if (command != &mDisconnect)
            return;
        for (const auto& [id, entry] : std::map(mCalls)) {
            if (entry.isMember)
                mService.hangUp(id);
        }
        return;
    }
    const Entry* entry = selected();
    if (!entry)
        return;
    if (command == &mHold)
        mService.hold(entry->call.id);
    if (command == &mResume) {
        holdAllBut(entry->call.id);
        mService.resume(entry->call.id);
    }
    if (command == &mJoin)
        join();
    if (command == &mDisconnect)
        mService.hangUp(entry->call.id);
}

/// There is one voice at a time, but in a conference.
void CallScreens::holdAllBut(int active)
{
    for (const auto& [id, entry] : std::map(mCalls)) {
        if (id != active)
            mService.hold(id);
    }
}

/// All calls in one conference.
void CallScreens::join()
{
    if (!mConference) {
        mConference = new ConferenceCallItem(Row::CALL_ACTIVE, mLanguages.text("Conference"), false, false);
        mConnected.append(mConference);
    }
    for (auto& [id, entry] : mCalls) {
        if (!entry.row || entry.isMember)
            continue;
        mService.resume(id);
        mConference->appendCall(entry.row, false);
        entry.isMember = true;
    }
    mConnected.setSelected(mConference);
}

/// The members become calls of their own again, all but the first held.
void CallScreens::dissolve()
{
    mConnected.remove(mConference);
    int first = 0;
    for (auto& [id, entry] : mCalls) {
        if (!std::exchange(entry.isMember, false))
            continue;
        mConference->removeCall(entry.row);
        mConnected.append(entry.row);
        first = first == 0 ? id : first;
    }
    delete std::exchange(mConference, nullptr);
    holdAllBut(first);
}

void CallScreens::showWhatIsLeft()
{
    if (mConnected.size() > 0)
        mDisplay.setCurrent(&mConnected);
    else
        mDisplay.setCurrent(&mIdle);
}

// Which calls there are

CallScreens::Entry* CallScreens::selected()
{
    ListItem* item = mConnected.getSelected();
    if (isConferenceSelected())
        return nullptr;
    if (mConference && item == mConference)
        item = mConference->getSelectedMember();
    for (auto& [id, entry] : mCalls) {
        if (entry.row && entry.row == item)
            return &entry;
    }
    return nullptr;
}

bool CallScreens::isConferenceSelected()
{
    return mConference && mConnected.getSelected() == mConference && mConference->getSelectedMember() == mConference;
}

CallScreens::Entry* CallScreens::withState(State state)
{
    for (auto& [id, entry] : mCalls) {
        if (entry.call.state == state)
            return &entry;
    }
    return nullptr;
}

int CallScreens::countConnected() const
{
    int count = 0;
    for (const auto& [id, entry] : mCalls)
        count += isTalking(entry.call.state) ? 1 : 0;
    return count;
}
