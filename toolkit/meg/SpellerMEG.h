#pragma once

#include "Export.h"
#include "UString.h"
#include "UWidget.h"

class VantoListBoxItemMEG;
class VantoListBoxMEG;
class VantoTextEditMEG;

/// A screen on which the user writes a text: the line above with the name of what the keys type, below it a row of
/// a menu, or the letters of a key while that key could be pressed again.
///
/// Dial keys, Left and Clear work on the text, the hash steps through the modes, Up and Down through the menu, OK
/// chooses its row, Right moves the cursor. Writing brings the menu back to its first row, so that OK after the last
/// letter confirms. Every key is used while the speller has the focus.
///
/// Keys raise DisplayModeChanged for everything that changes what is seen; SpellerConfirmed for OK, SpellerCopied
/// for Copy, and LeftPressed for Cancel and for Left on an empty line: the owner then takes the speller away.
/// Operations raise nothing.
/// Threads: GUI thread only. Its listener may delete it inside any event.
class TOOLKIT_EXPORT SpellerMEG : public UWidget {
public:
    /// The rows of the menu in their order; a row carries its number as handle.
    enum Row : long {
        Ok = 1,
        Mode,
        CursorLeft,
        CursorRight,
        Copy,
        Paste,
        Delete,
        NormalCall,
        Pause,
        Consultation,
        ClearCall,
        Cancel,
    };

    /// What the rows for calls put into the text: steps of a number that the telephone dials by itself.
    enum DialStep : char {
        PauseStep = 'P',
        NormalCallStep = 'N',
        ConsultationStep = 'K',
        ClearCallStep = 'C',
    };

    explicit SpellerMEG(UWidget* parent = nullptr);
    ~SpellerMEG() override;

    // Text

    /// Sets the text, puts the cursor behind it, and goes to the first row.
    void setText(const UString& text);
    UString getText() const;

    /// The line, for its mode, length, and echo. With asterisks the text can't be copied.
    VantoTextEditMEG* getEditBox() const { return mEdit; }

    // Menu

    VantoListBoxMEG* listBox() const { return mList; }

    /// Whether the menu has the four rows for calls; false at first.
    void setCallRows(bool shown);

    /// The text that Paste puts in; Copy sets it. While it is empty there is no row for it.
    void setClipboard(const UString& text);
    UString getClipboard() const { return mClipboard; }

    // Texts of the rows, written by the application; while one is empty or still its key, the toolkit's own is used

    static UString msOK, msMode, msLeft, msRight, msCopy, msPaste;
    static UString msNormalCall, msPause, msConsult, msClearCall, msCancel, msDelete;

    // Overrides

    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    void setVisible(bool visible) override;
    UWidget* focusTarget() override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }

private:
    bool hasRow(Row row) const;
    void updateRows();
    void useKey(UKeyEvent& key);
    void choose(long row);
    void insert(DialStep step);
    void tellChange();
    bool isTextSecret() const;

    VantoTextEditMEG* mEdit;
    VantoListBoxMEG* mList;
    UString mClipboard;
    bool mHasCallRows = false;
};
