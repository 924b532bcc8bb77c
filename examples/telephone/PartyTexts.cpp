#include "PartyTexts.h"

using namespace DisplayAPI;

CallPartyIdentifier identifierOf(const CallService::Party& party)
{
    // Half of it is enough: the screens call what is missing "unknown" otherwise.
    if (party.name.empty() && party.number.empty())
        return {};
    return {party.name, party.number};
}

CallPartyIdentifier rowOf(const CallService::Party& party, Languages& languages)
{
    if (party.number == CallPartyIdentifier::WithheldNumber)
        return {shortNameOf(party, languages), ""};
    return identifierOf(party);
}

std::string shortNameOf(const CallService::Party& party, Languages& languages)
{
    if (!party.name.empty())
        return party.name;
    if (party.number == CallPartyIdentifier::WithheldNumber)
        return languages.translate("CVQVTDispIF.Number.Unavailable");
    return party.number.empty() ? languages.translate(CallPartyIdentifier::UnknownParty) : party.number;
}

ForwardedCallType forwardedTypeOf(CallService::Diversion diversion)
{
    switch (diversion) {
    case CallService::Diversion::Always: return FORWARDED_ALWAYS;
    case CallService::Diversion::Busy: return FORWARDED_ON_BUSY;
    case CallService::Diversion::DoNotDisturb: return FORWARDED_ON_DND;
    case CallService::Diversion::NoAnswer: return FORWARDED_NO_ANSWER;
    case CallService::Diversion::ForGroup: return FORWARDED_FOR;
    case CallService::Diversion::None: break;
    }
    return ForwardedCallType{5};
}
