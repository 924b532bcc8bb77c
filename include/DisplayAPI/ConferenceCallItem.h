#pragma once

#include <DisplayAPI/CallConnectedItem.h>

#include <string>

namespace DisplayAPI {

/// A conference in the list of connected calls: a title row with a state of its own, under which the calls that take
/// part hang as rows.
///
/// Members count from 1; row 0 is the title. A member shows neither the icon of its state nor its duration, which ends
/// for good when it joins.
///
/// Threads: any. Each operation of this class waits for the GUI thread.
/// Ownership: as CallConnectedItem. The conference has the rows of its members on the screen, while the members
/// themselves stay the application's. A call that joins leaves the list or the conference that holds it, and belongs
/// to the application then. A member may be deleted at any time; it leaves first, as all do when the conference dies.
/// Where a list is deleted with the conference in it, the rows of the members die too: such a member shows nothing
/// more. Errors: null, the conference itself, one that it is part of and a call that is a member already don't join;
/// numbers outside the members are ignored.
class DISPLAYAPI_EXPORT ConferenceCallItem : public CallConnectedItem {
public:
    /// A conference without members. The flag shows the mark of a context menu.
    ConferenceCallItem(CallStateIcon state, TranslationInfo* text, bool headset, bool widgetFlag1);
    ~ConferenceCallItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    /// Reads the translations of the conference and of its members again. Threads: GUI thread.
    void localeChanged(std::string locale);

    // Members

    /// Adds a call behind the others. The flag has no effect.
    void appendCall(CallConnectedItem* call, bool flag);
    void removeCall(CallConnectedItem* call);
    void removeCall(int member);

    /// Null outside the members.
    CallConnectedItem* getIndexedMember(int member);

    // Selection

    /// Makes a row current.
    void setCallItem(int row);

    /// The member whose row is current, or the title's.
    CallConnectedItem* getSelectedMember();

    // Title

    /// What stands for the title row: the conference itself.
    CallConnectedItem* getTitleMember();

    /// A text beside the title.
    void setTitleSuffix(TranslationInfo* text);
    void setTitleSuffix(const std::string& text);

private:
    enum class Request : int;

    void initialise(CallStateIcon state, TranslationInfo* text, bool headset, bool widgetFlag1);
    auto halfOf();
};

}
