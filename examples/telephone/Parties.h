#pragma once

#include "CallService.h"

#include <deque>
#include <string>
#include <vector>

/// Whom the simulated exchange knows, what they do when they are called, and how they call.
namespace Parties {

/// What a party does when it is called.
enum class Manner {
    Answers, ///< After two rings; hangs up after ten minutes.
    Hurries, ///< Answers at once, and hangs up after 20 seconds.
    Holds,   ///< Answers, and puts the user on hold for a while again and again.
    IsBusy,
    NeverAnswers,
    Rejects,
    Diverts, ///< To another party, in the way of its diversion.
    HasNoLine,
};

struct Entry {
    std::string name;
    std::string number;
    Manner manner = Manner::Answers;
    CallService::Diversion diversion = CallService::Diversion::None;
    std::string divertsTo{}; // a number

    // When it calls

    CallService::Kind kind = CallService::Kind::Incoming;
    CallService::Priority priority = CallService::Priority::Normal;
    CallService::Diversion calledBy = CallService::Diversion::None;
    std::string called{}; // the number that was called, if the call comes from there
};

constexpr const char* VoiceMail = "4700";

/// All of them. Any other number is unobtainable.
const std::vector<Entry>& all();

/// Null for a number that nobody has.
const Entry* withNumber(const std::string& number);

/// The number with the name of who has it, if anybody does.
CallService::Party partyOf(const std::string& number);

/// What the other end of a call does after so many milliseconds.
struct Act {
    int after = 0;
    CallService::State state = CallService::State::Ended;
    CallService::Cause cause = CallService::Cause::Normal;
    bool diverts = false; // the call goes on to where the party diverts
};

using Plan = std::deque<Act>;

/// What somebody who is called does; null is nobody.
Plan planOfCalled(const Entry* entry);

/// What whoever is answered does.
Plan planOfTalk();

/// A caller that is not answered gives up, or is forwarded before that.
Plan planOfCaller(bool isForwarded);

}
