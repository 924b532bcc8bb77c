#pragma once

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include <TranslationInfo.h>

#include <string>

class PopupNotificationMEG;

namespace DisplayAPI {

/// What a popup shows of a party, side by side.
struct NameAndNumber {
    std::string name;
    std::string number;
};

/// "unknown caller" in the user's language.
std::string unknownParty();

/// Who calls or is called: what is not known is left out, and a party of whom nothing is known is called unknown.
NameAndNumber firstParty(const CallPartyIdentifier& party);

/// Shows the first party on the first line: name and number where both are known, else the one that is. On the second
/// line stands whose call it was before it was forwarded, unless that is null: an unknown number is called unknown, an
/// unknown name is left out.
void showParties(PopupNotificationMEG& popup, const NameAndNumber& first, const CallPartyIdentifier* second);

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
