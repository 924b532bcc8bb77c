#pragma once

#include "EventTypes.h"
#include "Export.h"
#include "TextCells.h"
#include "ULoop.h"
#include "UString.h"
#include "UWidget.h"

#include <cstddef>

/// A line of text that the user edits with the dial keys. It shows as many characters as its rectangle has room
/// for, and scrolls so that the cursor stays in view; where it hides text, an ellipsis stands.
///
/// In a mode of letters a key stands for several characters, and pressing it again within a second (TapTime)
/// takes the next of them. The letter is in the text at once, painted inverse until it stands. The hash is left to
/// the owner, for changing the mode. In a numeric mode, and with number input, a key types what is printed on it.
///
/// Keys raise EditTextChanged, each that changes the text; a letter that stands by itself, when its time is over,
/// raises ContentChanged. Operations raise nothing. Left and Clear delete the character before the cursor; on an
/// empty line they are not used.
///
/// Characters are those of TextCells: each takes one cell, and the cursor steps over it as over one.
/// Threads: GUI thread only. Its listener may delete it inside any event.
class TOOLKIT_EXPORT VantoTextEditMEG : public UWidget {
public:
    /// What the keys type.
    enum TMode : int {
        LowerCase = 0,
        Capitalised = 1, ///< A capital at the start and behind a blank, small letters elsewhere.
        UpperCase = 2,
        Numeric = 3,
        NumericOnly = 4, ///< Types as Numeric does; the user's steps from mode to mode don't come here.
    };

    /// What the glass shows of the text.
    enum EchoMode : int {
        EchoText = 0,
        EchoAsterisks = 1,
    };

    /// The time after which a letter stands, in milliseconds.
    static constexpr unsigned long long TapTime = 1000;

    explicit VantoTextEditMEG(UWidget* parent = nullptr);
    ~VantoTextEditMEG() override;

    // Text

    /// Sets the text whole, whatever the maximum length, and puts the cursor behind it.
    void setText(const UString& text);
    UString getText() const { return mText; }
    bool isEmpty() const { return mText.isEmpty(); }

    /// The most characters that the user can make of the text; 0 or less for no limit. A longer text stays.
    void setMaxLength(int characters) { mMaxLength = characters; }
    int maxLength() const { return mMaxLength; }

    /// Puts a text in at the cursor: what there is room for, with control characters as blanks. Returns whether
    /// the text has changed.
    bool insert(const UString& text);

    /// The same for a text from a clipboard: with number input only what can be dialled goes in, and `alsoDialled`.
    bool paste(const UString& text, const UString& alsoDialled = UString());

    /// Deletes the character before the cursor. Returns whether there was one.
    bool deleteCharacter();

    // Cursor

    /// The number of characters before the cursor.
    int cursorPosition() const { return TextCells::count(mText.mid(0, mCursor)); }

    /// Moves the cursor by one character, left for -1 and right for 1. Returns whether it moved.
    bool moveCursor(int step);

    // Input

    /// Another number than those of TMode is ignored.
    void setMode(int mode);
    TMode mode() const { return mMode; }

    /// Steps from lower case to capitalised, upper case, numeric, and on to lower case.
    void nextMode();

    /// The name of what the keys type now.
    UString modeText() const;

    /// With number input the keys type digits, star and hash, whatever the mode.
    void setNumberInput(bool numberInput);
    bool isNumberInput() const { return mIsNumberInput; }

    /// With restricted input the keys have the characters of the restricted tables.
    void setRestricted(bool restricted);
    bool isRestricted() const { return mIsRestricted; }

    /// 0 shows the text itself, any other number shows asterisks.
    void setEchoMode(int mode);
    EchoMode echoMode() const { return mEcho; }

    /// Lets the letter stand whose key could still be pressed again.
    void letLetterStand();

    // The characters of the pressed key

    /// True while another press of the same key would take another character.
    bool getKeyPadShown() const { return !mTapSet.isEmpty(); }

    /// The characters of that key in their order; empty while no key waits.
    UString getActualKeySet() const { return mTapSet; }

    /// Draws them on a line of the glass, the one that the text has now in brackets.
    void paintKeypad(UPainter& painter, int line) const;

    // Translated texts, written by the application; while one is empty or still its key, the toolkit's own is used

    // The characters of each key in the order of tapping. One "?" at the end does not belong to them.
    // clang-format off
    static UString msKeypad2lower, msKeypad2lowerRestricted, msKeypad2upper, msKeypad2upperRestricted;
    static UString msKeypad3lower, msKeypad3lowerRestricted, msKeypad3upper, msKeypad3upperRestricted;
    static UString msKeypad4lower, msKeypad4lowerRestricted, msKeypad4upper, msKeypad4upperRestricted;
    static UString msKeypad5lower, msKeypad5lowerRestricted, msKeypad5upper, msKeypad5upperRestricted;
    static UString msKeypad6lower, msKeypad6lowerRestricted, msKeypad6upper, msKeypad6upperRestricted;
    static UString msKeypad7lower, msKeypad7lowerRestricted, msKeypad7upper, msKeypad7upperRestricted;
    static UString msKeypad8lower, msKeypad8lowerRestricted, msKeypad8upper, msKeypad8upperRestricted;
    static UString msKeypad9lower, msKeypad9lowerRestricted, msKeypad9upper, msKeypad9upperRestricted;
    // clang-format on

    static UString msTextInputModeLowerCase, msTextInputModeUpperCase;
    static UString msTextInputModeCapitalised, msTextInputModeNumeric;

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    void timerEvent(UTimerEvent* event) override;
    UWidget* focusTarget() override;
    void paint(UPainter& painter) override;

private:
    enum class KeyUse {
        NotUsed,
        Used,
        TextChanged,
    };

    KeyUse use(int key);
    KeyUse type(int key);
    KeyUse erase();
    bool tapAgain(int key);
    bool isTyping() const { return mIsNumberInput || mMode >= Numeric; }
    std::size_t letterStart() const;
    bool startsWord() const;
    bool isFull() const;
    void insertAtCursor(const UString& text);
    std::size_t backFrom(std::size_t index, int characters) const;
    std::size_t firstShown(int columns) const;
    UString shownCharacter(std::size_t index) const;

    UString mText;
    std::size_t mCursor = 0; // both in units
    std::size_t mFirstShown = 0;
    UString mTapSet;           // empty while no key waits
    std::size_t mTapIndex = 0; // of the character of mTapSet that the text has
    int mTapKey = 0;
    UTimer mTapTimer;
    int mMaxLength = 0;
    TMode mMode = Capitalised;
    EchoMode mEcho = EchoText;
    bool mIsNumberInput = false;
    bool mIsRestricted = false;
};
