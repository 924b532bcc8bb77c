#pragma once

#include "ContextMenuMEG.h"
#include "FormItemMEG.h"
#include "UString.h"
#include "UWidget.h"

#include <cstdint>

class SpellerMEG;
class VantoListBoxMEG;

/// A form: rows of labels and values that the user edits, and rows for commands below.
///
/// Label and value of the highlighted row take both lines; a row without a value stands below the caption. Up and
/// Down move (HighlightMoved), Left leads back (LeftPressed). OK and Right open what the row needs: the speller or a
/// slider's edit mode (DisplayModeChanged), or the list of choices (SelectionListMoved). OK on a command row, or on a
/// row that informs, raises FormRowChosen instead. A read-only row opens nothing.
///
/// A text that is confirmed raises ValueCommitted, SpellerConfirmed and DisplayModeChanged, in this order; a choice
/// ValueCommitted, RowMoved and DisplayModeChanged; a step of a slider ValueCommitted. These have the row as payload.
/// What is given up raises DisplayModeChanged. Operations raise nothing; one that takes the highlight from a row that
/// is being edited, or makes it read-only, closes the editor.
///
/// Threads: GUI thread only. Its listener may delete it inside any event.
/// Ownership: the form owns its rows; a row that is taken out is the caller's.
/// Errors: null, foreign rows and positions outside the form are ignored.
class TOOLKIT_EXPORT FormWidgetMEG : public UWidget {
public:
    /// How the lines are shared between label and value; this glass has one way.
    enum FormProportionType : int {};

    /// What the form shows.
    enum DisplayMode : int {
        Rows = 0,
        SelectionList = 1,
        Speller = 2,
        SliderEditing = 3, ///< The rows, with a slider that the keys move.
    };

    /// Proportion and flag are stored for whoever asks.
    FormWidgetMEG(FormProportionType proportion, bool flag);
    ~FormWidgetMEG() override;

    FormProportionType proportion() const { return mProportion; }
    bool flag() const { return mFlag; }

    // Rows. They are counted by position, since a row that is put in again stands at a second one too

    virtual void appendRow(FormItemMEG* row);

    /// A row that is not here as `before` means the end.
    virtual void insertRowBefore(FormItemMEG* row, FormItemMEG* before);

    /// A position outside the form means the end.
    virtual void insertRowAt(FormItemMEG* row, int position);

    /// Takes one position out; the row is the caller's when it was its last.
    virtual void removeRowAt(int position);

    /// Takes a row out of all its positions.
    void removeItem(FormItemMEG* row);

    /// Puts another row in all positions of a row, which is the caller's then. The highlight stays where it is.
    void replaceRow(FormItemMEG* row, FormItemMEG* replacement);
    virtual int rowCount() const;

    /// The highlighted row, or null.
    virtual FormItemMEG* currentRow() const;

    /// Only the address of `row` counts, so it may have died.
    virtual void setCurrentRow(FormItemIfc* row);
    virtual VantoListBoxMEG* listBox() const { return mList; }

    // Texts

    virtual UString getCaption() const { return mCaption; }
    virtual void setCaption(const UString& caption);

    /// What Copy in the speller has stored, and Paste puts in.
    virtual UString getClipboard() const { return mClipboard; }
    virtual void setClipboard(const UString& text);

    // Editing

    virtual int displayMode() const;

    /// The list of choices of the highlighted row, open or not; null without one.
    virtual ContextMenuMEG* selectionList() const;

    /// The open speller, or null.
    virtual SpellerMEG* speller() const { return mSpeller; }

    /// Gives up what the user is editing, and raises nothing.
    void closeEditor();

    // Overrides

    void setVisible(bool visible) override;
    void parentChanged() override;
    void childLeft(UWidget* child) override;
    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override { return isVisible() ? this : nullptr; }
    void paint(UPainter& painter) override;

private:
    class RowList;
    class RowAgain;

    static FormItemMEG* itemOf(VantoListBoxItemMEG* row);
    void currentChanged();
    void placeList();
    bool isListOpen() const;

    bool useKey(UKeyEvent& key);
    void confirm(FormItemMEG& row);
    void open(FormItemMEG& row);
    void openSpeller(FormItemMEG& row);
    void openList(FormItemMEG& row);
    void startEditing(FormItemMEG& row);
    void stepSlider(UKeyEvent& key);
    void spellerTold(const UEvent& event);
    void listTold(const UEvent& event);
    void commit(std::uint16_t second);
    void giveUp();

    FormProportionType mProportion;
    bool mFlag;
    UString mCaption;
    UString mClipboard;
    RowList* mListOwner;            // a child
    VantoListBoxMEG* mList;         // the same, as others see it
    SpellerMEG* mSpeller = nullptr; // a child while it is open
    UPointer<FormItemMEG> mEdited;  // the row whose slider moves, or whose speller or list is open
    UPointer<ContextMenuMEG> mOpenList;
};
