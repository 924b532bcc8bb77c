#pragma once

#include <DisplayAPI/Displayable.h>

#include <list>
#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class ItemStateListener;
class ListItem;
class SearchListBoxPrivateIfc;

/// A list with a search field over its first line.
///
/// The user types, and the item-state listeners are told of every change of the search text. What is found is the
/// application's to say: it reads the text, changes the rows, and sets the two counters. OK, Left and Right reach the
/// command listeners as SELECT_COMMAND(), BACK_COMMAND() and RIGHT_COMMAND(). The first character opens the field; Left
/// deletes in it, and closes it when it is empty.
///
/// Threads: any. Each call returns after it has run on the GUI thread, but for getItems() and the listeners, whose
/// calls run where they are made. Ownership: a row belongs to the list from append() or insertAt() on, and remove() and
/// removeAt() give it back to the application. clear() and deleting the list delete the rows. Titles given as a
/// translation become the list's; listeners stay the application's, and may die at any time. Errors: null, rows that
/// are not in this list, and indices outside it change nothing. A row that a list or a conference holds already is
/// refused, and stays whose it is. A list that was made after the event loop had ended ignores every call. A row that
/// is deleted leaves the list. Screen text: an object "PopupSearch" with text or hint and the counters while the field
/// is open, else an object "VantoListBox" with the title and the current row.
///
/// The subscriber is told of a change while it happens. getItems() still names the rows from before then.
class DISPLAYAPI_EXPORT SearchList : public Displayable {
public:
    SearchList();

    /// Deletes the rows too, and waits until they have gone from the GUI thread.
    ~SearchList() override;

    // Rows

    /// Adds a new row with this text at the end.
    void append(const std::string& text);

    /// As append() of a text; the new row takes the translation.
    void append(TranslationInfo* text);
    void append(ListItem* item);

    /// Puts a row in front of the one at an index: at the front for 0 and below, at the end for size() and above.
    void insertAt(ListItem* item, int index);

    /// Takes the row at an index out; it is the application's then.
    void removeAt(int index);

    /// Takes a row out; it is the application's then.
    void remove(ListItem* item);

    /// Deletes all rows, from the last to the first, and those that the subscriber adds while he is told.
    void clear();

    /// A copy of the rows in their order, at once and without waiting for what other threads do to them.
    std::list<ListItem*> getItems() const;

    /// The number of rows on the glass, in view or not; -1 where there is no answer, since the event loop has ended.
    int size();

    // Current row

    /// Null without one, and where there is no answer.
    ListItem* getSelected();

    /// -1 without one, and where there is no answer.
    int getSelectedIndex();

    /// -1 leaves the list without a current row; any other index outside the list changes nothing.
    void setSelectedIndex(int index);

    // Title

    /// A literal title says that the list lies inside a details menu: its line shows no place in the list.
    void setTitle(const std::string& title);

    /// Takes the translation over; null is an empty title. The title's line shows the place in the list.
    void setTitle(TranslationInfo* title);

    // Search

    /// Opens the field, with the text that it had.
    void showSearchPopup();
    void dismissSearchPopup();

    /// True while the field is open, whoever has opened it.
    bool isSearchPopupVisible();

    /// The text of the field up to its first NUL.
    std::string getSearchText();

    /// Changes the text of the field, which neither opens nor closes it, and tells no listener.
    void setSearchText(std::string text);

    /// How many entries there are in all. Below 0, as at first, the number of rows stands for it.
    void setCountIndicator(int count);

    /// How many entries the search has found; as setCountIndicator().
    void setSearchCountIndicator(int count);

    // Listeners, who join before the screen is shown. One that joins twice is told twice

    void addCommandListener(CommandListener* listener);

    /// Without effect: a listener leaves by its death.
    void removeCommandListener(CommandListener* listener);

    /// Joins those who are told that the search text has changed.
    void addItemStateListener(ItemStateListener* listener);

    // What the listeners are told. The commands last as long as the process and are told apart by address.

    static Command* BACK_COMMAND();
    static Command* RIGHT_COMMAND();
    static Command* SELECT_COMMAND();

    // Without effect on this telephone

    /// Always false.
    bool stopKeypadTimerSaveAndExit();
    void setSelectionHighlight(bool highlight);
    void setUsedWithTab(bool used);
    void setWrapAround(bool wrap);
    void setWaitAnimation(bool shown);

    /// Reads the rows' translations again. Threads: GUI thread.
    void localeChanged(std::string locale);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;
    class Rows;
    class Half;

    void create();
    void destroy();
    void cleanup();
    Half half() const;

    std::unique_ptr<SearchListBoxPrivateIfc> mPrivate;
    std::unique_ptr<Rows> mItems;
};

}
