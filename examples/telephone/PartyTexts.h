#pragma once

#include "CallService.h"
#include "Languages.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/ForwardedCallType.h>

#include <string>

/// A party as the screens want it; without a text of its own.
DisplayAPI::CallPartyIdentifier identifierOf(const CallService::Party& party);

/// The same for a row, which doesn't know of withheld numbers.
DisplayAPI::CallPartyIdentifier rowOf(const CallService::Party& party, Languages& languages);

/// The name, else the number; in the user's language if the number is withheld, or nothing is known.
std::string shortNameOf(const CallService::Party& party, Languages& languages);

/// A number outside the enumeration for None, so that no text says so.
DisplayAPI::ForwardedCallType forwardedTypeOf(CallService::Diversion diversion);
