#pragma once

#include <DisplayAPI/Icons.h>
#include <DisplayAPI/Numbered.h>
#include <DisplayAPI/Widget.h>

#include <atomic>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class ListItemPrivateIfc;
class RowHolder;

/// One row of a list: a text, a second text at the right edge, an icon at the left.
///
/// Threads: any. Reads wait for the GUI thread and see what the same thread has written before; the other calls
/// return at once. An application's own subclass is made on the GUI thread, or its base would run before it is whole.
/// Ownership: a row belongs to the application until a list takes it; then to the list, until the list gives it
/// back. A row that is deleted while it stands in a list leaves that list first.
/// Errors: a call on a row without a half on the GUI thread changes nothing and answers an empty text or 0: one whose
/// half has gone, and one that was made off the GUI thread once the event loop had ended. The latter never gets a half,
/// and no list takes it, also under a later loop: it stays the caller's.
class DISPLAYAPI_EXPORT ListItem : public Widget, public Numbered<ListItem> {
public:
    /// What a row shows beside its text.
    enum ListItemType : int {
        PlainItem = 0,
        InfiniteProgressItem = 1, ///< A bar that runs without an end; see startInfiniteProgressBar().
    };

    /// A plain row without text.
    ListItem();

    /// A plain row. The flag has no effect.
    ListItem(std::string text, bool flag);

    /// A plain row whose text follows the locale. The row takes the translation; null is an empty text.
    ListItem(TranslationInfo* text, bool flag);

    /// A row of another type, without text. A number that is no type makes a plain row.
    explicit ListItem(ListItemType type);

    /// Waits until the row has gone from the GUI thread.
    ~ListItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    /// The half on the GUI thread; null until it has been made. Threads: GUI thread.
    virtual ListItemPrivateIfc* getPrivateImplemetation();

    // Text

    /// Shows another text until the locale changes: a row that was made with a translation then shows that again.
    void setText(std::string text);

    /// Shows the complete translation, or nothing for null. The object stays the caller's and must live until
    /// the request has run; a later change of locale does not read it again.
    void setText(TranslationInfo* text);
    std::string getText();

    /// The text at the right edge; as setText().
    void setRightText(std::string text);
    void setRightText(TranslationInfo* text);
    std::string getRightText();

    // Icons

    /// Shows one of the icons 345 to 360; any other number takes the icon away. From another thread than the
    /// GUI thread 0 changes nothing.
    void setLeftIcon(Icons::IconType icon);

    /// The icon as last set, whether it is shown or not; 0 before. It is read at once, without waiting for
    /// earlier calls.
    Icons::IconType getLeftIcon();

    /// 0 in this class.
    virtual Icons::IconType getRightIcon();

    // State

    /// Lets the bar of an InfiniteProgressItem run; without effect on other rows.
    void startInfiniteProgressBar();

    /// Takes the highlight bar off the row until it becomes current again.
    void clearBackground();

    /// Without effect in this class.
    void enableContextMenuArrow(bool enabled);

    /// Who holds the row; null while it is the application's. Threads: GUI thread.
    RowHolder* holder() const { return mHolder; }

protected:
    /// For rows with a private of their own: makes no request and sets no name. Null if the subclass makes the
    /// private later, see setPrivate().
    explicit ListItem(ListItemPrivateIfc* rowPrivate);

    /// Makes a plain row without text. A subclass calls it at the end of its own constructor: a request that runs
    /// earlier would meet an object that is not yet whole.
    void createPlainRow();

    /// What the destructor does, on any thread: the half is deleted on the GUI thread, and the caller waits. A
    /// subclass calls it first in its own destructor, so that no earlier request meets an object that is half gone;
    /// behind that, and behind retireRow(), it does nothing.
    void destroy();

    /// Takes the private over, and deletes an earlier one.
    void setPrivate(ListItemPrivateIfc* rowPrivate);

    /// The row has another private than `before`, which still lives: whoever holds the row shows it anew. The display
    /// tells of it, so the row itself may have gone behind this. For rows that keep their private themselves.
    void privateChanged(ListItemPrivateIfc* before);

    /// The deletion of a row's private on the GUI thread: retires the handle and takes the row from its holder. What is
    /// left is to delete the private, which the caller names: a destructor reaches no override.
    void retireRow(ListItemPrivateIfc* rowPrivate);

private:
    enum class Request : int;

    friend class HeldRows;

    // Another thread may read the icon while the GUI thread makes the private.
    std::atomic<ListItemPrivateIfc*> mPrivate = nullptr;
    RowHolder* mHolder = nullptr;
    bool mIsLeaving = false; // on its way out of the holder: another may have it
};

}
