#include "PartyText.h"

#include <PopupNotificationMEG.h>

namespace DisplayAPI {

namespace {

NameAndNumber secondParty(const CallPartyIdentifier& party)
{
    const std::string unknown = CallPartyIdentifier::UnknownParty;
    return {party.name == unknown ? "" : party.name, party.number == unknown ? unknownParty() : party.number};
}

}

std::string unknownParty()
{
    return TranslationInfo(CallPartyIdentifier::UnknownParty, DisplayablePrivate::commonTranslator).getString();
}

NameAndNumber firstParty(const CallPartyIdentifier& party)
{
    const std::string unknown = CallPartyIdentifier::UnknownParty;
    if (party.name == unknown && party.number == unknown)
        return {unknownParty(), {}};
    return {party.name == unknown ? "" : party.name, party.number == unknown ? "" : party.number};
}

void showParties(PopupNotificationMEG& popup, const NameAndNumber& first, const CallPartyIdentifier* second)
{
    const auto& [name, number] = first;
    if (second) {
        const auto [secondName, secondNumber] = secondParty(*second);
        popup.setLine1TextNN(UString::fromUTF8(name), UString::fromUTF8(number));
        popup.setLine2TextNN(UString::fromUTF8(secondName), UString::fromUTF8(secondNumber));
    } else if (!name.empty() && !number.empty()) {
        popup.setLine1TextNN(UString::fromUTF8(name), UString::fromUTF8(number));
    } else {
        popup.setLine1Text(UString::fromUTF8(name.empty() ? number : name));
    }
}

}
