#include "VantoTextEditMEG.h"

#include "KeypadTables.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"

#include <algorithm>
#include <string>

namespace {

constexpr int CellWidth = 6;
constexpr int SecondLineTop = 15;
constexpr int ColumnsOfKey = 3; // a character between its brackets
constexpr int LeastColumnsForEllipsis = 5;

UString plain(const char* text)
{
    return UString(std::string(text));
}

constexpr bool isHighSurrogate(std::uint16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(std::uint16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr bool isControl(std::uint16_t unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// A text as a line can hold it: without control characters and halves of pairs.
UString cleaned(const UString& text)
{
    constexpr std::uint16_t replacement = 0xFFFD;
    UString clean;
    for (std::size_t index = 0; index < text.length(); ++index) {
        const std::uint16_t unit = text[index];
        const bool isPair = isHighSurrogate(unit) && index + 1 < text.length() && isLowSurrogate(text[index + 1]);
        if (isPair) {
            clean.append(unit);
            clean.append(text[++index]);
        } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
            clean.append(replacement);
        } else {
            clean.append(isControl(unit) ? ' ' : unit);
        }
    }
    return clean;
}

UString onlyDialled(const UString& text, const UString& alsoDialled)
{
    UString number;
    for (std::size_t index = 0; index < text.length(); ++index) {
        const bool isStep = alsoDialled.find(text.mid(index, 1)) >= 0;
        if (isStep || UGlobal::isDialKey(text[index]) || text[index] == '+')
            number.append(text[index]);
    }
    return number;
}

}

VantoTextEditMEG::VantoTextEditMEG(UWidget* parent)
    : UWidget(parent)
    , mTapTimer(this, TapTime)
{
    mTapTimer.setSingleShot(true);
    setCoordinates(0, 0, 161, 14);
}

VantoTextEditMEG::~VantoTextEditMEG() = default;

// Text

void VantoTextEditMEG::setText(const UString& text)
{
    letLetterStand();
    mText = text;
    mCursor = mText.length();
    mFirstShown = 0;
    refresh();
}

bool VantoTextEditMEG::isFull() const
{
    return mMaxLength > 0 && TextCells::count(mText, mMaxLength) >= mMaxLength;
}

void VantoTextEditMEG::insertAtCursor(const UString& text)
{
    mText.replace(mCursor, 0, text);
    mCursor += text.length();
    refresh();
}

bool VantoTextEditMEG::insert(const UString& text)
{
    letLetterStand();
    UString fitting = cleaned(text);
    if (mMaxLength > 0)
        fitting = fitting.mid(0, TextCells::forward(fitting, 0, mMaxLength - TextCells::count(mText, mMaxLength)));
    if (fitting.isEmpty())
        return false;
    insertAtCursor(fitting);
    return true;
}

bool VantoTextEditMEG::paste(const UString& text, const UString& alsoDialled)
{
    return insert(mIsNumberInput ? onlyDialled(text, alsoDialled) : text);
}

bool VantoTextEditMEG::deleteCharacter()
{
    letLetterStand();
    if (mCursor == 0)
        return false;
    const std::size_t start = TextCells::backward(mText, mCursor);
    mText.replace(start, mCursor - start, UString());
    mCursor = start;
    refresh();
    return true;
}

// Cursor

bool VantoTextEditMEG::moveCursor(int step)
{
    letLetterStand();
    const std::size_t from = mCursor;
    mCursor = step > 0 ? TextCells::forward(mText, from) : TextCells::backward(mText, from);
    refresh();
    return mCursor != from;
}

// Input

void VantoTextEditMEG::setMode(int mode)
{
    if (mode < LowerCase || mode > NumericOnly)
        return;
    letLetterStand();
    mMode = static_cast<TMode>(mode);
    refresh();
}

void VantoTextEditMEG::nextMode()
{
    setMode(mMode >= Numeric ? LowerCase : mMode + 1);
}

UString VantoTextEditMEG::modeText() const
{
    using KeypadTables::translated;
    switch (mIsNumberInput ? Numeric : mMode) {
    case LowerCase: return translated(msTextInputModeLowerCase, "Text.input.mode.lowercase", "abc");
    case Capitalised: return translated(msTextInputModeCapitalised, "Text.input.mode.capitalised", "Abc");
    case UpperCase: return translated(msTextInputModeUpperCase, "Text.input.mode.uppercase", "ABC");
    case Numeric:
    case NumericOnly: return translated(msTextInputModeNumeric, "Text.input.mode.numeric", "123");
    }
    return UString();
}

void VantoTextEditMEG::setNumberInput(bool numberInput)
{
    letLetterStand();
    mIsNumberInput = numberInput;
    refresh();
}

void VantoTextEditMEG::setRestricted(bool restricted)
{
    letLetterStand();
    mIsRestricted = restricted;
}

void VantoTextEditMEG::setEchoMode(int mode)
{
    mEcho = mode == EchoText ? EchoText : EchoAsterisks;
    refresh();
}

void VantoTextEditMEG::letLetterStand()
{
    mTapTimer.stop();
    mTapSet.clear();
    mTapKey = 0;
    refresh();
}

// Keys and time

UWidget* VantoTextEditMEG::focusTarget()
{
    return isVisible() && isWidgetEnabled() ? this : nullptr;
}

bool VantoTextEditMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() != UGlobal::KeyPressed)
        return false;
    const KeyUse use = this->use(key->key());
    if (use == KeyUse::TextChanged)
        emit(EventType::EditTextChanged, this);
    return use != KeyUse::NotUsed;
}

VantoTextEditMEG::KeyUse VantoTextEditMEG::use(int key)
{
    if (key == UGlobal::KeyLeft || key == UGlobal::KeyClear)
        return erase();
    if (!UGlobal::isDialKey(key) || (key == UGlobal::KeyHash && !mIsNumberInput))
        return KeyUse::NotUsed;
    return type(key);
}

VantoTextEditMEG::KeyUse VantoTextEditMEG::erase()
{
    if (isEmpty())
        return KeyUse::NotUsed;
    return deleteCharacter() ? KeyUse::TextChanged : KeyUse::Used;
}

VantoTextEditMEG::KeyUse VantoTextEditMEG::type(int key)
{
    if (tapAgain(key))
        return KeyUse::TextChanged;
    letLetterStand();
    if (isFull())
        return KeyUse::Used;
    if (isTyping()) {
        insertAtCursor(UString(std::string(1, static_cast<char>(key))));
        return KeyUse::TextChanged;
    }
    const bool isCapital = mMode == UpperCase || (mMode == Capitalised && startsWord());
    const UString set = KeypadTables::characters(key, isCapital ? KeypadTables::Case::Upper : KeypadTables::Case::Lower,
        mIsRestricted ? KeypadTables::Range::Restricted : KeypadTables::Range::Full);
    const std::size_t first = TextCells::forward(set, 0);
    insertAtCursor(set.mid(0, first));
    if (first < set.length()) {
        mTapKey = key;
        mTapSet = set;
        mTapIndex = 0;
        mTapTimer.start();
    }
    return KeyUse::TextChanged;
}

bool VantoTextEditMEG::tapAgain(int key)
{
    if (mTapSet.isEmpty() || key != mTapKey)
        return false;
    const std::size_t start = letterStart();
    const std::size_t next = TextCells::forward(mTapSet, mTapIndex);
    mTapIndex = next < mTapSet.length() ? next : 0;
    const UString letter = mTapSet.mid(mTapIndex, TextCells::forward(mTapSet, mTapIndex) - mTapIndex);
    mText.replace(start, mCursor - start, letter);
    mCursor = start + letter.length();
    mTapTimer.start();
    refresh();
    return true;
}

std::size_t VantoTextEditMEG::letterStart() const
{
    return mTapSet.isEmpty() ? mCursor : mCursor - (TextCells::forward(mTapSet, mTapIndex) - mTapIndex);
}

bool VantoTextEditMEG::startsWord() const
{
    return mCursor == 0 || mText[mCursor - 1] == ' ';
}

void VantoTextEditMEG::timerEvent(UTimerEvent* event)
{
    if (event->id() != mTapTimer.id())
        return;
    letLetterStand();
    emit(EventType::ContentChanged, this);
}

// Painting

std::size_t VantoTextEditMEG::backFrom(std::size_t index, int characters) const
{
    for (; characters > 0 && index > 0; --characters)
        index = TextCells::backward(mText, index);
    return index;
}

std::size_t VantoTextEditMEG::firstShown(int columns) const
{
    // Beside an ellipsis the cursor keeps one cell, so that nobody edits what can't be seen.
    const int margin = columns >= LeastColumnsForEllipsis ? 1 : 0;
    const int marginRight = mCursor < mText.length() ? margin : 0;
    std::size_t first = std::max(mFirstShown, backFrom(mCursor, columns - 1 - marginRight));
    first = std::min(first, backFrom(letterStart(), margin));
    // No cell stays free on the right while text is hidden on the left.
    return std::min(first, backFrom(mText.length(), columns - 1));
}

UString VantoTextEditMEG::shownCharacter(std::size_t index) const
{
    if (mEcho == EchoAsterisks)
        return plain("*");
    return mText.mid(index, TextCells::forward(mText, index) - index);
}

void VantoTextEditMEG::paint(UPainter& painter)
{
    const URect place = getRect();
    const int line = place.top() >= SecondLineTop ? 1 : 0;
    const int left = std::max(place.left(), 0) / CellWidth;
    const int columns = std::min((place.right() + 1) / CellWidth, UPainter::Columns) - left;
    if (columns <= 0)
        return;
    mFirstShown = firstShown(columns);
    // What the next key changes: a letter that could still become another one, else what stands at the cursor.
    const std::size_t focus = letterStart();
    std::size_t index = mFirstShown;
    for (int column = left; column < left + columns; ++column) {
        const std::size_t next = TextCells::forward(mText, index);
        if (index == next) {
            painter.text(line, column, plain(mCursor == index ? "_" : ""));
            break;
        }
        const bool isCutLeft = column == left && index > 0;
        const bool isCutRight = column == left + columns - 1 && next < mText.length();
        const bool isEllipsis = columns >= LeastColumnsForEllipsis && (isCutLeft || isCutRight);
        painter.text(line, column, isEllipsis ? plain("…") : shownCharacter(index), 1);
        if (focus >= index && focus < next)
            painter.invert(line, column, column);
        index = next;
    }
}

void VantoTextEditMEG::paintKeypad(UPainter& painter, int line) const
{
    constexpr int keysOnLine = UPainter::Columns / ColumnsOfKey;
    std::size_t index = 0;
    // What does not fit comes page by page.
    std::size_t page = 0;
    for (int key = 0; index < mTapIndex; ++key) {
        index = TextCells::forward(mTapSet, index);
        if (key % keysOnLine == keysOnLine - 1)
            page = index;
    }
    index = page;
    painter.clearLine(line);
    for (int key = 0; key < keysOnLine && index < mTapSet.length(); ++key) {
        const std::size_t next = TextCells::forward(mTapSet, index);
        const int column = key * ColumnsOfKey;
        if (index == mTapIndex) {
            painter.text(line, column, plain("["));
            painter.text(line, column + 2, plain("]"));
        }
        painter.text(line, column + 1, mTapSet.mid(index, next - index), 1);
        index = next;
    }
}
