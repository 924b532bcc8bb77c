#pragma once

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include <TranslationInfo.h>

#include <string>

namespace DisplayAPI {

/// What a popup shows of a party, side by side.
struct NameAndNumber {
    std::string name;
    std::string number;
};

/// "unknown caller" in the user's language.
inline std::string unknownParty()
{
    return TranslationInfo(CallPartyIdentifier::UnknownParty, DisplayablePrivate::commonTranslator).getString();
}

/// Who calls or is called: what is not known is left out, and a party of whom nothing is known is called unknown.
inline NameAndNumber firstParty(const CallPartyIdentifier& party)
{
    const std::string unknown = CallPartyIdentifier::UnknownParty;
    if (party.name == unknown && party.number == unknown)
        return {unknownParty(), {}};
    return {party.name == unknown ? "" : party.name, party.number == unknown ? "" : party.number};
}

/// Whose call it was before it was forwarded: an unknown number is called unknown, an unknown name is left out.
inline NameAndNumber secondParty(const CallPartyIdentifier& party)
{
    const std::string unknown = CallPartyIdentifier::UnknownParty;
    return {party.name == unknown ? "" : party.name, party.number == unknown ? unknownParty() : party.number};
}

/// Calls `show` with the party's name, else its number, else with a translation of "unknown caller" for it to take
/// over.
template <typename Show>
void showNameElseNumber(const CallPartyIdentifier& party, Show show)
{
    std::string text;
    if (party.getInterimNameNumber(text, false))
        show(text);
    else
        show(new TranslationInfo(CallPartyIdentifier::UnknownParty, DisplayablePrivate::commonTranslator));
}

}
