#include "Parties.h"

#include <algorithm>

using Cause = CallService::Cause;
using Diversion = CallService::Diversion;
using Kind = CallService::Kind;
using Priority = CallService::Priority;
using State = CallService::State;

namespace Parties {

namespace {

constexpr int LongTalk = 600'000;

}

const std::vector<Entry>& all()
{
    static const std::vector<Entry> entries{
        {.name = "Anna Berg", .number = "4712"},
        {.name = "Bob Ortiz", .number = "4713", .manner = Manner::Hurries},
        {.name = "Carol Ng", .number = "4714", .manner = Manner::Holds, .priority = Priority::Urgent},
        {.name = "Dieter Maier", .number = "4715", .manner = Manner::IsBusy, .kind = Kind::Direct},
        {.name = "Elena Popova",
            .number = "4716",
            .manner = Manner::NeverAnswers,
            .calledBy = Diversion::Busy,
            .called = "4731"},
        {.name = "Voice mail", .number = VoiceMail, .manner = Manner::Hurries},
        {.name = "Fatima Haddad", .number = "4720"},
        {.name = "Georg Huber",
            .number = "4721",
            .manner = Manner::Diverts,
            .diversion = Diversion::Always,
            .divertsTo = "4712",
            .kind = Kind::LinePickUp,
            .called = "4732"},
        {.name = "Hana Sato",
            .number = "4722",
            .manner = Manner::Diverts,
            .diversion = Diversion::Busy,
            .divertsTo = "4730",
            .kind = Kind::Group},
        {.name = "Ivan Petrov",
            .number = "4723",
            .manner = Manner::Rejects,
            .kind = Kind::GroupPickUp,
            .called = "4733"},
        {.name = "Jana Kovač",
            .number = "4724",
            .manner = Manner::Diverts,
            .diversion = Diversion::DoNotDisturb,
            .divertsTo = VoiceMail,
            .calledBy = Diversion::DoNotDisturb,
            .called = "4713"},
        {.name = "Karl Lindqvist", .number = "4725", .calledBy = Diversion::NoAnswer, .called = "4716"},
        {.name = "Lucía Gómez",
            .number = "4726",
            .manner = Manner::Diverts,
            .diversion = Diversion::NoAnswer,
            .divertsTo = "4727",
            .priority = Priority::Direct},
        {.name = "Maria Rossi", .number = "4727", .calledBy = Diversion::Always, .called = "4712"},
        {.name = "Nils Andersen", .number = "4728", .manner = Manner::HasNoLine},
        {.name = "Olga Smirnova", .number = "4729", .manner = Manner::Holds},
        {.name = "Paul Dubois", .number = "4730", .calledBy = Diversion::ForGroup, .called = "4733"},
        {.name = "Reception", .number = "4731", .manner = Manner::Hurries},
        {.name = "Security desk", .number = "4732", .priority = Priority::Urgent},
        {.name = "Workshop", .number = "4733", .manner = Manner::NeverAnswers},
        {.name = "Zoë Müller", .number = "4734", .manner = Manner::IsBusy},
    };
    return entries;
}

const Entry* withNumber(const std::string& number)
{
    const auto found
        = std::find_if(all().begin(), all().end(), [&number](const Entry& entry) { return entry.number == number; });
    return found == all().end() ? nullptr : &*found;
}

CallService::Party partyOf(const std::string& number)
{
    const Entry* entry = withNumber(number);
    return {entry ? entry->name : "", number};
}

Plan planOfCalled(const Entry* entry)
{
    if (!entry)
        return {{0, State::Unobtainable}, {10'000, State::Ended}};
    switch (entry->manner) {
    case Manner::Answers: return {{1'000, State::Ringing}, {4'000, State::Connected}, {LongTalk, State::Ended}};
    case Manner::Hurries: return {{500, State::Ringing}, {1'000, State::Connected}, {20'000, State::Ended}};
    case Manner::Holds:
        return {{1'000, State::Ringing}, {2'000, State::Connected}, {10'000, State::HeldThere},
            {8'000, State::Connected}, {15'000, State::HeldThere}, {8'000, State::Connected}, {LongTalk, State::Ended}};
    case Manner::IsBusy: return {{1'000, State::Busy}, {10'000, State::Ended}};
    case Manner::NeverAnswers: return {{1'000, State::Ringing}, {60'000, State::Ended, Cause::NoAnswer}};
    case Manner::Rejects: return {{1'000, State::Ringing}, {3'000, State::Ended, Cause::Rejected}};
    case Manner::HasNoLine: return {{1'000, State::Ended, Cause::NoLine}};
    case Manner::Diverts: break;
    }
    const int before = entry->diversion == Diversion::NoAnswer ? 4'000 : 0;
    return {{1'000, State::Ringing}, {before, State::Ringing, Cause::Normal, true}, {4'000, State::Connected},
        {LongTalk, State::Ended}};
}

Plan planOfTalk()
{
    return {{LongTalk, State::Ended}};
}

Plan planOfCaller(bool isForwarded)
{
    if (isForwarded)
        return {{15'000, State::Ended, Cause::Diverted}};
    return {{30'000, State::Ended, Cause::NoAnswer}};
}

}
