#pragma once

#include <DisplayAPI/ListItem.h>

#include <string>

namespace DisplayAPI {

class CallPartyIdentifier;

/// A row of the call log: who called or was called, how often, and when for the last time.
///
/// The row shows the party's name and number side by side. What is not known of it reads "unknown" in the user's
/// language, as it was when the row was made; a party of whom nothing is known at all does so once.
///
/// Threads: any. Calls return at once and run in their order; the destructor and reads wait for the GUI thread.
/// Ownership: as ListItem; the party becomes the row's, also where the row never comes to be.
/// Errors: as ListItem. A null party counts as one of whom nothing is known.
/// Screen text: a subitem "CallLogListItem".
class DISPLAYAPI_EXPORT CallLogMainItem : public ListItem {
public:
    /// The icons by their number, which rows of call forwarding are given too.
    enum IconType : int {
        NoIcon = 0,
        Private = 1,
        Business1 = 2,
        Business2 = 3,
        Mobile = 4,
        ForwardAlways = 5,
        ForwardOnBusy = 6,
        ForwardOnNoAnswer = 7,
    };

    /// A row with its party, the moment of the last call as "YYYY-MM-DD hh:mm" or any other text, and the number of
    /// calls. Of a moment the row shows the time if it is today, else the date. A bold row stands for calls that nobody
    /// has looked at yet. The arrow shows that Right leads on from here.
    CallLogMainItem(CallPartyIdentifier* party, std::string date, int count, bool bold, bool arrow);

    /// The same for calls that may have been answered at another telephone. The variant changes nothing here; it is -1
    /// for the other constructor.
    CallLogMainItem(CallPartyIdentifier* party, std::string date, int count, bool bold, bool completedElsewhere,
        int variant, bool arrow);
    ~CallLogMainItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    void setbold(bool bold);

private:
    enum class Request : int;

    void initialise(CallPartyIdentifier* party, const std::string& date, int count, bool bold, bool completedElsewhere,
        int variant, bool arrow);
};

}
