#pragma once

#include "Export.h"
#include "UString.h"
#include "UWidget.h"

#include <cstdint>

class UPainter;

/// One row of a list: text, a second text at the right edge, an icon at the left, a context arrow.
///
/// A row stands in a list exactly while that list box is its parentWidget(). The list owns it then; a row
/// that dies leaves its list. Setters are silent: they ask for a new painting and raise no event.
/// Threads: GUI thread only.
class TOOLKIT_EXPORT VantoListBoxItemMEG : public UWidget {
public:
    /// The kinds of rows that getItemType() tells apart.
    enum ItemType : int {
        PlainRow = 0,
        TreeRow = 1,
        CallLogRow = 3,
        DeleteRow = 6,
        SliderRow = 8,
        FormRow = 9,
        PasswordRow = 10,
        LeftIconRow = 11, ///< Written like a plain row; its icon says more than its text.
        CallBackRow = 14,
        ExpandingRow = 15,
    };

    /// `handle` is a number for the owner of the row, often a pointer; the row never reads it.
    explicit VantoListBoxItemMEG(const UString& text = UString(), long handle = 0, bool readOnly = false);
    ~VantoListBoxItemMEG() override;

    // Content

    virtual void setText(const UString& text);
    virtual UString getText() const { return mText; }

    /// The text as the glass shows it, before it is cut to the room that is left.
    virtual UString getDisplayedText() const { return getText(); }

    /// The text at the right edge. It keeps half of the line at most; the row's text gives way to it.
    virtual void setRightText(const UString& text);
    UString getRightText() const { return mRightText; }

    /// An icon number, 0 for none. A number without a picture keeps its place and shows nothing.
    virtual void setIcon(std::uint16_t icon);
    std::uint16_t icon() const { return mIcon; }

    virtual int getItemType() const { return PlainRow; }

    long getHandle() const { return mHandle; }
    void setHandle(long handle) { mHandle = handle; }

    // State

    /// The context arrow: Right leads on from here.
    void setArrow(bool arrow);
    bool drawCMA() const { return mHasArrow; }

    /// A read-only row can be current, but OK raises nothing on it.
    void setReadonly(bool readOnly);
    bool isReadonly() const { return mIsReadonly; }

    /// True while OK may choose the row.
    virtual bool isChoosable() const { return !mIsReadonly; }

    /// True for a row that carries a check box.
    bool isCheckboxIcon() const { return mIsCheckbox; }

    /// Takes the highlight bar off the row until the row becomes current again.
    void clearBackground();
    bool hasBackground() const { return mHasBackground; }

    /// In a list: where the list has put the row, in pixels of the glass. Elsewhere: what setRect() stored.
    URect getRect() const override;

    // For the list that holds the row

    /// The lines that the row takes while it is current, 1 or 2.
    virtual int lineCount() const { return 1; }

    /// Draws a line of the row, 0 or 1, on a line of the glass, in the columns from `column` to `column` +
    /// `columns` - 1. The list draws bar, context arrow and marks.
    virtual void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const;

    /// Draws the row where the list has one line for it, however many it takes.
    virtual void paintInOneLine(UPainter& painter, int line, int column, int columns) const;

    /// The line of the row that carries the highlight bar.
    virtual int highlightedLine() const { return 0; }

    /// Moves the highlight inside the row, down for 1 and up for -1. False at the row's end.
    virtual bool moveInside(int step);

    /// True when moveInside() has more to show in that direction than what the glass shows now.
    virtual bool hasMoreInside(int step) const;

    /// Told when the user moves into the row from above (1) or from below (-1). Returns whether that moved the
    /// highlight inside the row.
    virtual bool enterFrom(int step);

    /// True for a row whose lines are rows of their own, so that one of them needs the highlight bar.
    virtual bool hasInnerRows() const { return false; }

protected:
    /// Draws a text and one at the right edge, which keeps at most `rightColumns`. Without the second one the
    /// first may split (see UPainter::rowText()).
    static void paintTexts(UPainter& painter, int line, int column, int columns, const UString& text,
        const UString& rightText, int rightColumns);

    void setCheckbox(bool isCheckbox) { mIsCheckbox = isCheckbox; }

private:
    friend class VantoListBoxMEG;

    UString mText;
    UString mRightText;
    long mHandle;
    mutable std::int64_t mPositionHint = 0; // where the list last saw the row, in its own count
    std::uint16_t mIcon = 0;
    bool mIsReadonly;
    bool mHasArrow = false;
    bool mIsCheckbox = false;
    bool mHasBackground = true;
};

static_assert(sizeof(long) >= sizeof(void*), "a row handle carries a pointer");
