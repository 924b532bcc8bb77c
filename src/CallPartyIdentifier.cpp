#include <DisplayAPI/CallPartyIdentifier.h>

namespace DisplayAPI {

namespace {

bool isKnown(const std::string& text)
{
    return !text.empty() && text != CallPartyIdentifier::UnknownParty;
}

}

CallPartyIdentifier::CallPartyIdentifier(std::string partyName, std::string partyNumber)
    : name(std::move(partyName))
    , number(std::move(partyNumber))
{
}

CallPartyIdentifier::~CallPartyIdentifier() = default;

bool CallPartyIdentifier::getInterimNameNumber(std::string& text, bool) const
{
    if (isKnown(name))
        text = name;
    else if (isKnown(number))
        text = number;
    else
        return false;
    return true;
}

bool CallPartyIdentifier::isCallHasNameButNoNumber() const
{
    return isKnown(name) && !isKnown(number);
}

}
