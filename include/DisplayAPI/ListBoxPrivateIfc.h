#pragma once

#include <DisplayAPI/DisplayablePrivate.h>

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class ListItemPrivateIfc;
class PopupDialer;

/// The half of a list that lives on the GUI thread. It knows toolkit rows and no ListItem. Null rows are ignored.
class DISPLAYAPI_EXPORT ListBoxPrivateIfc : public DisplayablePrivate {
public:
    virtual int size() = 0;

    // Rows

    /// Hands the row to the toolkit's list, which owns it from then on.
    virtual void append(ListItemPrivateIfc* row) = 0;

    /// Deletes the toolkit's rows.
    virtual void clear() = 0;
    virtual int getSelectedIndex() = 0;
    virtual void setSelectedIndex(int index) = 0;
    virtual void setSelected(ListItemPrivateIfc* row) = 0;

    /// As append(), in front of the row at `index`.
    virtual void insertAt(ListItemPrivateIfc* row, int index) = 0;

    /// Takes the row, which stands at `index`, out of the toolkit's list and gives it back to its private.
    virtual void removeAt(int index, ListItemPrivateIfc* row) = 0;

    /// As removeAt(). A list that is left without rows leaves the screen.
    virtual void remove(ListItemPrivateIfc* row) = 0;

    /// Takes `oldRow` out and puts `newRow`, which may stand in this list, at `index`.
    virtual void move(ListItemPrivateIfc* oldRow, ListItemPrivateIfc* newRow, int index) = 0;

    // Title

    virtual void setTitle(const std::string& title) = 0;

    /// Takes the translation over.
    virtual void setTitle(TranslationInfo* title) = 0;

    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, const std::string& text) = 0;

    /// The handle of the screen.
    virtual Displayable* getParent() = 0;
    virtual void hide() = 0;

    // Dialer

    virtual void showDiallerOnInitialKeyEvent(bool show) = 0;
    virtual void setDialler(PopupDialer* dialer) = 0;
    virtual void dismissDialler() = 0;

    virtual void setSelectionHighlight(bool) { }
    virtual void setIsPageList(bool) { }
};

}
