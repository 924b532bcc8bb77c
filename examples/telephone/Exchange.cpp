#include "Exchange.h"

#include <algorithm>
#include <deque>
#include <utility>

using State = CallService::State;

namespace {

/// What the other end does after so many milliseconds.
struct Act {
    int after;
    State state;
};

using Plan = std::deque<Act>;

constexpr int LongTalk = 600'000;

Plan planOf(Exchange::Manner manner)
{
    switch (manner) {
    case Exchange::Manner::Answers:
        return {{1'000, State::Ringing}, {4'000, State::Connected}, {LongTalk, State::Ended}};
    case Exchange::Manner::Hurries: return {{500, State::Ringing}, {1'000, State::Connected}, {20'000, State::Ended}};
    case Exchange::Manner::Holds:
        return {{1'000, State::Ringing}, {2'000, State::Connected}, {10'000, State::HeldThere},
            {8'000, State::Connected}, {15'000, State::HeldThere}, {8'000, State::Connected}, {LongTalk, State::Ended}};
    case Exchange::Manner::IsBusy: return {{1'000, State::Busy}, {10'000, State::Ended}};
    case Exchange::Manner::NeverAnswers: return {{1'000, State::Ringing}, {60'000, State::Ended}};
    }
    return {};
}

/// A caller that is not answered gives up.
Plan planOfCaller()
{
    return {{30'000, State::Ended}};
}

}

/// One call, and the other end of it.
class Exchange::Line final : public DisplayAPI::TimerEvent {
public:
    Line(Exchange& exchange, Call theCall, Plan thePlan)
        : call(std::move(theCall))
        , plan(std::move(thePlan))
        , mExchange(exchange)
    {
        mTimer.enableSingleShot(true);
        mTimer.addEventListener(this);
    }

    /// Starts the clock of what comes next, if anything does.
    void wait()
    {
        if (plan.empty())
            mTimer.stop();
        else
            mTimer.start(plan.front().after);
    }

    void timerEvent() override { mExchange.act(*this); }

    Call call;
    Plan plan;

private:
    Exchange& mExchange;
    DisplayAPI::Timer mTimer{0}; // the first to go: then no event comes any more
};

Exchange::Exchange() = default;

Exchange::~Exchange() = default;

const std::vector<Exchange::Party>& Exchange::parties()
{
    static const std::vector<Party> all{
        {"Anna Berg", "4712", Manner::Answers},
        {"Bob Ortiz", "4713", Manner::Hurries},
        {"Carol Ng", "4714", Manner::Holds},
        {"Dieter Maier", "4715", Manner::IsBusy},
        {"Elena Popova", "4716", Manner::NeverAnswers},
        {"Voice mail", "4700", Manner::Hurries},
    };
    return all;
}

void Exchange::setListener(Listener* listener)
{
    std::lock_guard lock(mMutex);
    mListener = listener;
}

// Calls begin

void Exchange::ring(const std::string& caller)
{
    Call call;
    call.state = State::Incoming;
    call.isIncoming = true;
    Manner manner = Manner::Answers;
    if (caller.empty()) {
        const Party& next = nextCaller();
        call.name = next.name;
        call.number = next.number;
        manner = next.manner;
    } else {
        const std::size_t blank = caller.rfind(' ');
        call.number = blank == std::string::npos ? caller : caller.substr(blank + 1);
        call.name = blank == std::string::npos ? "" : caller.substr(0, blank);
    }
    start(call, manner);
}

/// The one behind the last caller that is in no call.
const Exchange::Party& Exchange::nextCaller()
{
    std::lock_guard lock(mMutex);
    const auto isFree = [this](const Party& party) {
        return std::none_of(mLines.begin(), mLines.end(), [&party](const auto& entry) {
            return entry.second->call.number == party.number && entry.second->call.state != State::Ended;
        });
    };
    const Party* next = nullptr;
    for (std::size_t tries = 0; tries < parties().size() && (!next || !isFree(*next)); ++tries)
        next = &parties()[mNextCaller++ % parties().size()];
    return *next;
}

int Exchange::dial(const std::string& number)
{
    Call call;
    call.number = number;
    const auto party = std::find_if(
        parties().begin(), parties().end(), [&number](const Party& each) { return each.number == number; });
    if (party != parties().end())
        call.name = party->name;
    else
        call.state = State::Unobtainable;
    return start(call, party == parties().end() ? Manner::IsBusy : party->manner);
}

int Exchange::start(Call call, Manner manner)
{
    const auto ended = takeEnded(); // their timers go with no lock held
    Plan plan = call.isIncoming ? planOfCaller() : planOf(manner);
    if (call.state == State::Unobtainable)
        plan = {{10'000, State::Ended}};
    {
        std::lock_guard lock(mMutex);
        call.id = ++mLastId;
    }
    const auto line = std::make_shared<Line>(*this, call, std::move(plan));
    {
        std::lock_guard lock(mMutex);
        mLines[call.id] = line;
    }
    tell(call);
    line->wait();
    return call.id;
}

// The user acts

void Exchange::answer(int call)
{
    if (const auto line = lineOf(call)) {
        {
            std::lock_guard lock(mMutex);
            if (line->call.state != State::Incoming)
                return;
            line->plan = {{LongTalk, State::Ended}};
        }
        change(call, State::Incoming, State::Connected);
        line->wait();
    }
}

void Exchange::hangUp(int call)
{
    if (const auto line = lineOf(call)) {
        Call told;
        {
            std::lock_guard lock(mMutex);
            if (line->call.state == State::Ended)
                return;
            line->call.state = State::Ended;
            line->plan.clear();
            told = line->call;
        }
        line->wait();
        tell(told);
    }
}

void Exchange::hold(int call)
{
    change(call, State::Connected, State::HeldHere);
}

void Exchange::resume(int call)
{
    change(call, State::HeldHere, State::Connected);
}

void Exchange::change(int call, State from, State to)
{
    const auto line = lineOf(call);
    Call told;
    {
        std::lock_guard lock(mMutex);
        if (!line || line->call.state != from)
            return;
        line->call.state = to;
        told = line->call;
    }
    tell(told);
}

// The other end acts. Threads: GUI thread

void Exchange::act(Line& line)
{
    Call told;
    {
        std::lock_guard lock(mMutex);
        if (line.plan.empty() || line.call.state == State::Ended)
            return;
        const State next = line.plan.front().state;
        line.plan.pop_front();
        // Whom the user holds can hang up, and nothing else.
        if (line.call.state != State::HeldHere || next == State::Ended)
            line.call.state = next;
        told = line.call;
    }
    line.wait();
    tell(told);
}

void Exchange::tell(const Call& call)
{
    Listener* listener = nullptr;
    {
        std::lock_guard lock(mMutex);
        listener = mListener;
    }
    if (listener)
        listener->callChanged(call);
}

std::shared_ptr<Exchange::Line> Exchange::lineOf(int call) const
{
    std::lock_guard lock(mMutex);
    const auto found = mLines.find(call);
    return found == mLines.end() ? nullptr : found->second;
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
