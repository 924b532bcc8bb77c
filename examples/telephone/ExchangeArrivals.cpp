#include "Exchange.h"

#include <algorithm>
#include <utility>

// What comes to the telephone from outside: calls, messages, and calls that others have already.

namespace {

constexpr int GiveUpTime = 30'000; // milliseconds
constexpr int MessageTime = 6;     // seconds

}

void Exchange::ring(const std::string& caller)
{
    receive(caller.empty() ? callOfNext() : callFrom(caller));
}

CallService::Call Exchange::callFrom(const std::string& caller)
{
    Call call;
    call.state = State::Incoming;
    call.kind = Kind::Incoming;
    const std::size_t blank = caller.rfind(' ');
    call.party.number = blank == std::string::npos ? caller : caller.substr(blank + 1);
    call.party.name = blank == std::string::npos ? "" : caller.substr(0, blank);
    const Parties::Entry* entry = call.party.name.empty() ? Parties::withNumber(call.party.number) : nullptr;
    if (entry) {
        call.party.name = entry->name;
        call.kind = entry->kind;
        call.priority = entry->priority;
        call.diversion = entry->calledBy;
        if (!entry->called.empty())
            call.second = Parties::partyOf(entry->called);
    }
    return call;
}

/// The one behind the last caller that is in no call.
CallService::Call Exchange::callOfNext()
{
    std::unique_lock lock(mMutex);
    const auto isFree = [this](const Parties::Entry& entry) {
        return entry.number != Parties::VoiceMail
            && std::none_of(mLines.begin(), mLines.end(), [&entry](const auto& line) {
                   return line.second->call.party.number == entry.number && line.second->call.state != State::Ended;
               });
    };
    const auto& all = Parties::all();
    const Parties::Entry* next = nullptr;
    for (std::size_t tries = 0; tries < all.size() && (!next || !isFree(*next)); ++tries)
        next = &all[mNextCaller++ % all.size()];
    lock.unlock();
    return callFrom(next->number);
}

/// What becomes of a call that comes in now, and where it goes then.
CallService::Diversion Exchange::diversionOf(std::string& target) const
{
    const bool isBusy = linesInUse() > 0;
    std::lock_guard lock(mMutex);
    const auto goes = [&](Diversion kind) {
        const auto found = mForwarding.find(kind);
        if (found != mForwarding.end())
            target = found->second;
        return found != mForwarding.end();
    };
    if (goes(Diversion::Always))
        return Diversion::Always;
    if (mIsDoNotDisturb) {
        goes(Diversion::Busy);
        return Diversion::DoNotDisturb;
    }
    if (isBusy && goes(Diversion::Busy))
        return Diversion::Busy;
    return goes(Diversion::NoAnswer) ? Diversion::NoAnswer : Diversion::None;
}

void Exchange::receive(Call call)
{
    // What rings elsewhere is offered, and is nothing that could be forwarded.
    const bool isOffer = call.kind == Kind::LinePickUp || call.kind == Kind::GroupPickUp;
    std::string target;
    const Diversion diversion = isOffer ? Diversion::None : diversionOf(target);
    const bool isRejected = linesInUse() >= Lines || (diversion == Diversion::DoNotDisturb && target.empty());
    if (isRejected) {
        call.state = State::Ended;
        call.cause = Cause::Rejected;
        start(call, {});
    } else if (diversion == Diversion::None || diversion == Diversion::NoAnswer) {
        start(call, Parties::planOfCaller(diversion == Diversion::NoAnswer), target);
    } else {
        tellForwarded(call.party, diversion, target);
    }
}

/// Somebody calls after a while, forwarding or not.
void Exchange::comeBack(const Party& party, Kind kind, int after)
{
    Call call;
    call.state = State::Connecting;
    call.kind = kind;
    call.party = party;
    start(call, {{after, State::Incoming}, {GiveUpTime, State::Ended, Cause::NoAnswer}});
}

void Exchange::leaveMessage(const std::string& caller)
{
    const Message message{(caller.empty() ? callOfNext() : callFrom(caller)).party, MessageTime};
    tell([message](Listener& listener) { listener.messageLeft(message); });
}

void Exchange::hangUpThere()
{
    int newest = 0;
    {
        std::lock_guard lock(mMutex);
        for (const auto& [id, line] : mLines)
            newest = line->isKnown && line->call.state != State::Ended ? id : newest;
    }
    end(newest, Cause::Normal);
}

/// Who is forwarded to the voice mail leaves a message there.
void Exchange::tellForwarded(const Party& caller, Diversion why, const std::string& target)
{
    tell([caller, why, party = Parties::partyOf(target)](
             Listener& listener) { listener.callForwarded(caller, why, party); });
    if (target == Parties::VoiceMail)
        tell([caller](Listener& listener) { listener.messageLeft({caller, MessageTime}); });
}
