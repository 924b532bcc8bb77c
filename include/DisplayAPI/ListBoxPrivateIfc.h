#pragma once

#include <DisplayAPI/DisplayablePrivate.h>

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class ListItemPrivateIfc;
class PopupDialer;

/// The half of a list that lives on the GUI thread. It knows toolkit rows and no ListItem.
///
/// A row, a title or setSelected() gives the display's notice as its last step. The subscriber may delete the list
/// there, and this half with it: behind such a call the caller asks whether it is still there.
/// Ownership: a row's toolkit row is the toolkit's while it stands in the list, else the row's half's.
/// Errors: null rows are ignored, but for removeAt(), which then gives the notice alone. A row whose half has no toolkit
/// row is handed over all the same, and the glass does not have it.
class DISPLAYAPI_EXPORT ListBoxPrivateIfc : public DisplayablePrivate {
public:
    /// The number of rows on the glass, in view or not.
    virtual int size() = 0;

    // Rows

    /// Hands the row to the toolkit's list, which owns it from then on.
    virtual void append(ListItemPrivateIfc* row) = 0;

    /// Deletes the toolkit's rows.
    virtual void clear() = 0;

    /// The index of the current row, -1 without one.
    virtual int getSelectedIndex() = 0;

    /// -1 leaves the list without a current row; any other index outside the list changes nothing. Without a notice.
    virtual void setSelectedIndex(int index) = 0;

    /// Makes a row of this list current; another one changes nothing.
    virtual void setSelected(ListItemPrivateIfc* row) = 0;

    /// As append(), in front of the row at `index`: at the front for 0 and below, at the end for size() and above.
    virtual void insertAt(ListItemPrivateIfc* row, int index) = 0;

    /// Takes the row, which stands at `index`, out of the toolkit's list and gives it back to its private.
    virtual void removeAt(int index, ListItemPrivateIfc* row) = 0;

    /// As removeAt(). A list that is left without rows leaves the screen, until append() or insertAt() or the next time
    /// that it is made current.
    virtual void remove(ListItemPrivateIfc* row) = 0;

    /// Takes `oldRow` out, if it is here, and puts `newRow`, which may stand in this list, at `index`, counted without
    /// the two.
    virtual void move(ListItemPrivateIfc* oldRow, ListItemPrivateIfc* newRow, int index) = 0;

    // Title

    virtual void setTitle(const std::string& title) = 0;

    /// Takes the translation over.
    virtual void setTitle(TranslationInfo* title) = 0;

    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, const std::string& text) = 0;

    /// The handle of the screen.
    virtual Displayable* getParent() = 0;

    /// Lets the list take no more keys; it stays where it is.
    virtual void hide() = 0;

    // Dialer: it gets every key, until it is set to null

    virtual void showDiallerOnInitialKeyEvent(bool show) = 0;
    virtual void setDialler(PopupDialer* dialer) = 0;

    /// Takes the focus from the dialer, if it has had a key since the last time.
    virtual void dismissDialler() = 0;

    virtual void setSelectionHighlight(bool) { }
    virtual void setIsPageList(bool) { }
};

}
