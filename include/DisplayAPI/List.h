#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/Icons.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class HeldDialer;
class Image;
class ListBoxPrivateIfc;
class ListItem;
class ListItemPrivateIfc;
class PopupDialer;
class Ticker;

/// A list of rows under a title, one of which is current.
///
/// The user moves with Up and Down. OK, Left and Right reach the command listeners as SELECT_COMMAND(),
/// BACK_COMMAND() and RIGHT_COMMAND(). While the list has a title it shows one row, else two.
///
/// Threads: any. Calls that change the list return at once and run in their order; calls that answer wait for
/// the GUI thread, so that they see what the same thread has asked for before. An application's own subclass is made
/// on the GUI thread, or its base would run before it is whole.
/// Ownership: a row belongs to the list from append(), insertAt(), replace() or move() on. remove(), removeAt(),
/// removeAll(), and for the old row replace() and move(), give it back to the application. clear() and
/// deleting the list delete the rows. Titles given as a translation become the list's; listeners, dialer and
/// ticker stay the application's.
/// Errors: null, and rows that are not in this list, change nothing. A row that a list or a conference holds already is
/// refused, and so is one that was made while there was no event loop; it stays whose it is. Once the loop has
/// ended, calls from other threads than the GUI thread change nothing and answer what stands at each as the default.
/// A row that is deleted then, as at any other time, leaves the list.
/// Screen text: an object VantoListBox with the title and the current row.
///
/// The subscriber is told of a change while it happens. getItems() still names the rows from before then, and a row
/// on its way out is still the list's: a subscriber who clears or deletes the list inside the notice of a removal
/// deletes it too, unless he has handed it to another list.
class DISPLAYAPI_EXPORT List : public Displayable {
public:
    /// The kinds of lists, which differ in hasBackItem() alone.
    enum Kind : int {
        Plain = 0,
        LeadingBack = 1,
    };

    /// A list of a kind. 3 counts as LeadingBack too, and every other number as Plain.
    explicit List(int kind);

    /// Deletes the rows too, and waits until they have gone from the GUI thread.
    ~List() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    /// Threads: GUI thread.
    DisplayablePrivateIfc* getPrivateImpl() override;

protected:
    /// Deletes the half on the GUI thread and the rows, from the last to the first. Threads: GUI thread.
    virtual void cleanup();

public:
    // Alignment: without effect

    virtual void align();
    virtual void align(Displayable& other);
    virtual void unalign();

    // Rows

    /// Adds a new row with this text at the end. The row is found by removeAt() or getItems().
    virtual void append(const std::string& text);

    /// As append() of a text; the new row takes the translation.
    virtual void append(TranslationInfo* text);
    virtual void append(ListItem* item);

    /// Without effect, all three.
    virtual void appendItems(const std::vector<ListItem*>& items);
    virtual void appendItems(const std::string& text);
    virtual void appendItems(TranslationInfo* text);

    /// Deletes all rows, from the last to the first, and those that the subscriber adds while he is told.
    virtual void clear();

    /// A copy of the rows in their order. Off the GUI thread, once the loop has ended: empty.
    virtual std::vector<ListItem*> getItems();

    /// The current row; null without one, and off the GUI thread once the loop has ended.
    virtual ListItem* getSelected();

    /// Makes a row of this list current.
    virtual void setSelected(ListItem* item);

    /// Makes the row at an index current; -1 leaves the list without a current row, any other index outside the list
    /// changes nothing. It gives no notice.
    virtual void setSelectedIndex(int index);

    /// The index of the current row; -1 without one, and off the GUI thread once the loop has ended.
    virtual int getSelectedIndex();

    /// Always -1.
    virtual int getDisplayIndexForItem(ListItem* item);

    /// Puts a row in front of the one at an index: at the front for 0 and below, at the end for size() and above.
    virtual void insertAt(ListItem* item, int index);

    /// Takes the row at an index out and gives it to the caller. An index below 0 means the first row; from size() on
    /// the answer is null and a message is logged. Null too off the GUI thread once the loop has ended, and if the
    /// subscriber has handed the row on, or has deleted it or the list, while he was told.
    virtual ListItem* removeAt(int index);

    /// Takes a row out. The row must live until the request has run: deleting it from the same thread is safe.
    /// A list that is left without rows leaves the screen, until it gets a row or is made current again.
    virtual void remove(ListItem* item);

    /// Takes `old` out and puts `replacement`, which may stand in this list, at `index`, counted without the two;
    /// outside the list as insertAt() has it.
    virtual void move(ListItem* old, ListItem* replacement, int index);

    /// Takes all rows out and deletes none.
    virtual void removeAll();

    /// Puts `replacement` in the place of `old`, and makes it current if that was; at the end if `old` is null or
    /// not here.
    virtual void replace(ListItem* old, ListItem* replacement);

    /// The number of rows; -1 off the GUI thread once the loop has ended.
    virtual int size();

    // Title

    virtual void setTitle(const std::string& title);

    /// Takes the translation over; null is an empty title.
    virtual void setTitle(TranslationInfo* title);

    // The header of a richer list: without effect, and the answers are empty

    virtual void setHeaderText(const std::string& text);
    virtual void setHeaderText(TranslationInfo* text);
    virtual void setHeaderTextHint(const std::string& hint);
    virtual void setHeaderRightText(const std::string& text);
    virtual void setHeaderRightText(TranslationInfo* text);
    virtual void showHeaderTextEntryField();
    virtual void hideHeaderTextEntryField();
    virtual void setEditMode(int mode);
    virtual std::string getUserEnteredHeaderText();
    virtual void setUserEnteredHeaderText(const std::string& text);
    virtual void enableUserEditableHeader();
    virtual void disableUserEditableHeader();
    virtual void setHeaderIcon(Icons::IconType icon);
    virtual void setHeaderLeftImage(Image* image);
    virtual void setContactAvatar(Image* image);
    virtual void setHeaderLeftIcon(Icons::IconType icon);
    virtual void setHeaderNotificationCount(int count);
    virtual void setHeaderLinePosition(int position);
    virtual void setTime(const std::string& time);

    // Filters and pages: without effect

    virtual void setFilterTypes(const std::vector<std::string>& types);
    virtual std::string getFilterType();
    virtual void setFilterType(const std::string& type);
    virtual void setFilterHeader(const std::string& header);
    virtual std::string getFilterHeader();
    virtual void setIsPageList(bool isPageList);

    /// Always -1.
    virtual int getCurrentPageNumber();
    virtual void setCurrentLayer(int layer);
    virtual void setNumberVisible(bool visible);

    // System window: without effect

    virtual void setSystemWindowSize(int lines);
    virtual void setSystemWindowText(int line, const std::string& text);

    // Commands

    /// A listener that is in already is not added again.
    virtual void addCommandListener(CommandListener* listener);
    virtual void clearCommandListeners();
    virtual void removeCommandListener(CommandListener* listener);

    // State

    /// Lets the list take no more keys, until it is shown again; it stays where it is.
    virtual void hide();

    /// Reads the rows' translations again. Threads: GUI thread.
    virtual void localeChanged(std::string locale);

    /// True for LeadingBack. It is stored, and changes nothing that can be seen.
    bool hasBackItem() const { return mHasBackItem; }

    /// Takes the highlight bar off the current row until the user moves.
    void clearSelectedItemBackground();

    /// Without effect in this class.
    void setSelectionHighlight(bool highlight);

    /// Without effect, all of these.
    void setEnabled(bool enabled);
    void setUsedWithTab(bool used);
    void setWrapAround(bool wrap);
    void ignoreButtonPress(bool ignore);
    void suppressAutoRightArrowForSoftKeys(bool suppress);
    void addItemToRemoveListContainer(ListItem* item);
    void tidyup();

    // Dialer and ticker

    /// Hands every key that the list gets to the dialer from now on; null ends that.
    void addDialer(PopupDialer* dialer);

    /// The dialer; null when it has been deleted, and off the GUI thread once the loop has ended.
    PopupDialer* getDialer();

    /// Stored, and without effect.
    void showDiallerOnInitialKeyEvent(bool show);

    /// The ticker is stored and handed back, and not used.
    void setTicker(Ticker* ticker);

    /// Null before setTicker(), and off the GUI thread once the loop has ended.
    Ticker* getTicker();

    // What the listeners are told. The commands last as long as the process and are told apart by address.

    static Command* BACK_COMMAND();
    static Command* RIGHT_COMMAND();
    static Command* SELECT_COMMAND();
    static Command* DISPLAY_CHANGED_COMMAND();
    static Command* TABBAR_ACTIVE_COMMAND();
    static Command* TABBAR_INACTIVE_COMMAND();
    static Command* HEADER_TEXT_CHANGED_COMMAND();
    static Command* HEADER_TEXT_ENTRY_FINISHED_COMMAND();
    static Command* FILTER_CHANGED_COMMAND();

protected:
    /// For lists with a private of their own: makes no request. The subclass sets mPrivate on the GUI thread.
    explicit List(bool hasBackItem);

    /// What the destructor does, on any thread: the half and the rows are deleted on the GUI thread, by cleanup(), and
    /// the caller waits. A subclass calls it first in its own destructor, so that no earlier request meets an object
    /// that is half gone; behind that it does nothing.
    void destroy();

    std::unique_ptr<ListBoxPrivateIfc> mPrivate;

private:
    enum class Request : int;
    class Rows;

    // The steps of the requests, on the GUI thread
    void create(bool hasBackItem);
    void createAndAppendItem(ListItem* item);
    void privateAppend(ListItem* item);
    void privateClear();
    ListItem* findSelectedItem();
    void privateSetSelected(ListItem* item);
    void privateInsertAt(ListItem* item, int index);
    ListItem* privateRemoveAt(int index);
    void privateRemove(ListItem* item);
    void privateMove(ListItem* old, ListItem* replacement, int index);
    void privateRemoveAll();
    void privateReplace(ListItem* old, ListItem* replacement);
    void privateSetDialer(PopupDialer* dialer);
    void privateClearSelectedBackground();
    void copyItemsTo(std::vector<ListItem*>* copy) const;
    PopupDialer* livingDialer() const;

    std::unique_ptr<Rows> mItems;
    std::unique_ptr<HeldDialer> mDialer;
    Ticker* mTicker = nullptr;
    std::atomic<bool> mHasBackItem;
    bool mIsDestroyed = false; // or about to be
};

}
