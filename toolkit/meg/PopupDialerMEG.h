#pragma once

#include "PopupBaseMEG.h"
#include "UString.h"

class VantoListBoxMEG;
class VantoTextEditMEG;

/// The popup in which the user types a number or a text: an edit line or a fixed text above, a row of the command
/// list below.
///
/// The edit line stands behind the prefix of line 1. Typing brings the popup up if it is down (PopupUp), switches
/// the fixed text to the edit line (EditLineShown), and tells of the first character of a number since the popup
/// came up (SearchTextChanged) and of every change (EditTextChanged), in this order. Left deletes; on an empty line
/// it raises EmptyLineLeft, and a popup outside the tree of the screens then goes down by itself. Up and Down move
/// in the list (RowMoved), OK chooses (RowChosen). A number that has been begun can also be deleted by a row, which
/// is always the last one and gives the highlight back to the first as soon as the user types on. RowMoved is raised
/// too when the letters of a key give the second line back by themselves.
///
/// A key that the popup has no use for goes to its listener's keyEvent(), whose answer counts.
/// Threads, Ownership: as PopupBaseMEG; edit line and list box are the popup's children.
class TOOLKIT_EXPORT PopupDialerMEG : public PopupBaseMEG {
public:
    /// `agent` becomes the listener. The second argument is the maker's and changes nothing here.
    PopupDialerMEG(UAgent* agent, bool reserved);
    ~PopupDialerMEG() override;

    /// Null once somebody has deleted it.
    VantoListBoxMEG* listBox;
    VantoTextEditMEG* editArea;
    VantoListBoxMEG* listbox() const { return listBox; }
    VantoTextEditMEG* getEditField() const { return editArea; }

    // Lines

    /// The fixed text. Once the edit line has been given a mode of text input (see setTextEditMode()), it is the
    /// label of the edit line too, while there is no prefix.
    void setText(const UString& text);
    UString getText() const { return mText; }

    void setLine1PrefixText(const UString& text);

    /// Shown on the second line where no row is, and in front of the rows while the fixed text is up, until the
    /// user moves.
    void setLine2Text(const UString& text);

    // Edit line

    /// Sets the text with the cursor behind it.
    void setEditText(const UString& text);
    UString getEditText() const;

    /// Whether the first line is the edit line, as at first, or the fixed text.
    bool isEditVisible() const { return mIsEditShown; }
    void setEditMode();
    void showLabel();

    // Keys

    /// While set, dial keys are not for this popup: they go to the listener.
    void setKeyHandler(bool handsDialKeysOn) { mHandsDialKeysOn = handsDialKeysOn; }

    /// Announces that the next key is for this popup, whatever setKeyHandler() says: the listener does not get it.
    void isMyKey(bool isMine) { mKeepsNextKey = isMine; }

    // Input

    /// Whether the edit line takes a number, as at first, or a text.
    void setNumberInput(bool numberInput);

    /// Whether the name of the input mode stands on the glass while a text is edited: on the first line, unless the
    /// row below ends in it already.
    void setModePromptVisible(bool visible);

    /// A mode of VantoTextEditMEG::TMode; other numbers are ignored.
    void setTextEditMode(int mode);

    /// 1 shows asterisks, 0 the text itself.
    void setEditEchoMode(int mode);

    UString getInputModeInText() const;
    void genNextInputMode();

    // Overrides

    void setListScrollable(bool scrollable) override;
    void setDownArrowDisplayable(bool displayable) override;
    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    void childLeft(UWidget* child) override;
    UWidget* focusTarget() override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }

protected:
    void upChanged() override;

private:
    bool use(UKeyEvent& key);
    bool move(UKeyEvent& key);
    void goBack();
    void typed();
    void eraseByRow();
    void showEditLine(bool shown);
    void updateDeleteRow();
    void updateArrows();
    bool hasRows() const;
    bool isLine2Shown() const;
    bool isKeypadShown() const;
    UString editHead() const;
    UString modePrompt() const;
    void paintEditLine(UPainter& painter);

    UString mText;
    UString mPrefix;
    UString mLine2;
    bool mIsEditShown = true;
    bool mIsTextLabel = false; // the fixed text names what is edited
    bool mIsModePromptVisible = false;
    bool mHandsDialKeysOn = false;
    bool mKeepsNextKey = false;
    bool mIsTyping = false; // the key in hand puts a character in
    bool mHasBegun = false; // a number, since the popup came up
    bool mHasMoved = false; // line 2 has given way to the rows
};
