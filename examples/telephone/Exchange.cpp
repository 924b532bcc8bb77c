#include "Exchange.h"

#include <algorithm>
#include <utility>

using Parties::Act;
using Parties::Plan;

namespace {

constexpr int HoldTime = 60'000;     // until the user is reminded
constexpr int CallBackTime = 15'000; // until the other end is free
constexpr int RecallTime = 12'000;   // until nobody has taken a transferred call

/// Whether a number takes the calls that are transferred to it.
bool takesCalls(const std::string& number)
{
    using Parties::Manner;
    const Parties::Entry* entry = Parties::withNumber(number);
    return entry
        && (entry->manner == Manner::Answers || entry->manner == Manner::Hurries || entry->manner == Manner::Holds
            || entry->manner == Manner::Diverts);
}

bool isHeldHere(CallService::State state)
{
    return state == CallService::State::HeldHere || state == CallService::State::HeldTooLong;
}

}

Exchange::Exchange() = default;

Exchange::~Exchange() = default;

void Exchange::setListener(Listener* listener)
{
    std::lock_guard lock(mMutex);
    mListener = listener;
}

// The user acts

int Exchange::dial(const std::string& number)
{
    Call call;
    call.party = Parties::partyOf(number);
    const Parties::Entry* entry = Parties::withNumber(number);
    if (linesInUse() < Lines) {
        call.state = entry ? State::Connecting : State::Unobtainable;
        Plan plan = Parties::planOfCalled(entry);
        if (!entry)
            plan.pop_front();
        return start(call, std::move(plan));
    }
    call.state = State::Ended;
    call.cause = Cause::NoLine;
    return start(call, {});
}

int Exchange::start(Call call, Plan plan, const std::string& forwardedTo)
{
    const auto ended = takeEnded(); // their timers go with no lock held
    {
        std::lock_guard lock(mMutex);
        call.id = ++mLastId;
    }
    const int id = call.id;
    const auto remind = [this, id] { change(id, {State::HeldHere}, State::HeldTooLong); };
    const bool isKnown = call.kind == Kind::Outgoing || call.state != State::Connecting;
    const std::shared_ptr<Line> line(
        new Line{call, std::move(plan), isKnown, forwardedTo, OneShot([this, id] { act(id); }), OneShot(remind)});
    {
        std::lock_guard lock(mMutex);
        mLines[id] = line;
    }
    if (isKnown)
        tell([call](Listener& listener) { listener.callChanged(call); });
    startClocks(*line, false);
    return id;
}

void Exchange::answer(int call)
{
    const Plan talk = Parties::planOfTalk();
    const Plan ringing{{2'000, State::Connected}, talk.front()};
    const bool rings = callOf(call).kind == Kind::CallBack;
    change(call, {State::Incoming}, rings ? State::Ringing : State::Connected, rings ? &ringing : &talk);
}

void Exchange::hangUp(int call)
{
    end(call, Cause::Normal);
}

void Exchange::end(int call, Cause cause)
{
    const Plan last{{0, State::Ended, cause}};
    change(call,
        {State::Connecting, State::Ringing, State::Busy, State::Unobtainable, State::Incoming, State::Connected,
            State::HeldHere, State::HeldTooLong, State::HeldThere},
        State::Ended, &last);
}

void Exchange::hold(int call)
{
    change(call, {State::Connected, State::HeldTooLong}, State::HeldHere);
}

void Exchange::resume(int call)
{
    change(call, {State::HeldHere, State::HeldTooLong}, State::Connected);
}

void Exchange::deflect(int call, const std::string& number)
{
    const Call told = callOf(call);
    if (told.state != State::Incoming)
        return;
    end(call, Cause::Diverted);
    tellForwarded(told.party, Diversion::Always, number);
}

void Exchange::transfer(int call, const std::string& number)
{
    const Call told = callOf(call);
    if (!told.isTalk())
        return;
    end(call, Cause::Transferred);
    if (!takesCalls(number))
        comeBack(told.party, Kind::Recall, RecallTime);
}

void Exchange::connect(int call, int other)
{
    if (call == other || !callOf(call).isTalk() || !callOf(other).isTalk())
        return;
    end(call, Cause::Transferred);
    end(other, Cause::Transferred);
}

bool Exchange::join(const std::vector<int>& calls)
{
    if (calls.size() > MostMembers)
        return false;
    for (const int call : calls)
        resume(call);
    return true;
}

void Exchange::sendDigit(int call, char digit)
{
    const Call told = callOf(call);
    if (digit == '#' && told.isTalk() && told.party.number == Parties::VoiceMail)
        end(call, Cause::Normal);
}

void Exchange::callBack(int call)
{
    const Call told = callOf(call);
    if (told.state != State::Busy)
        return;
    end(call, Cause::Normal);
    comeBack(told.party, Kind::CallBack, CallBackTime);
}

void Exchange::forward(Diversion kind, const std::string& number)
{
    std::lock_guard lock(mMutex);
    if (number.empty())
        mForwarding.erase(kind);
    else
        mForwarding[kind] = number;
}

void Exchange::setDoNotDisturb(bool on)
{
    std::lock_guard lock(mMutex);
    mIsDoNotDisturb = on;
}

/// With a plan, the other end follows that from now on. One that ends at once gives the cause.
void Exchange::change(int call, std::initializer_list<State> from, State to, const Plan* plan)
{
    const auto line = lineOf(call);
    {
        std::lock_guard lock(mMutex);
        if (!line || std::find(from.begin(), from.end(), line->call.state) == from.end())
            return;
        if (plan)
            line->plan = *plan;
        line->call.state = to;
        if (to == State::Ended) {
            line->call.cause = line->plan.front().cause;
            line->plan.clear();
        }
        if (line->isKnown)
            mNews.push_back([told = line->call](Listener& listener) { listener.callChanged(told); });
    }
    startClocks(*line, plan == nullptr);
    tell({});
}

// The other end acts. Threads: GUI thread

void Exchange::act(int call)
{
    const auto line = lineOf(call);
    Call told;
    std::string target;
    {
        std::lock_guard lock(mMutex);
        if (!line || line->plan.empty() || line->call.state == State::Ended)
            return;
        const Act next = line->plan.front();
        line->plan.pop_front();
        follow(*line, next);
        told = line->call;
        target = line->forwardedTo;
        mNews.push_back([told](Listener& listener) { listener.callChanged(told); });
    }
    startClocks(*line, false);
    tell({});
    if (told.state == State::Ended && told.cause == Cause::Diverted)
        tellForwarded(told.party, Diversion::NoAnswer, target);
}

void Exchange::follow(Line& line, const Act& act)
{
    // Whom the user holds can hang up, and nothing else.
    if (!isHeldHere(line.call.state) || act.state == State::Ended)
        line.call.state = act.state;
    line.call.cause = act.cause;
    line.isKnown = true;
    const Parties::Entry* entry = act.diverts ? Parties::withNumber(line.call.party.number) : nullptr;
    if (!entry)
        return;
    line.call.second = line.call.party;
    line.call.diversion = entry->diversion;
    line.call.party = Parties::partyOf(entry->divertsTo);
}

/// A reminder is due for a call that has just been held. What the other end does keeps its time meanwhile.
void Exchange::startClocks(Line& line, bool isReminded)
{
    int after = -1;
    bool isHeld = false;
    {
        std::lock_guard lock(mMutex);
        after = line.plan.empty() ? -1 : line.plan.front().after;
        isHeld = line.call.state == State::HeldHere;
    }
    if (isReminded && isHeld)
        line.reminder.start(HoldTime);
    else if (!isHeld)
        line.reminder.stop();
    if (after < 0)
        line.next.stop();
    else if (!isReminded)
        line.next.start(after);
}

/// Tells all the news, in the order in which they have happened, and with no lock held. One thread does that at a
/// time; what another one has to tell goes behind.
void Exchange::tell(News news)
{
    std::unique_lock lock(mMutex);
    if (news)
        mNews.push_back(std::move(news));
    if (std::exchange(mIsTelling, true))
        return;
    while (!mNews.empty()) {
        const News next = std::move(mNews.front());
        mNews.pop_front();
        Listener* listener = mListener;
        lock.unlock();
        if (listener)
            next(*listener);
        lock.lock();
    }
    mIsTelling = false;
}

// Which calls there are

int Exchange::linesInUse() const
{
    std::lock_guard lock(mMutex);
    return static_cast<int>(std::count_if(mLines.begin(), mLines.end(),
        [](const auto& line) { return line.second->isKnown && line.second->call.state != State::Ended; }));
}

std::shared_ptr<Exchange::Line> Exchange::lineOf(int call) const
{
    std::lock_guard lock(mMutex);
    const auto found = mLines.find(call);
    return found == mLines.end() ? nullptr : found->second;
}

/// A call that is not there has ended.
CallService::Call Exchange::callOf(int call) const
{
    std::lock_guard lock(mMutex);
    const auto found = mLines.find(call);
    if (found != mLines.end())
        return found->second->call;
    Call ended;
    ended.state = State::Ended;
    return ended;
}

std::vector<std::shared_ptr<Exchange::Line>> Exchange::takeEnded()
{
    std::vector<std::shared_ptr<Line>> ended;
    std::lock_guard lock(mMutex);
    std::erase_if(mLines, [&ended](const auto& entry) {
        if (entry.second->call.state != State::Ended)
            return false;
        ended.push_back(entry.second);
        return true;
    });
    return ended;
}
