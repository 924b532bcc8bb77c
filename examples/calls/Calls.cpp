#include "Calls.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/ForwardedCallType.h>

using namespace DisplayAPI;

namespace {

constexpr int MenuTime = 10;                 // seconds
constexpr ForwardedCallType NotForwarded{5}; // none of the enumeration, so that no text says so

CallPartyIdentifier partyOf(const std::string& text)
{
    const std::size_t blank = text.rfind(' ');
    CallPartyIdentifier party;
    if (blank != std::string::npos)
        party.name = text.substr(0, blank);
    if (!text.empty())
        party.number = text.substr(blank + 1);
    party.displayText = blank != std::string::npos ? party.name : text.empty() ? "Unknown" : party.number;
    return party;
}

}

Calls::Calls(Display& display)
    : mDisplay(display)
{
    mIdle.setCurrentPhoneNumber("4711");
    mIdle.setBrandingText("Calls");
    mIdle.addCommand(&mConnectedCalls);
    mIdle.addCommandListener(this);

    mDialer.setLine1PrefixText("To");
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
    for (MenuCommand* command : {&mHold, &mResume, &mJoin, &mDisconnect})
        mMenu.addCommand(command, nullptr, false, false, "");
    mMenu.setAutoHideTimeout(MenuTime);
    mMenu.addCommandListener(this);
}

void Calls::run()
{
    mDisplay.setCurrent(&mIdle);
    mDisplay.show();
    mDisplay.exec();
    // The members of a conference stay the application's; the list deletes its rows.
    for (CallConnectedItem* member : mMembers)
        delete member;
}

// What comes from the line

void Calls::ring(const std::string& party)
{
    std::lock_guard lock(mMutex);
    mParty = partyOf(party);
    mIncoming.setPopupCallDetails(mParty, nullptr, NotForwarded, "", nullptr);
    mIncoming.setState(PopupCall::INCOMING, PopupCall::NORMAL);
    mIncoming.setDefaultCommand(&mAccept);
    mDisplay.setCurrent(&mIncoming);
}

void Calls::farEnd(const std::string& state)
{
    std::lock_guard lock(mMutex);
    if (state == "ringing")
        mOutgoing.setState(PopupCall::RINGING, PopupCall::NORMAL);
    else if (state == "busy")
        mOutgoing.setState(PopupCall::BUSY, PopupCall::NORMAL);
    else if (mDisplay.getCurrent() == &mOutgoing)
        connect();
}

/// The call of mParty gets a row, and the voice.
void Calls::connect()
{
    auto* row = new CallConnectedItem(
        CallConnectedItem::CALL_ACTIVE, nullptr, false, nullptr, false, true, true, false, false);
    row->setPartyDetails(mParty, nullptr, NotForwarded, "", nullptr);
    mConnected.append(row);
    holdAllBut(row);
    mOutgoing.dismiss();
    mIncoming.dismiss();
    mConnected.setSelected(row);
    mDisplay.setCurrent(&mConnected);
}

// What the user does

void Calls::itemStateChanged(Item*)
{
    // From now on the dialer's text is read, too.
    if (mDisplay.getCurrent() == &mIdle)
        mDisplay.setCurrent(&mDialer);
}

void Calls::commandAction(Command* command, Displayable* displayable)
{
    std::lock_guard lock(mMutex);
    if (command == &mConnectedCalls && mConnected.size() > 0)
        mDisplay.setCurrent(&mConnected);
    if (command == PopupDialer::BackCommand())
        mDialer.dismiss();
    if (command == &mCall)
        dial();
    if (displayable == &mOutgoing && command == &mDisconnect) {
        mOutgoing.dismiss();
        showWhatIsLeft();
    }
    if (command == &mAccept)
        connect();
    if (command == &mReject)
        mIncoming.dismiss();
    if (command == List::BACK_COMMAND())
        mDisplay.setCurrent(&mIdle);
    if (command == List::SELECT_COMMAND())
        mDisplay.setCurrent(&mMenu);
    // A menu that went by itself tells of that only.
    if (displayable == &mMenu && command->getType() != Command::Dismiss) {
        mMenu.dismiss();
        chooseInMenu(command);
    }
}

void Calls::dial()
{
    mParty = partyOf(mDialer.getLineEditText());
    mDialer.dismiss();
    mDialer.setLineEditText("");
    mOutgoing.setPopupCallDetails(mParty, nullptr, NotForwarded, "", nullptr);
    mOutgoing.setState(PopupCall::CONNECTING, PopupCall::NORMAL);
    mDisplay.setCurrent(&mOutgoing);
}

void Calls::chooseInMenu(Command* command)
{
    auto* row = dynamic_cast<CallConnectedItem*>(mConnected.getSelected());
    if (!row)
        return;
    if (command == &mHold)
        row->setState(CallConnectedItem::CALL_HELD_BY_THIS_END);
    if (command == &mResume)
        holdAllBut(row);
    if (command == &mJoin)
        join();
    if (command == &mDisconnect)
        clear(row);
}

void Calls::holdAllBut(CallConnectedItem* active)
{
    for (ListItem* item : mConnected.getItems()) {
        if (auto* row = dynamic_cast<CallConnectedItem*>(item))
            row->setState(row == active ? CallConnectedItem::CALL_ACTIVE : CallConnectedItem::CALL_HELD_BY_THIS_END);
    }
}

/// All calls in one conference.
void Calls::join()
{
    if (!mConference) {
        mConference = new ConferenceCallItem(CallConnectedItem::CALL_ACTIVE, nullptr, false, false);
        mConference->setText("Conference");
        mConnected.append(mConference);
    }
    for (ListItem* item : mConnected.getItems()) {
        auto* call = dynamic_cast<CallConnectedItem*>(item);
        if (!call || call == mConference)
            continue;
        mConference->appendCall(call, false);
        mMembers.push_back(call);
    }
    mConference->setState(CallConnectedItem::CALL_ACTIVE);
}

void Calls::clear(CallConnectedItem* row)
{
    row->setState(CallConnectedItem::CALL_CLEARING);
    mConnected.remove(row);
    if (row == mConference) {
        mConference = nullptr;
        for (CallConnectedItem* member : mMembers)
            delete member;
        mMembers.clear();
    }
    delete row;
    showWhatIsLeft();
}

void Calls::showWhatIsLeft()
{
    if (mConnected.size() > 0)
        mDisplay.setCurrent(&mConnected);
    else
        mDisplay.setCurrent(&mIdle);
}
