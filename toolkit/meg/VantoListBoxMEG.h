#pragma once

#include "EventTypes.h"
#include "Export.h"
#include "Icons.h"
#include "Rect.h"
#include "UString.h"
#include "UWidget.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

class VantoListBoxItemMEG;

/// A list of rows, one of which is current. It shows one line or two of them, reports the user's moves and
/// choices to its listener, and gives the current row as screen text.
///
/// Keys act when they are pressed. Up and Down move and wrap (RowMoved), OK chooses (RowChosen), Left and
/// Right are reported (LeftPressed, RightPressed). Before it acts, the list asks its listener's keyEvent(): a
/// listener that answers true has used the key. A widget that holds the list relays events only and is not
/// asked; the listener of a list with a title is asked in its place. Operations raise nothing; only keys do.
///
/// The first row of an empty list becomes current. Rows that come or go elsewhere leave the current row as it
/// is; when the current row goes, the next one takes its place, or the last.
///
/// Threads: GUI thread only.
/// Ownership: the list owns its rows; a row taken out is the caller's.
/// Errors: null rows, foreign rows and indices outside the list are ignored.
class TOOLKIT_EXPORT VantoListBoxMEG : public UListWidget {
public:
    explicit VantoListBoxMEG(UWidget* parent = nullptr);
    ~VantoListBoxMEG() override;

    // Rows

    /// Adds a row at the end, at the same cost whatever the number of rows. A row of another list leaves that
    /// list; a row of this one stays where it is.
    void addItem(VantoListBoxItemMEG* row);

    /// Inserts a row in front of `index`: 0 and below is the front, past the end is the end.
    void insertItem(VantoListBoxItemMEG* row, int index);

    /// Takes a row out and gives it to the caller.
    void removeItem(VantoListBoxItemMEG* row);

    /// Deletes all rows, from the last to the first.
    void clear();

    int numItems() const { return count(); }
    int count() const override { return static_cast<int>(mRows.size()); }

    /// The row at an index, null outside the list.
    VantoListBoxItemMEG* item(int index) const;

    /// The index of a row, -1 for one that is not here.
    int indexOf(const VantoListBoxItemMEG* row) const;

    /// The first row with this handle, or null.
    VantoListBoxItemMEG* getItemByHandle(long handle) const;

    /// Adds the row by which the user deletes characters, unless it is there already. Its kind is DeleteRow,
    /// its handle 0, its text always that of setDeleteText().
    void addDeleteItem();

    // Current row

    VantoListBoxItemMEG* currentItem() const { return item(mCurrent); }
    int currentIndex() const override { return mCurrent; }

    /// -1 leaves the list without a current row.
    void setCurrentIndex(int index) override;
    void setCurrentItem(int index) { setCurrentIndex(index); }

    // State

    void enable();

    /// A disabled list gets no keys.
    void disable();
    bool isEnabled() const { return isWidgetEnabled(); }

    void showHighlightBar();
    void hideHighlightBar();
    bool isHighlightBarShown() const { return mIsHighlightBarShown; }

    /// Makes the row at an index read-only, or not.
    void setReadOnly(int index, bool readOnly);

    /// While set, Right chooses the current row as OK does.
    void setRightArrowEqualsOK(bool equals) { mRightEqualsOK = equals; }
    bool rightArrowEqualsOK() const { return mRightEqualsOK; }

    /// Whether the list marks that there are rows above and below those in view.
    bool scrollArrows() const { return mHasScrollArrows; }
    void setScrollArrows(bool scrollArrows);

    /// The event of a user's move, RowMoved unless a popup wants PopupRowMoved.
    void setMoveEvent(std::uint16_t type) { mMoveEvent = type; }

    // Labels of the built-in rows

    static void setBackText(const UString& text);
    static void setDeleteText(const UString& text);
    static UString deleteText();

    /// A label for the way back in this list alone; empty means the one of setBackText().
    virtual void translateBack(const UString& text);
    UString backText() const;

    // Screen text

    /// A text and two icon words, in UTF-8, for the next screenText(), which uses them up.
    void setSerialisedNotificationText(const std::string& text) { mNotificationText = text; }
    void setSerialisedNotificationIcon(const std::string& word) { mNotificationIcon = word; }
    void setSerialisedNotificationSecondIcon(const std::string& word) { mNotificationSecondIcon = word; }

    /// The current row as one whole subitem block; empty without a current row.
    virtual UString screenText();

    /// The same, if one of the rectangles holds the current row; else empty.
    virtual UString screenText(const std::vector<URect>& rects);

    // Geometry, in pixels and lines of the glass

    /// Where a row of this list stands. A row in view has its own line; rows out of view are parked off the
    /// glass, above and below, in their order.
    URect rowRect(const VantoListBoxItemMEG* row) const;

    /// The first line of the glass that the list uses, 0 or 1: by the list's rectangle, and 1 where the first
    /// line is taken.
    int firstLine() const;
    int visibleLines() const { return 2 - firstLine(); }

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override;
    void childLeft(UWidget* child) override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }

protected:
    /// Told after a row has joined the list.
    virtual void rowAdded(VantoListBoxItemMEG* row);

    /// Told once after each change of the current row to another one or to none, whoever made it: a key, an
    /// operation, a row that came or went. It comes last, behind rowAdded(), so it may change the list; only the
    /// event of the user's move comes later.
    virtual void currentChanged() { }

    /// Told after the user has chosen a row and before the listener hears of it.
    virtual void rowChosen(VantoListBoxItemMEG* row);

    /// Draws what stands in front of a row. Returns the columns that it took.
    virtual int paintRowHead(UPainter& painter, const VantoListBoxItemMEG& row, int line) const;

private:
    bool askListener(UKeyEvent* key);
    bool move(int step);
    bool choose();
    bool goRight();
    void makeCurrent(int index);
    void dropRow(int index);
    void tellCurrent();
    int rowsInView() const;
    int topIndex() const;
    bool hasMore(int step) const;
    Icons::Mark scrollMark() const;
    bool hasBar(const VantoListBoxItemMEG& row) const;
    void paintLine(UPainter& painter, const VantoListBoxItemMEG& row, int rowLine, int line) const;

    std::deque<VantoListBoxItemMEG*> mRows;
    std::int64_t mFrontPosition = 0;               // the count at which mRows begins; falls when rows come in front
    UWidget* mLeaving = nullptr;                   // a row that has left the order already
    const VantoListBoxItemMEG* mToldRow = nullptr; // current at the last currentChanged(); only its address counts
    int mCurrent = -1;
    int mTop = 0; // the wish for the first row in view; topIndex() fits it
    std::uint16_t mMoveEvent = EventType::RowMoved;
    bool mIsHighlightBarShown = true;
    bool mRightEqualsOK = false;
    bool mHasScrollArrows = true;
    UString mBackText;
    std::string mNotificationText;
    std::string mNotificationIcon;
    std::string mNotificationSecondIcon;
};
