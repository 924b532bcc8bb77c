#include "SpellerMEG.h"

#include "KeypadTables.h"
#include "TextCells.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoTextEditMEG.h"

#include <string>

namespace {

constexpr int CellWidth = 6;
constexpr int MostModeColumns = 8;

struct RowText {
    const UString* translated;
    const char* key;
    const char* own;
};

/// In the order of SpellerMEG::Row.
const RowText rowTexts[] = {
    {&SpellerMEG::msOK, "Speller.menu.OK", "OK?"},
    {&SpellerMEG::msMode, "Speller.menu.Mode", "Mode?"},
    {&SpellerMEG::msLeft, "Speller.menu.Move.cursor.left", "Move cursor left?"},
    {&SpellerMEG::msRight, "Speller.menu.Move.cursor.right", "Move cursor right?"},
    {&SpellerMEG::msCopy, "Speller.menu.Copy", "Copy?"},
    {&SpellerMEG::msPaste, "Speller.menu.Paste", "Paste?"},
    {&SpellerMEG::msDelete, "Speller.menu.Delete", "Delete?"},
    {&SpellerMEG::msNormalCall, "Speller.menu.Make.normal.call", "Make normal call?"},
    {&SpellerMEG::msPause, "Speller.menu.Pause", "Pause?"},
    {&SpellerMEG::msConsult, "Speller.menu.Make.consultation", "Make consultation?"},
    {&SpellerMEG::msClearCall, "Speller.menu.Clear.call", "Clear call?"},
    {&SpellerMEG::msCancel, "Speller.menu.Cancel", "Cancel?"},
};

UString dialSteps()
{
    return UString(std::string(
        {SpellerMEG::PauseStep, SpellerMEG::NormalCallStep, SpellerMEG::ConsultationStep, SpellerMEG::ClearCallStep}));
}

/// A row of the menu. It asks for its text each time, so that it follows the locale.
class MenuRow : public VantoListBoxItemMEG {
public:
    explicit MenuRow(long row)
        : VantoListBoxItemMEG(UString(), row)
    {
    }

    UString getText() const override
    {
        const RowText& text = rowTexts[getHandle() - SpellerMEG::Ok];
        return KeypadTables::translated(*text.translated, text.key, text.own);
    }
};

}

UString SpellerMEG::msOK;
UString SpellerMEG::msMode;
UString SpellerMEG::msLeft;
UString SpellerMEG::msRight;
UString SpellerMEG::msCopy;
UString SpellerMEG::msPaste;
UString SpellerMEG::msNormalCall;
UString SpellerMEG::msPause;
UString SpellerMEG::msConsult;
UString SpellerMEG::msClearCall;
UString SpellerMEG::msCancel;
UString SpellerMEG::msDelete;

SpellerMEG::SpellerMEG(UWidget* parent)
    : UWidget(parent)
    , mEdit(new VantoTextEditMEG(this))
    , mList(new VantoListBoxMEG(this))
{
    setCoordinates(0, 0, 161, 30);
    mList->setCoordinates(0, 15, 161, 30);
    mEdit->setListener(this);
    mList->setListener(this);
    updateRows();
}

SpellerMEG::~SpellerMEG() = default;

// Text

void SpellerMEG::setText(const UString& text)
{
    mEdit->setText(text);
    updateRows();
    mList->setCurrentIndex(0);
}

UString SpellerMEG::getText() const
{
    return mEdit->getText();
}

bool SpellerMEG::isTextSecret() const
{
    return mEdit->echoMode() == VantoTextEditMEG::EchoAsterisks;
}

// Menu

void SpellerMEG::setCallRows(bool shown)
{
    mHasCallRows = shown;
    updateRows();
}

void SpellerMEG::setClipboard(const UString& text)
{
    mClipboard = text;
    updateRows();
}

bool SpellerMEG::hasRow(Row row) const
{
    switch (row) {
    case Mode: return !mEdit->isNumberInput();
    case Copy: return !isTextSecret();
    case Paste: return !mClipboard.isEmpty();
    case NormalCall:
    case Pause:
    case Consultation:
    case ClearCall: return mHasCallRows;
    default: return true;
    }
}

void SpellerMEG::updateRows()
{
    int index = 0;
    for (long row = Ok; row <= Cancel; ++row) {
        VantoListBoxItemMEG* present = mList->getItemByHandle(row);
        const bool isWanted = hasRow(static_cast<Row>(row));
        if (isWanted && !present)
            mList->insertItem(new MenuRow(row), index);
        else if (!isWanted)
            delete present;
        if (isWanted)
            ++index;
    }
}

// Keys

UWidget* SpellerMEG::focusTarget()
{
    return isVisible() ? this : nullptr;
}

void SpellerMEG::setVisible(bool visible)
{
    updateRows();
    UWidget::setVisible(visible);
}

bool SpellerMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() == UGlobal::KeyPressed) {
        updateRows();
        useKey(*key);
    }
    return true;
}

void SpellerMEG::useKey(UKeyEvent& key)
{
    switch (key.key()) {
    case UGlobal::KeyUp:
    case UGlobal::KeyDown:
    case UGlobal::KeyOk:
        mEdit->letLetterStand();
        mList->keyEvent(&key);
        return;
    case UGlobal::KeyRight: choose(CursorRight); return;
    default: break;
    }
    if (mEdit->keyEvent(&key))
        return;
    if (key.key() == UGlobal::KeyLeft)
        emit(EventType::LeftPressed, this);
    else if (key.key() == UGlobal::KeyHash)
        choose(Mode);
}

void SpellerMEG::event(UEvent* event)
{
    const auto* row = dynamic_cast<VantoListBoxItemMEG*>(event->source());
    if (event->type == EventType::RowChosen && row) {
        choose(row->getHandle());
        return;
    }
    if (event->type == EventType::EditTextChanged)
        mList->setCurrentIndex(0);
    tellChange();
}

void SpellerMEG::tellChange()
{
    emit(EventType::DisplayModeChanged, this);
}

void SpellerMEG::choose(long row)
{
    switch (row) {
    case Ok: emit(EventType::SpellerConfirmed, this); return;
    case Mode: mEdit->nextMode(); break;
    case CursorLeft: mEdit->moveCursor(-1); break;
    case CursorRight: mEdit->moveCursor(1); break;
    case Copy:
        setClipboard(getText());
        emit(EventType::SpellerCopied, this);
        return;
    case Paste: mEdit->paste(mClipboard, mHasCallRows ? dialSteps() : UString()); break;
    case Delete: mEdit->deleteCharacter(); break;
    case NormalCall: insert(NormalCallStep); break;
    case Pause: insert(PauseStep); break;
    case Consultation: insert(ConsultationStep); break;
    case ClearCall: insert(ClearCallStep); break;
    case Cancel: emit(EventType::LeftPressed, this); return;
    default: return;
    }
    tellChange();
}

void SpellerMEG::insert(DialStep step)
{
    mEdit->insert(UString(std::string(1, step)));
}

// Painting

void SpellerMEG::paint(UPainter& painter)
{
    painter.clearLines(0, 1);
    const UString mode = mEdit->modeText();
    const int modeColumns = TextCells::count(mode, MostModeColumns);
    mEdit->setCoordinates(0, 0, (UPainter::Columns - modeColumns - 1) * CellWidth - 1, 14);
    mEdit->paint(painter);
    painter.textRight(0, UPainter::Columns - 1, mode, modeColumns);
    if (mEdit->getKeyPadShown())
        mEdit->paintKeypad(painter, 1);
    else
        mList->paint(painter);
}
