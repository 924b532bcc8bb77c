#pragma once

#include <DisplayAPI/Export.h>

#include <string>

namespace DisplayAPI {

/// One party of a call, as the application knows it.
///
/// A name or number that is not known holds the text UnknownParty; a withheld number the text WithheldNumber.
class DISPLAYAPI_EXPORT CallPartyIdentifier {
public:
    /// The kind of a number, for icons in lists: 1 private, 2 and 3 business, 4 mobile; any other shows none.
    enum PhoneNumberIconType : int {};

    static constexpr const char* UnknownParty = "Caller.Unknown.XXX";
    static constexpr const char* WithheldNumber = "anonymous";

    CallPartyIdentifier() = default;
    CallPartyIdentifier(std::string partyName, std::string partyNumber);
    CallPartyIdentifier(const CallPartyIdentifier&) = default;
    CallPartyIdentifier& operator=(const CallPartyIdentifier&) = default;
    virtual ~CallPartyIdentifier();

    /// Writes the name, else the number. False, with the text unchanged, when neither is known. The flag has no
    /// effect.
    bool getInterimNameNumber(std::string& text, bool flag) const;

    bool isCallHasNameButNoNumber() const;

    std::string name = UnknownParty;
    std::string number = UnknownParty;
    std::string displayText; ///< Ready-made text for a row or an address.
    PhoneNumberIconType numberIconType{};
    bool isMarked = false; ///< A mark of the application's. Rows of the call log are told of it, and show nothing of it.
};

}
