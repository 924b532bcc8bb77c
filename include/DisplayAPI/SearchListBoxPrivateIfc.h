#pragma once

#include <DisplayAPI/DisplayablePrivate.h>

#include <UWidget.h>

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class ItemStateListener;
class ListItemPrivateIfc;
class SearchList;

/// The half of a search list on the GUI thread, as its handle sees it. It knows toolkit rows and no ListItem.
///
/// An operation that changes what can be seen ends with the display's notice. The subscriber may delete the list in it,
/// and this with the list: a caller who goes on asks first whether it still lives.
///
/// Threads: GUI thread only, but for the listeners.
/// Ownership: the handle owns it. It owns its widget in any case, and the title's translation; a row's toolkit row is
/// the toolkit's while it stands in the list, else the row's half's.
/// Errors: when the widget has been deleted by a tree that held it, every operation is without effect. Null rows are
/// ignored, but for removeAt(), which then gives the notice alone.
class DISPLAYAPI_EXPORT SearchListBoxPrivateIfc : public UWidget, public DisplayablePrivate {
public:
    // Title

    virtual void setTitle(const std::string& title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;

    // Rows

    virtual int size() = 0;
    virtual void append(ListItemPrivateIfc* row) = 0;

    /// Deletes the toolkit's rows.
    virtual void clear() = 0;
    virtual int getSelectedIndex() = 0;
    virtual void setSelectedIndex(int index) = 0;
    virtual void insertAt(ListItemPrivateIfc* row, int index) = 0;

    /// Takes the row, which stands at `index`, out of the toolkit's list and gives it back to its half.
    virtual void removeAt(int index, ListItemPrivateIfc* row) = 0;
    virtual void remove(ListItemPrivateIfc* row) = 0;

    // Search text and listeners

    virtual std::string getSearchText() = 0;
    virtual void setSearchText(std::string text) = 0;
    virtual void addItemStateListener(ItemStateListener* listener) = 0;

    /// Those that live.
    virtual std::vector<ItemStateListener*> getItemStateListeners() = 0;
    void addCommandListener(CommandListener* listener) override = 0;
    void removeCommandListener(CommandListener* listener) override = 0;

    // Life on the screen

    virtual SearchList* getParent() = 0;

    /// Null once the widget has gone.
    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
    void lostFocus() override = 0;

    // Search field

    virtual void showSearchPopup() = 0;
    virtual void dismissSearchPopup() = 0;
    virtual bool isSearchPopupVisible() = 0;
    virtual void setCountIndicator(int count) = 0;
    virtual void setSearchCountIndicator(int count) = 0;

    using DisplayablePrivate::serialise;
    std::string serialise() override = 0;
};

}
