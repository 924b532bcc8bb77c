#include "FormItemMEG.h"

#include "ContextMenuMEG.h"
#include "FormWidgetMEG.h"
#include "TextBlock.h"
#include "TextCells.h"
#include "UPainter.h"
#include "VantoListBoxMEG.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

FormValueMEG::~FormValueMEG() = default;

FormItemMEG::FormItemMEG(const UString& label, const UString& value, FieldType type, bool flag)
    : FormItemMEG(label, type, std::make_unique<FormValueMEG>())
{
    mFlag = flag;
    mValue->setText(value);
}

FormItemMEG::FormItemMEG(const UString& label, FieldType type, std::unique_ptr<FormValueMEG> value)
    : FormListBoxItemMEG(label)
    , mValue(std::move(value))
    , mType(type)
{
}

FormItemMEG::~FormItemMEG()
{
    // While it is whole, since the form may be editing it.
    setParent(nullptr);
}

// Label and value

void FormItemMEG::setValueText(const UString& text)
{
    mValue->setText(text);
    refresh();
}

UString FormItemMEG::valueText() const
{
    return mValue->getText();
}

FormValueMEG* FormItemMEG::getValue() const
{
    return getFieldType() == CommandField ? nullptr : mValue.get();
}

void FormItemMEG::setFieldType(FieldType type)
{
    mType = type;
    refresh();
}

void FormItemMEG::setReadOnlyMode(bool readOnly)
{
    setReadonly(readOnly);
    const UWidget* list = readOnly && mIsEditing ? parentWidget() : nullptr;
    if (auto* form = list ? dynamic_cast<FormWidgetMEG*>(list->parentWidget()) : nullptr)
        form->closeEditor();
}

void FormItemMEG::setEditing(bool editing)
{
    mIsEditing = editing;
    refresh();
}

// Choices

void FormItemMEG::setContextMenu(ContextMenuMEG* menu)
{
    if (menu == mMenu)
        return;
    delete mMenu;
    mChoices.clear();
    mMenu = menu;
    if (mMenu)
        mMenu->setParent(this);
}

void FormItemMEG::childLeft(UWidget* child)
{
    FormListBoxItemMEG::childLeft(child);
    if (child == mMenu)
        mMenu = nullptr;
}

void FormItemMEG::addCommand(const std::string& text, const std::string& value, long handle)
{
    if (!mMenu)
        return;
    mMenu->addCommand(text, static_cast<unsigned long>(handle), false, false, 0);
    mChoices.push_back({handle, UString(text), UString(value)});
}

void FormItemMEG::clear()
{
    mChoices.clear();
    if (mMenu && mMenu->listBox)
        mMenu->listBox->clear();
}

void FormItemMEG::setSelectionIndex(unsigned int index)
{
    mSelectionIndex = index;
    if (!mMenu || !mMenu->listBox)
        return;
    const VantoListBoxItemMEG* row = mMenu->listBox->item(static_cast<int>(index));
    if (!row || row == mMenu->backRow())
        return;
    mSelectionCommand = row->getHandle();
    takeValueOf(*row);
}

void FormItemMEG::setSelectionCommand(long handle)
{
    mSelectionCommand = handle;
    if (!mMenu || !mMenu->listBox)
        return;
    const VantoListBoxItemMEG* row = mMenu->listBox->getItemByHandle(handle);
    if (!row || row == mMenu->backRow())
        return;
    mSelectionIndex = static_cast<unsigned int>(mMenu->listBox->indexOf(row));
    takeValueOf(*row);
}

void FormItemMEG::takeValueOf(const VantoListBoxItemMEG& row)
{
    // A row that has got another text since, as at a change of locale, shows that as its value. Rows may share a handle.
    const auto choice = std::find_if(mChoices.begin(), mChoices.end(), [&row](const Choice& entry) {
        return entry.handle == row.getHandle() && entry.text == row.getText();
    });
    setValueText(choice == mChoices.end() ? row.getText() : choice->value);
}

// Painting

void FormItemMEG::paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const
{
    if (rowLine == 0)
        painter.rowText(line, column, UString(TextBlock::oneLine(getText().toUTF8())), columns);
    else
        paintValue(painter, line, column, columns);
}

void FormItemMEG::paintInOneLine(UPainter& painter, int line, int column, int columns) const
{
    int left = 0;
    if (getValue() && !getText().isEmpty())
        left = painter.text(line, column, UString(TextBlock::oneLine(getText().toUTF8())), columns / 2) + 1;
    paintRow(painter, highlightedLine(), line, column + left, columns - left);
}

void FormItemMEG::paintValue(UPainter& painter, int line, int column, int columns) const
{
    std::string value = TextBlock::oneLine(shownValue().toUTF8());
    if (getReadOnlyMode())
        value = "[" + value + "]";
    painter.rowText(line, column, UString(value), columns);
}

// Password

PasswordFormItemMEG::PasswordFormItemMEG(const UString& label, const UString& value)
    : FormItemMEG(label, PasswordField, std::make_unique<InputPromptMEG>())
{
    setValueText(value);
}

UString PasswordFormItemMEG::getAsterisks(const UString& text)
{
    return UString(std::string(static_cast<std::size_t>(TextCells::count(text)), '*'));
}

// Slider

FormSliderItemMEG::FormSliderItemMEG(const UString& label, UAgent* listener)
    : FormItemMEG(label, AnyText, std::make_unique<FormValueMEG>())
{
    setListener(listener);
}

void FormSliderItemMEG::sliderMinimum(int minimum)
{
    mMinimum = minimum;
    refresh();
}

void FormSliderItemMEG::sliderMaximum(int maximum)
{
    mMaximum = maximum;
    refresh();
}

void FormSliderItemMEG::sliderValue(int value)
{
    mSliderValue = value;
    FormItemMEG::setValueText(valueText());
}

void FormSliderItemMEG::setRingerVolumeBarLimit(int limit)
{
    mBarLimit = limit;
    refresh();
}

bool FormSliderItemMEG::stepValue(int direction)
{
    const long long moved = static_cast<long long>(mSliderValue) + static_cast<long long>(mStep) * direction;
    const int next
        = static_cast<int>(std::clamp<long long>(moved, std::min(mMinimum, mMaximum), std::max(mMinimum, mMaximum)));
    if (next == mSliderValue)
        return false;
    sliderValue(next);
    return true;
}

UString FormSliderItemMEG::valueText() const
{
    return UString(std::to_string(mSliderValue));
}

void FormSliderItemMEG::setValueText(const UString& text)
{
    sliderValue(std::atoi(text.toUTF8().c_str()));
}

void FormSliderItemMEG::paintValue(UPainter& painter, int line, int column, int columns) const
{
    const UString minimum(std::to_string(mMinimum));
    const UString maximum(std::to_string(mMaximum));
    const int left = painter.text(line, column, minimum, columns) + 1;
    const int right = TextCells::count(maximum, columns) + 1;
    painter.textRight(line, column + columns - 1, maximum, columns - left);
    const int room = columns - left - right;
    painter.bar(line, column + left, room, mMinimum, mMaximum, mSliderValue < mBarLimit ? mMinimum : mSliderValue);
    if (getEditing())
        painter.invert(line, column + left, column + left + room - 1);
}
