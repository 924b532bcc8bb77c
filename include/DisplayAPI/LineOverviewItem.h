#pragma once

#include <DisplayAPI/ListItem.h>

#include <string>

namespace DisplayAPI {

/// A row of the line overview: the state of a line as an icon, its name behind a prefix, and its identity at the right
/// edge.
///
/// The row can be held: what is set meanwhile shows when the time is over, all at once.
///
/// Threads: any. Each operation of this class waits for the GUI thread.
/// Ownership: as ListItem; translations handed in become the row's. They are read when they are set and when a hold
/// ends, not with a change of locale.
/// Errors: as ListItem. A line that is made in a state without an icon never has a row on the glass: what is set is
/// stored, and a list shows nothing of it. It counts in getItems() all the same, so that getSelected() of a list names
/// rows behind it wrongly: make a line in a state with an icon, and set another.
/// Screen text: as a plain row, of prefix, name and identity.
class DISPLAYAPI_EXPORT LineOverviewItem : public ListItem {
public:
    /// What goes on on the line, at this telephone or elsewhere. Three states have no icon, and neither has any other
    /// number: a change to one of them leaves the icon as it is.
    enum LineState : int {
        LINE_IDLE = 0,
        LINE_ACTIVE = 1, ///< With an icon of its own while the call has the better voice.
        LINE_SEIZED = 2, ///< Without an icon.
        LINE_RINGING = 3,
        LINE_CALLING = 4,
        LINE_HELD = 5,
        LINE_ACTIVE_ELSEWHERE = 6,
        LINE_RINGING_ELSEWHERE = 7,
        LINE_CALLING_ELSEWHERE = 8,
        LINE_OUT_OF_SERVICE = 9, ///< Without an icon.
        LINE_UNKNOWN = 10,       ///< Without an icon.
        LINE_HELD_ELSEWHERE = 11,
    };

    /// The arrow shows that Right leads on from here. The prefix may be null.
    LineOverviewItem(
        LineState state, const std::string& name, const std::string& identity, bool arrow, TranslationInfo* prefix);
    ~LineOverviewItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    // The line

    void setLineState(LineState state);
    void setLineName(const std::string& name);

    /// The translation without what stands around it; null is none. A prefix that is taken away while the row is held
    /// stays on the glass until the next one.
    void setLineNamePrefix(TranslationInfo* prefix);
    void setLineIdentity(const std::string& identity);

    /// As for the prefix; but null only forgets the identity, and leaves the glass as it is.
    void setLineIdentity(TranslationInfo* identity);

    /// Whether a call on the line has the better voice. It shows with the next change of the state.
    void setDisplayHDIconStatus(bool shown);

    // Hold

    /// Holds the row for a time from now, and anew if it is held already; what was stored shows first. 0 and below
    /// ends a hold.
    void holdItem(int milliseconds);

private:
    enum class Request : int;

    void initialise(
        LineState state, const std::string& name, const std::string& identity, bool arrow, TranslationInfo* prefix);
    auto halfOf();
};

}
