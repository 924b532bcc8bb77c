#include "CallScreens.h"

#include "PartyTexts.h"

#include <utility>

using namespace DisplayAPI;
using Cause = CallService::Cause;
using Purpose = NumberEntry::Purpose;
using State = CallService::State;

CallScreens::CallScreens(Screens& screens, Languages& languages, Notices& notices, CallService& service)
    : mScreens(screens)
    , mLanguages(languages)
    , mNotices(notices)
    , mService(service)
    , mPopups(screens, languages, *this)
    , mConnected(screens, languages, *this)
    , mMenu(screens, languages, *this)
    , mEntry(screens, languages)
{
    mScreens.onShown = [this] { mPopups.raise(); };
    mEntry.onNumber
        = [this](Purpose purpose, int call, const std::string& number) { takeNumber(purpose, call, number); };
    mEntry.onDigit = [this](int call, char digit) { mService.sendDigit(call, digit); };
    mService.setListener(this);
}

CallScreens::~CallScreens()
{
    mService.setListener(nullptr);
}

void CallScreens::dial(const std::string& number)
{
    if (number.empty())
        return;
    holdAllBut(0);
    mService.dial(number);
}

bool CallScreens::showCalls()
{
    if (!mConnected.isEmpty())
        mConnected.show();
    mPopups.showAll();
    return !mCalls.empty();
}

// The exchange tells

void CallScreens::callChanged(const CallService::Call& call)
{
    post([this, call] { follow(call); });
}

void CallScreens::callForwarded(
    const CallService::Party& caller, CallService::Diversion why, const CallService::Party& target)
{
    post([this, caller, why, target] {
        onForwarded(caller);
        mNotices.showForwarded(caller, target, why);
    });
}

void CallScreens::messageLeft(const CallService::Message& message)
{
    post([this, message] { onMessage(message); });
}

void CallScreens::post(News news)
{
    {
        std::lock_guard lock(mMutex);
        mNews.push_back(std::move(news));
    }
    postCommandAction(&mHear, nullptr);
}

void CallScreens::hear()
{
    std::deque<News> news;
    {
        std::lock_guard lock(mMutex);
        news.swap(mNews);
    }
    for (const News& each : news)
        each();
}

void CallScreens::follow(const CallService::Call& call)
{
    if (call.state == State::Ended)
        return end(call);
    const bool hadTalk = !talks().empty();
    mCalls[call.id] = call;
    mMenu.closeIfAbout(call.id);
    if (!call.isTalk())
        return mPopups.show(call, hadTalk);
    if (!mConnected.has(call.id))
        connect(call);
    mConnected.update(call);
    if (call.state == State::HeldTooLong)
        mPopups.show(call, false);
    else
        mPopups.remove(call.id);
}

/// The call gets a row, and the voice.
void CallScreens::connect(const CallService::Call& call)
{
    mPopups.remove(call.id);
    mConnected.add(call);
    holdAllBut(call.id);
    mConnected.show();
}

void CallScreens::end(const CallService::Call& call)
{
    const bool wasConnected = mConnected.has(call.id);
    mCalls.erase(call.id);
    mMenu.closeIfAbout(call.id);
    mEntry.closeIfAbout(call.id);
    mPopups.remove(call.id);
    mConnected.remove(call.id);
    if (mConnected.members().empty())
        mMenu.closeIfAboutConference();
    if (mConnected.isEmpty())
        setMuted(false);
    mConnected.leaveIfEmpty();
    onEnded({call, wasConnected});
    explain(call);
}

/// Why a call has ended, where the user may wonder.
void CallScreens::explain(const CallService::Call& call)
{
    const std::string who = shortNameOf(call.party, mLanguages);
    if (call.cause == Cause::NoLine)
        mNotices.show(PopupNotification::ERROR, "No free line", who);
    if (call.cause == Cause::Transferred)
        mNotices.show(PopupNotification::SUCCESS, "Transferred", who);
    if (call.cause == Cause::Rejected && !call.isIncoming())
        mNotices.show(PopupNotification::INFO, "Call rejected", who);
    if (call.cause == Cause::NoAnswer && !call.isIncoming())
        mNotices.show(PopupNotification::INFO, "No answer", who);
}

// The user chooses

void CallScreens::commandAction(Command* command, Displayable* displayable)
{
    if (command == &mHear)
        return hear();
    if (const int call = mPopups.callOf(displayable))
        return chooseInPopup(command, call);
    if (mConnected.isList(displayable))
        return chooseInList(command);
    // A menu that went by itself tells of that only.
    if (!mMenu.isMenu(displayable) || command->getType() == Command::Dismiss)
        return;
    const ConnectedCalls::Selection target = mMenu.target();
    mMenu.close();
    if (target.isConference)
        chooseForConference(command);
    else if (const auto found = mCalls.find(target.call); found != mCalls.end())
        chooseForCall(command, CallService::Call(found->second));
}

void CallScreens::chooseInPopup(Command* command, int call)
{
    if (command->getType() == Command::Back)
        return mPopups.putAside(call);
    if (command == &mPopups.accept || command == &mPopups.pickUp || command == &mPopups.call)
        mService.answer(call);
    if (command == &mPopups.endAndAccept) {
        for (const int talk : talks()) {
            if (mCalls[talk].state == State::Connected)
                mService.hangUp(talk);
        }
        mService.answer(call);
    }
    if (command == &mPopups.reject || command == &mPopups.disconnect)
        mService.hangUp(call);
    if (command == &mPopups.deflect)
        mEntry.open(Purpose::Deflect, call);
    if (command == &mPopups.callBack)
        mService.callBack(call);
    if (command == &mPopups.resume)
        resume(call);
    if (command == &mPopups.ignore && mCalls[call].state == State::HeldTooLong)
        mService.hold(call);
    else if (command == &mPopups.ignore)
        mPopups.putAside(call);
}

void CallScreens::chooseInList(Command* command)
{
    if (command == List::BACK_COMMAND())
        mScreens.showIdle();
    if (command == List::SELECT_COMMAND() || command == List::RIGHT_COMMAND())
        openMenu();
}

void CallScreens::openMenu()
{
    const ConnectedCalls::Selection selected = mConnected.selected();
    if (selected.isConference)
        return mMenu.openForConference(mConnected.isConferenceHeld(), mIsMuted);
    const auto found = mCalls.find(selected.call);
    if (found != mCalls.end())
        mMenu.openForCall(found->second, {mConnected.isMember(selected.call), talks().size() > 1, mIsMuted});
}

void CallScreens::chooseForCall(Command* command, const CallService::Call& call)
{
    if (command == &mMenu.hold)
        mService.hold(call.id);
    if (command == &mMenu.resume)
        resume(call.id);
    if (command == &mMenu.transfer)
        mEntry.open(Purpose::Transfer, call.id);
    if (command == &mMenu.connect)
        mService.connect(call.id, partnerOf(call.id));
    if (command == &mMenu.conference)
        join(call.id);
    if (command == &mMenu.takeOut)
        takeOut(call.id);
    if (command == &mMenu.digits)
        mEntry.open(Purpose::Digits, call.id);
    if (command == &mMenu.mute || command == &mMenu.unmute)
        setMuted(command == &mMenu.mute);
    if (command == &mMenu.newCall)
        mEntry.open(Purpose::Call, 0);
    if (command == &mMenu.disconnect)
        mService.hangUp(call.id);
}

void CallScreens::chooseForConference(Command* command)
{
    if (command == &mMenu.split)
        split();
    if (command == &mMenu.hold)
        holdAllBut(0);
    if (command == &mMenu.resume && !mConnected.members().empty())
        resume(mConnected.members().front());
    if (command == &mMenu.mute || command == &mMenu.unmute)
        setMuted(command == &mMenu.mute);
    if (command == &mMenu.newCall)
        mEntry.open(Purpose::Call, 0);
    if (command != &mMenu.disconnect)
        return;
    for (const int member : mConnected.members())
        mService.hangUp(member);
}

void CallScreens::takeNumber(Purpose purpose, int call, const std::string& number)
{
    if (!mayDial())
        return mNotices.show(PopupNotification::WARNING, "Locked");
    if (purpose == Purpose::Call)
        dial(number);
    if (purpose == Purpose::Transfer)
        mService.transfer(call, number);
    if (purpose == Purpose::Deflect)
        mService.deflect(call, number);
}

/// There is one voice at a time, but in a conference.
void CallScreens::holdAllBut(int active)
{
    const bool isConference = mConnected.isMember(active);
    for (const int call : talks()) {
        if (call != active && !(isConference && mConnected.isMember(call)))
            mService.hold(call);
    }
}

/// A conference comes back as a whole.
void CallScreens::resume(int call)
{
    holdAllBut(call);
    mService.resume(call);
    if (mConnected.isMember(call))
        mService.join(mConnected.members());
}

/// The call joins the conference, or begins one with its partner.
void CallScreens::join(int call)
{
    std::vector<int> members = mConnected.members();
    if (members.empty())
        members.push_back(partnerOf(call));
    members.push_back(call);
    if (!mService.join(members))
        return mNotices.show(PopupNotification::WARNING, "Conference full");
    mConnected.join(members);
    holdAllBut(call);
}

/// The other call that has the voice, else any other one; 0 without one.
int CallScreens::partnerOf(int call) const
{
    int other = 0;
    for (const int talk : talks()) {
        if (talk != call && (other == 0 || mCalls.at(talk).state == State::Connected))
            other = talk;
    }
    return other;
}

void CallScreens::takeOut(int call)
{
    mConnected.takeOut(call);
    resume(call);
}

/// The members become calls of their own again, all but the first held.
void CallScreens::split()
{
    const std::vector<int> members = mConnected.members();
    mConnected.dissolve();
    if (!members.empty())
        resume(members.front());
}

void CallScreens::setMuted(bool muted)
{
    mIsMuted = muted;
    mConnected.setMuted(muted);
}

/// In the order of their numbers.
std::vector<int> CallScreens::talks() const
{
    std::vector<int> all;
    for (const auto& [id, call] : mCalls) {
        if (call.isTalk())
            all.push_back(id);
    }
    return all;
}
