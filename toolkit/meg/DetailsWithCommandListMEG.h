#pragma once

#include "UString.h"
#include "UWidget.h"

#include <string>

class VantoListBoxItemMEG;
class VantoListBoxWithTitleMEG;

/// The details of a contact or a call: a header line above a list of commands.
///
/// Up and Down move silently, OK raises RowChosen with the row as source; Left and Right are taken and raise nothing.
/// Threads: GUI thread only. Ownership: it owns its rows; rows are deleted by clearList() and with it.
class TOOLKIT_EXPORT DetailsWithCommandListMEG : public UWidget {
public:
    explicit DetailsWithCommandListMEG(UWidget* parent);
    ~DetailsWithCommandListMEG() override;

    /// Adds a row at the end and takes it over; null is ignored.
    void addListItem(VantoListBoxItemMEG* row);
    void clearList();
    int getNumberOfCommands() const;

    /// An empty header gives its line to the commands.
    void setHeaderText(const std::string& text);

    /// The block of the screen: the header and the current row.
    UString serialise() const;

    // Overrides

    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override { return isVisible() ? this : nullptr; }

private:
    std::string mHeader;
    VantoListBoxWithTitleMEG* mList; // a child
};
