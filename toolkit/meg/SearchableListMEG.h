#pragma once

#include "VantoListBoxWithTitleMEG.h"

#include <string>

class VantoTextEditMEG;

/// A list with a search field over its first line. What is found is the application's to say: it hears of every
/// change of the search text, and changes the rows and the two counters.
///
/// A character opens the field (PopupRowMoved) and is typed into it (SearchTextChanged). Left deletes, on an empty
/// line it closes the field (PopupRowMoved). The other keys work on the list, whether the field is open or not.
/// While it is open, the second line shows the letters of a key, the hint, or the current row as soon as the user has
/// typed something or moved.
/// Operations raise nothing.
/// Threads: GUI thread only. Its listener may delete it inside any event.
class TOOLKIT_EXPORT SearchableListMEG : public VantoListBoxWithTitleMEG {
public:
    SearchableListMEG();
    ~SearchableListMEG() override;

    void setTitle(const UString& title);

    /// Says what to type, for as long as nothing has been typed.
    void setHintText(const UString& text);

    /// Inside a details menu the title has its line alone, without the place in the list.
    void setInsideDetailsMenu(bool inside);

    // Search field

    /// Opens the field, with the text that it had.
    void startSearching();
    void stopSearching();
    bool inSearchMode() const { return mIsOpen; }

    UString getSearchText() const;

    /// Sets the text in UTF-8; it neither opens nor closes the field.
    void setSearchText(const std::string& text);

    /// How many entries there are in all, and how many the search has found. Below 0, as at first, the number of
    /// rows stands for it.
    void setCountIndicator(int count);
    void setSearchCountIndicator(int count);

    /// The open field as lines of the screen text: title if there is one, text or hint, and the counters.
    virtual UString getSearchFieldText() const;

    // Overrides

    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }
    Role role() const override { return Role::SearchableList; }

private:
    void setOpen(bool open);
    void typed();
    bool closeByKey();
    UString counters() const;
    UString placeInList() const;
    void paintTitle(UPainter& painter) const;
    void paintField(UPainter& painter, int line);
    bool isRowShown() const;

    VantoTextEditMEG* mEdit;
    UString mHint;
    int mCount = -1;
    int mFoundCount = -1;
    bool mIsOpen = false;
    bool mHasMoved = false; // since the last character
    bool mIsInsideDetailsMenu = false;
};
