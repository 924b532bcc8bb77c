#include "FormWidgetMEG.h"

#include "EventTypes.h"
#include "SpellerMEG.h"
#include "TextBlock.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxMEG.h"
#include "VantoTextEditMEG.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

const URect wholeGlass(0, 0, 161, 30);
const URect belowCaption(0, 15, 161, 30);

}

/// The list of the rows, which tells the form of each change of the current one.
class FormWidgetMEG::RowList : public VantoListBoxMEG {
public:
    explicit RowList(FormWidgetMEG& form)
        : VantoListBoxMEG(&form)
        , mForm(form)
    {
    }

    /// Takes a row out and leaves its other positions.
    void takeOut(FormItemMEG& row)
    {
        mTakenOut = &row;
        removeItem(&row);
        mTakenOut = nullptr;
    }

    /// The last of the further positions of a row, or null.
    RowAgain* again(const UWidget* row) const;
    void childLeft(UWidget* child) override;

protected:
    void currentChanged() override { mForm.currentChanged(); }

private:
    FormWidgetMEG& mForm;
    UWidget* mTakenOut = nullptr;
};

/// A second position of a row: it shows that row and goes with it.
class FormWidgetMEG::RowAgain : public FormListBoxItemMEG {
public:
    explicit RowAgain(FormItemMEG& row)
        : mAddress(&row)
        , mRow(&row)
    {
    }

    FormItemMEG* row() const { return mRow.get(); }
    bool isOf(const UWidget* row) const { return mAddress == row; }

    UString getText() const override { return mRow ? mRow->getText() : UString(); }
    bool getReadOnlyMode() const override { return mRow && mRow->getReadOnlyMode(); }
    FormValueMEG* getValue() const override { return mRow ? mRow->getValue() : nullptr; }
    int getItemType() const override { return mRow ? mRow->getItemType() : FormRow; }
    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override
    {
        if (mRow)
            mRow->paintRow(painter, rowLine, line, column, columns);
    }
    void paintInOneLine(UPainter& painter, int line, int column, int columns) const override
    {
        if (mRow)
            mRow->paintInOneLine(painter, line, column, columns);
    }

private:
    const UWidget* mAddress;
    UPointer<FormItemMEG> mRow;
};

FormWidgetMEG::RowAgain* FormWidgetMEG::RowList::again(const UWidget* row) const
{
    for (int index = count() - 1; index >= 0; --index) {
        auto* entry = dynamic_cast<RowAgain*>(item(index));
        if (entry && entry->isOf(row))
            return entry;
    }
    return nullptr;
}

void FormWidgetMEG::RowList::childLeft(UWidget* child)
{
    VantoListBoxMEG::childLeft(child);
    // The further positions go with the row.
    while (child != mTakenOut) {
        RowAgain* entry = again(child);
        if (!entry)
            return;
        delete entry;
    }
}

FormWidgetMEG::FormWidgetMEG(FormProportionType proportion, bool flag)
    : mProportion(proportion)
    , mFlag(flag)
    , mListOwner(new RowList(*this))
    , mList(mListOwner)
{
    setRect(wholeGlass);
    mList->setListener(this);
}

FormWidgetMEG::~FormWidgetMEG() = default;

FormItemMEG* FormWidgetMEG::itemOf(VantoListBoxItemMEG* row)
{
    if (const auto* again = dynamic_cast<RowAgain*>(row))
        return again->row();
    return dynamic_cast<FormItemMEG*>(row);
}

// Rows

void FormWidgetMEG::appendRow(FormItemMEG* row)
{
    insertRowAt(row, rowCount());
}

void FormWidgetMEG::insertRowBefore(FormItemMEG* row, FormItemMEG* before)
{
    insertRowAt(row, mList->indexOf(before));
}

void FormWidgetMEG::insertRowAt(FormItemMEG* row, int position)
{
    if (!row)
        return;
    if (position < 0 || position > rowCount())
        position = rowCount();
    if (mList->indexOf(row) >= 0)
        mList->insertItem(new RowAgain(*row), position);
    else
        mList->insertItem(row, position);
}

void FormWidgetMEG::removeRowAt(int position)
{
    VantoListBoxItemMEG* entry = mList->item(position);
    FormItemMEG* row = itemOf(entry);
    if (entry != row) {
        delete entry;
        return;
    }
    if (!row)
        return;
    const RowAgain* other = mListOwner->again(row);
    if (!other) {
        mList->removeItem(row);
        return;
    }
    // The row takes the place of its other position, so that it stays in the form.
    mListOwner->takeOut(*row);
    const int place = mList->indexOf(other);
    delete other;
    mList->insertItem(row, place);
}

void FormWidgetMEG::removeItem(FormItemMEG* row)
{
    if (mList->indexOf(row) >= 0)
        mList->removeItem(row);
}

void FormWidgetMEG::replaceRow(FormItemMEG* row, FormItemMEG* replacement)
{
    const int current = mList->currentIndex();
    std::vector<int> positions;
    for (int position = 0; position < rowCount(); ++position) {
        if (itemOf(mList->item(position)) == row)
            positions.push_back(position);
    }
    removeItem(row);
    for (const int position : positions)
        insertRowAt(replacement, position);
    mList->setCurrentIndex(current);
}

int FormWidgetMEG::rowCount() const
{
    return mList->count();
}

FormItemMEG* FormWidgetMEG::currentRow() const
{
    return itemOf(mList->currentItem());
}

void FormWidgetMEG::setCurrentRow(FormItemIfc* row)
{
    for (int position = 0; row && position < rowCount(); ++position) {
        if (static_cast<FormItemIfc*>(itemOf(mList->item(position))) == row) {
            mList->setCurrentIndex(position);
            return;
        }
    }
}

void FormWidgetMEG::currentChanged()
{
    if (mEdited.get() != currentRow())
        closeEditor();
    placeList();
}

void FormWidgetMEG::placeList()
{
    const FormItemMEG* row = currentRow();
    const bool isBelowCaption = row && !row->getValue() && !mCaption.isEmpty();
    mList->setRect(isBelowCaption ? belowCaption : wholeGlass);
    refresh();
}

// Texts

void FormWidgetMEG::setCaption(const UString& caption)
{
    mCaption = caption;
    placeList();
}

void FormWidgetMEG::setClipboard(const UString& text)
{
    mClipboard = text;
    if (mSpeller)
        mSpeller->setClipboard(text);
}

// Editing

int FormWidgetMEG::displayMode() const
{
    if (mSpeller)
        return Speller;
    if (isListOpen())
        return SelectionList;
    return mEdited ? SliderEditing : Rows;
}

ContextMenuMEG* FormWidgetMEG::selectionList() const
{
    const FormItemMEG* row = currentRow();
    return row ? row->selectionList() : nullptr;
}

bool FormWidgetMEG::isListOpen() const
{
    return mOpenList && mOpenList->isUp();
}

void FormWidgetMEG::confirm(FormItemMEG& row)
{
    if (row.informsAppOnOk() || row.getFieldType() == FormItemIfc::CommandField)
        emit(EventType::FormRowChosen, this, &row);
    else
        open(row);
}

void FormWidgetMEG::open(FormItemMEG& row)
{
    if (row.getReadOnlyMode() || !row.getValue())
        return;
    if (row.getItemType() == VantoListBoxItemMEG::SliderRow)
        startEditing(row);
    else if (row.selectionList())
        openList(row);
    else if (row.getFieldType() != FormItemIfc::SelectionField)
        openSpeller(row);
}

/// The last statement of whoever opens an editor.
void FormWidgetMEG::startEditing(FormItemMEG& row)
{
    mEdited = &row;
    row.setEditing(true);
    refresh();
    emit(isListOpen() ? EventType::SelectionListMoved : EventType::DisplayModeChanged, this);
}

void FormWidgetMEG::openSpeller(FormItemMEG& row)
{
    const FormItemIfc::FieldType type = row.getFieldType();
    mSpeller = new SpellerMEG(this);
    mSpeller->setListener(this);
    VantoTextEditMEG* edit = mSpeller->getEditBox();
    edit->setMaxLength(row.maxFieldLength());
    edit->setNumberInput(type == FormItemIfc::NumberField || type == FormItemIfc::DialField);
    if (type == FormItemIfc::PasswordField)
        edit->setEchoMode(VantoTextEditMEG::EchoAsterisks);
    mSpeller->setCallRows(type == FormItemIfc::DialField);
    mSpeller->setClipboard(mClipboard);
    mSpeller->setText(row.valueText());
    startEditing(row);
}

void FormWidgetMEG::openList(FormItemMEG& row)
{
    ContextMenuMEG* list = row.selectionList();
    if (!list->listBox || list->listBox->count() == 0)
        return;
    list->setListener(this);
    list->listBox->setCurrentIndex(0);
    if (row.displaysCurrentSelection())
        list->listBox->setCurrentIndex(std::max(0, static_cast<int>(row.getSelectionIndex())));
    mOpenList = list;
    list->slideIn();
    startEditing(row);
}

void FormWidgetMEG::closeEditor()
{
    if (mEdited)
        mEdited->setEditing(false);
    mEdited = nullptr;
    if (isListOpen())
        mOpenList->slideOut();
    mOpenList = nullptr;
    delete std::exchange(mSpeller, nullptr);
    refresh();
}

void FormWidgetMEG::giveUp()
{
    closeEditor();
    emit(EventType::DisplayModeChanged, this);
}

/// Closes the editor and tells of the new value; `second` is what tells how it came.
void FormWidgetMEG::commit(std::uint16_t second)
{
    const UPointer<FormItemMEG> row = mEdited;
    closeEditor();
    if (!emit(EventType::ValueCommitted, this, row.get()))
        return;
    UAgent* source = second == EventType::RowMoved ? static_cast<UAgent*>(row.get()) : this;
    if (emit(second, source, row.get()))
        emit(EventType::DisplayModeChanged, this);
}

void FormWidgetMEG::setVisible(bool visible)
{
    UWidget::setVisible(visible);
    if (!visible && isListOpen())
        closeEditor();
}

void FormWidgetMEG::parentChanged()
{
    if (!parentWidget() && isListOpen())
        closeEditor();
}

void FormWidgetMEG::childLeft(UWidget* child)
{
    UWidget::childLeft(child);
    if (child == mSpeller)
        mSpeller = nullptr;
}

// Keys and what the parts of the form tell

bool FormWidgetMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() != UGlobal::KeyPressed)
        return false;
    switch (displayMode()) {
    case Speller: return mSpeller->keyEvent(key);
    case SelectionList: return mOpenList->keyEvent(key);
    case SliderEditing: stepSlider(*key); return true;
    default: return useKey(*key);
    }
}

bool FormWidgetMEG::useKey(UKeyEvent& key)
{
    FormItemMEG* row = currentRow();
    switch (key.key()) {
    case UGlobal::KeyUp:
    case UGlobal::KeyDown: return mList->keyEvent(&key);
    case UGlobal::KeyLeft: emit(EventType::LeftPressed, this); return true;
    case UGlobal::KeyOk:
        if (row)
            confirm(*row);
        return true;
    case UGlobal::KeyRight:
        if (row)
            open(*row);
        return true;
    default: return false;
    }
}

void FormWidgetMEG::stepSlider(UKeyEvent& key)
{
    auto& slider = static_cast<FormSliderItemMEG&>(*mEdited);
    bool isMoved = false;
    switch (key.key()) {
    case UGlobal::KeyRight:
    case UGlobal::KeyUp: isMoved = slider.stepValue(1); break;
    case UGlobal::KeyLeft:
    case UGlobal::KeyDown: isMoved = slider.stepValue(-1); break;
    case UGlobal::KeyOk: giveUp(); return;
    default: return;
    }
    if (isMoved)
        emit(EventType::ValueCommitted, this, &slider);
}

void FormWidgetMEG::event(UEvent* event)
{
    if (mSpeller && event->source() == mSpeller)
        spellerTold(*event);
    else if (isListOpen())
        listTold(*event);
    else if (event->type == EventType::RowMoved)
        emit(EventType::HighlightMoved, this);
}

void FormWidgetMEG::spellerTold(const UEvent& event)
{
    switch (event.type) {
    case EventType::SpellerConfirmed:
        if (mEdited)
            mEdited->setValueText(mSpeller->getText());
        commit(EventType::SpellerConfirmed);
        break;
    case EventType::SpellerCopied:
        mClipboard = mSpeller->getClipboard();
        emit(EventType::SpellerCopied, this);
        break;
    case EventType::LeftPressed: giveUp(); break;
    default: emit(EventType::DisplayModeChanged, this); break;
    }
}

void FormWidgetMEG::listTold(const UEvent& event)
{
    const VantoListBoxMEG* list = mOpenList->listBox;
    const bool isChoice = event.type == EventType::RowChosen && list && event.source() != mOpenList->backRow();
    if (isChoice && mEdited) {
        mEdited->setSelectionIndex(static_cast<unsigned int>(list->currentIndex()));
        commit(EventType::RowMoved);
    } else if (event.type == EventType::RowMoved) {
        emit(EventType::SelectionListMoved, this);
    } else if (event.type == EventType::LeftPressed || event.type == EventType::RowChosen) {
        giveUp();
    }
}

// Painting

void FormWidgetMEG::paint(UPainter& painter)
{
    painter.clearLines(isFirstLineTaken() ? 1 : 0, 1);
    if (mList->getRect() == belowCaption && !isFirstLineTaken())
        painter.rowText(0, 0, UString(TextBlock::oneLine(mCaption.toUTF8())), UPainter::Columns);
}
