#pragma once

#include <DisplayAPI/List.h>

namespace DisplayAPI {

class Command;

/// A list of radio buttons on the full screen: while it has rows, exactly one of them is selected. A colon stands
/// behind its title.
///
/// The first row is selected at the beginning, then the one on which the user has pressed OK. The user's way through
/// the list selects nothing. When the selected row goes, the current one takes over.
///
/// Threads: any. The operations of this class wait for the GUI thread.
/// Ownership, Errors, Screen text: as List. The current row is written, selected or not.
class DISPLAYAPI_EXPORT ExclusiveList : public List {
public:
    ExclusiveList();
    ~ExclusiveList() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    // Selection

    /// Selects the row at an index and makes it current. An index outside the list changes nothing.
    void setSelectedIndex(int index) override;

    /// The index of the selected row; -1 in an empty list, and off the GUI thread once the loop has ended.
    int getSelectedIndex() override;

    /// True for the index of the selected row.
    bool isSelected(int index);

    // Without effect

    void addCommand(Command* command);
    void removeCommand(Command* command);
    void setWaitAnimation(bool shown);

private:
    enum class Request : int;

    void create();
    auto halfOf();
};

}
