#include "Gallery.h"

#include <ContextMenuMEG.h>
#include <FormItemMEG.h>
#include <FormWidgetMEG.h>
#include <VantoListBoxMEG.h>

namespace {

using namespace Gallery;

FormWidgetMEG* addForm(Stage& stage)
{
    auto* form = stage.add<FormWidgetMEG>(FormWidgetMEG::FormProportionType(), true);
    form->setListener(stage.listener());
    form->setCaption(text("Settings"));
    return form;
}

FormItemMEG* addRow(FormWidgetMEG& form, const std::string& label, const std::string& value,
    FormItemIfc::FieldType type = FormItemIfc::AnyText)
{
    auto* row = new FormItemMEG(text(label), text(value), type, false);
    form.appendRow(row);
    return row;
}

const Exhibit textRow("form-text", R"(
    shot row
    press OK
    shot speller
    type 2
    shot keypad
    advance 1s
    press OK
    shot confirmed
    press DOWN
    shot command
    press OK
    press LEFT
)",
    [](Stage& stage) {
        FormWidgetMEG* form = addForm(stage);
        addRow(*form, "Display name:", "Ann");
        addRow(*form, "Save & exit?", "", FormItemIfc::CommandField);
    });

const Exhibit passwordRow("form-password", R"(
    shot row
    press RIGHT
    shot speller
    press LEFT
    shot one-less
    press UP
    press OK
    shot cancelled
)",
    [](Stage& stage) {
        FormWidgetMEG* form = addForm(stage);
        form->appendRow(new PasswordFormItemMEG(text("PIN:"), text("1234")));
        FormItemMEG* version = addRow(*form, "Version:", "1.0.7");
        version->setReadOnlyMode(true);
    });

const Exhibit readOnlyRow("form-read-only", R"(
    shot row
    press OK
    shot closed
)",
    [](Stage& stage) { addRow(*addForm(stage), "Version:", "1.0.7")->setReadOnlyMode(true); });

const Exhibit selectionRow("form-selection", R"(
    shot row
    press OK
    shot list
    press DOWN
    shot second
    press OK
    shot chosen
    press OK
    press LEFT
    shot given-up
)",
    [](Stage& stage) {
        FormWidgetMEG* form = addForm(stage);
        FormItemMEG* row = addRow(*form, "Language:", "English", FormItemIfc::SelectionField);
        auto* list = new ContextMenuMEG(nullptr, true, -1, "Back?");
        list->setDrawLineAtTop(false);
        row->setContextMenu(list);
        row->addCommand("English?", "English", 1);
        row->addCommand("German?", "German", 2);
    });

const Exhibit sliderRow("form-slider", R"(
    shot row
    press OK
    shot editing
    press RIGHT
    press RIGHT
    shot moved
    press OK
    shot done
)",
    [](Stage& stage) {
        FormWidgetMEG* form = addForm(stage);
        auto* row = new FormSliderItemMEG(text("Volume:"), nullptr);
        row->sliderMaximum(10);
        row->sliderValue(4);
        form->appendRow(row);
        addRow(*form, "Save & exit?", "", FormItemIfc::CommandField);
    });

}
