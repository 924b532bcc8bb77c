#pragma once

#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/SearchListBoxPrivateIfc.h>

#include "StateItem.h"
#include "TranslationHolder.h"

#include <SearchableListMEG.h>

#include <string>
#include <vector>

class VantoListBoxItemMEG;
class VantoListBoxMEG;

namespace DisplayAPI {

class Command;

/// The search list on the GUI thread: drives one toolkit list with a search field, and turns its events into commands
/// and item states.
///
/// It deletes its widget in any case. A toolkit tree that holds the widget may have deleted it before; then everything
/// here is without effect.
class SearchListBoxPrivate final : public SearchListBoxPrivateIfc {
public:
    explicit SearchListBoxPrivate(SearchList* parent);
    ~SearchListBoxPrivate() override;

    // Rows

    int size() override;
    void append(ListItemPrivateIfc* row) override;
    void insertAt(ListItemPrivateIfc* row, int index) override;
    void removeAt(int index, ListItemPrivateIfc* row) override;
    void remove(ListItemPrivateIfc* row) override;
    void clear() override;
    int getSelectedIndex() override;
    void setSelectedIndex(int index) override;

    // Title

    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void localeChanged(std::string locale);

    // Search

    void showSearchPopup() override;
    void dismissSearchPopup() override;
    bool isSearchPopupVisible() override { return mWidget && mWidget->inSearchMode(); }
    std::string getSearchText() override;
    void setSearchText(std::string text) override;
    void setCountIndicator(int count) override;
    void setSearchCountIndicator(int count) override;

    // Listeners

    void addItemStateListener(ItemStateListener* listener) override { mItemStateListeners.add(listener); }
    std::vector<ItemStateListener*> getItemStateListeners() override { return mItemStateListeners.all(); }
    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void removeCommandListener(CommandListener*) override { }
    void clearCommandListeners() override { }

    // Life on the screen

    SearchList* getParent() override { return mParent; }
    UWidget* getWidget() override { return mWidget.get(); }
    void releaseOwnership() override { }
    void gainOwnership() override { }
    void show() override;
    void lostFocus() override;

    // What the user does

    void event(UEvent* event) override;
    void leftEvent();
    void rightEvent();
    void selectedEvent();
    void textEntered();

    // Screen text

    using SearchListBoxPrivateIfc::serialise;
    std::string serialise() override;

private:
    VantoListBoxMEG* list() const { return mWidget ? mWidget->list() : nullptr; }
    void showTitle(const std::string& title, bool isInsideDetailsMenu);
    void showHint();
    void tellListeners(Command* command);

    SearchList* mParent;
    UPointer<SearchableListMEG> mWidget;
    ListenerList<ItemStateListener> mItemStateListeners;
    stateItem mStateItem; // stands for the search text
    TranslationHolder mTitleInfo;
};

}
