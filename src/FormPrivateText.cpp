#include "ContextMenuText.h"
#include "FormPrivate.h"
#include "ScreenTextWriter.h"

#include <ContextMenuMEG.h>
#include <SpellerMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoTextEditMEG.h>

// What a form writes: its title and the highlighted row, or what is open on it. A password is written as asterisks,
// wherever it stands.

namespace DisplayAPI {

namespace {

std::string hidden(const UString& text)
{
    return PasswordFormItemMEG::getAsterisks(text).toUTF8();
}

std::string textOf(const VantoListBoxItemMEG* row)
{
    return row ? row->getText().toUTF8() : std::string();
}

bool isPassword(const VantoListBoxItemMEG& row)
{
    return row.getItemType() == VantoListBoxItemMEG::PasswordRow;
}

std::string valueOf(const FormListBoxItemMEG& row)
{
    const FormValueMEG* value = row.getValue();
    if (!value)
        return {};
    return isPassword(row) ? hidden(value->getText()) : value->getText().toUTF8();
}

const char* scrollArrow(const VantoListBoxMEG& list)
{
    const int last = list.count() - 1;
    if (last < 1 || !list.scrollArrows())
        return nullptr;
    if (list.currentIndex() == 0)
        return "NavigationArrowDown";
    return list.currentIndex() == last ? "NavigationArrowUp" : "NavigationArrowUpDown";
}

}

std::string FormPrivate::serialise()
{
    if (!mWidget && mHasHadWidget)
        return {};
    ScreenTextWriter writer;
    writer.object("FormWidget");
    if (!mWidget) {
        writer.endObject();
        return writer.take();
    }
    if (const std::string caption = title(); !caption.empty())
        writer.field("caption", caption);
    switch (mWidget->displayMode()) {
    case FormWidgetMEG::Rows:
    case FormWidgetMEG::SliderEditing:
        if (list()->currentIndex() >= 0)
            writeRow(writer, list()->currentIndex());
        break;
    case FormWidgetMEG::SelectionList: writeChoice(writer); break;
    case FormWidgetMEG::Speller:
        if (mWidget->speller())
            return spellerText();
        break;
    default: break;
    }
    writer.endObject();
    return writer.take();
}

void FormPrivate::writeRow(ScreenTextWriter& writer, int index) const
{
    const auto* row = dynamic_cast<FormListBoxItemMEG*>(list()->item(index));
    if (!row)
        return;
    const bool isSlider = row->getItemType() == VantoListBoxItemMEG::SliderRow;
    writer.subitem(isSlider ? "FormSliderItem" : "FormItem");
    writer.startField("string0");
    if (row->getReadOnlyMode())
        writer.value("[");
    if (const std::string text = textOf(row); text != mWidget->getCaption().toUTF8())
        writer.value(text);
    writer.endField();
    const bool isCurrent = list()->indexOf(list()->currentItem()) == index;
    if (const auto* slider = dynamic_cast<FormSliderItemMEG*>(mWidget->currentRow()); isSlider && slider) {
        writer.field("string1", std::to_string(slider->sliderMinimum()));
        writer.field("string2", std::to_string(slider->sliderValue()) + (isCurrent ? " " : ""));
        writer.field("string3", std::to_string(slider->sliderMaximum()));
    } else {
        writeValue(writer, *row, isCurrent);
    }
    if (const char* arrow = scrollArrow(*list()))
        writer.field("icon3", arrow);
    writer.endSubitem();
}

void FormPrivate::writeValue(ScreenTextWriter& writer, const FormListBoxItemMEG& row, bool isCurrent) const
{
    writer.startField("string1");
    writer.value(" ");
    writer.value(valueOf(row));
    if (row.getReadOnlyMode())
        writer.value("]");
    if (isCurrent)
        writer.value(row.drawCMA() ? "  ->" : " ");
    writer.endField();
}

/// With an open list the form closes twice.
void FormPrivate::writeChoice(ScreenTextWriter& writer) const
{
    const ContextMenuMEG* menu = mWidget->selectionList();
    const VantoListBoxMEG* choices = menu ? menu->listBox : nullptr;
    if (!choices)
        return;
    if (const VantoListBoxItemMEG* row = choices->currentItem()) {
        writer.subitem("VantoListBoxItem");
        writer.field("string0", isPassword(*row) ? hidden(row->getText()) : textOf(row));
        writer.endSubitem();
    }
    writer.endObject();
}

/// The text that is being written stands in the place of the form's title.
std::string FormPrivate::spellerText() const
{
    const SpellerMEG& speller = *mWidget->speller();
    const FormItemMEG* row = mWidget->currentRow();
    const bool isSecret = row && row->getFieldType() == FormItemIfc::PasswordField;
    ScreenTextWriter writer;
    writer.object("FormWidget");
    writer.field("caption", isSecret ? hidden(speller.getText()) : speller.getText().toUTF8());
    if (speller.getEditBox()->getKeyPadShown()) {
        writer.subitem(" VantoTextEditMEG");
        writer.field("string0", speller.getEditBox()->getActualKeySet().toUTF8());
    } else {
        writer.subitem("VantoListBoxItem");
        writer.field("string0", textOf(speller.listBox()->currentItem()));
    }
    writer.endSubitem();
    writer.endObject();
    return writer.take();
}

std::string FormPrivate::serialiseContextMenu() const
{
    const ContextMenuMEG* menu = mWidget ? mWidget->selectionList() : nullptr;
    return menu && menu->isVisible() ? contextMenuText(menu) : std::string();
}

}
