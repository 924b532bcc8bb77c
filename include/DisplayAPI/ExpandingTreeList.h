#pragma once

#include <DisplayAPI/Displayable.h>

#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ExpandingTreeListItem;
class ExpandingTreeListPrivateIfc;
template <typename T>
class OwnedHandles;

/// A list over the whole glass, of rows that unfold: below the row that has the highlight stand its branch rows.
///
/// The user moves with Up and Down over rows and branch rows. OK, Left and Right reach the command listeners as
/// commands of the type Select, Back and Right, with an empty label; what becomes of them is the application's to
/// decide. Left also gives the full screen back.
///
/// Threads: any, but for localeChanged(). Each call returns after it has run on the GUI thread.
/// Ownership: an item belongs to the list from append() on; clear() and deleting the list delete the items, from the
/// last to the first. An item that is deleted leaves the list. A title given as a translation becomes the list's;
/// listeners stay the application's. Errors: null is no item, and an item that a list has already is ignored, and one
/// without a half on the GUI thread. They stay whose they are. Once the loop has ended, calls from other threads than
/// the GUI thread change nothing. Screen text: an object "ExpandingListBox" with the title and the row that has the
/// highlight.
class DISPLAYAPI_EXPORT ExpandingTreeList : public Displayable {
public:
    /// An empty list; the flag has no effect.
    explicit ExpandingTreeList(bool flag);
    ~ExpandingTreeList() override;

    // Items

    /// Adds an item at the end. One that shows no row takes its place in getExpandingItemsList() all the same.
    void append(ExpandingTreeListItem* item);

    /// Deletes all items.
    void clear();

    /// The items in their order, those without a row too. It is read at once, on any thread.
    std::vector<ExpandingTreeListItem*> getExpandingItemsList() const;

    /// The number of the row that has the highlight, on itself or on one of its branches, among the items that show
    /// one; -1 without a highlight, and where there is no answer, since the event loop has ended.
    int getSelectedIndex() const;

    /// The item with that number in getExpandingItemsList(): so another one, or null, where an item before it shows no
    /// row. Null without a highlight.
    ExpandingTreeListItem* getSelected() const;

    // Title

    void setTitle(const std::string& title);

    /// Shows the complete translation; null is the empty title.
    void setTitle(TranslationInfo* title);

    // State

    /// Lets OK do nothing on a row, or something again. The index counts unfolded branch rows too; one outside is
    /// ignored.
    void setReadonly(int index, bool readOnly);

    /// While set, Right does what OK does.
    void setRightArrowEqualsOK(bool equals);

    /// Reads the title and the items' texts again. Threads: GUI thread.
    void localeChanged(std::string locale);

    // Commands

    /// Adds a listener at once, on any thread, and for good; one that is added twice is told twice.
    void addCommandListener(CommandListener* listener);

    // Without effect

    void align();
    void unalign();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    friend class ExpandingTreeListItem;

    enum class Request : int;

    void create(bool flag);
    void destroy();
    auto halfOf() const;
    void deleteItems();
    void itemHasDied();

    std::unique_ptr<ExpandingTreeListPrivateIfc> mPrivate;
    std::unique_ptr<OwnedHandles<ExpandingTreeListItem>> mItems;
};

}
