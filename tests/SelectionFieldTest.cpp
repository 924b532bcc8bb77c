#include "EveryScreen.h"
#include "FormHolder.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/SelectionField.h>

#include <ContextMenuMEG.h>
#include <FormItemMEG.h>
#include <VantoListBoxMEG.h>

#include <cstddef>

using namespace DisplayAPI;

namespace {

class SelectionFieldTest : public PhoneTest {
protected:
    SelectionFieldTest()
    {
        form.addCommandListener(&listener);
        form.addItemStateListener(&listener);
        form.append(&field);
    }
    ~SelectionFieldTest() override { endLoop(); } // which waits for the listener

    TranslationInfo* text(const char* key) { return new TranslationInfo("", key, "?", &translator); }
    static std::string row(SelectionField& of, int index)
    {
        return of.getPrivateImpl()->getWidget()->selectionList()->listBox->item(index)->getText().toUTF8();
    }

    TestTranslator translator;
    RecordingListener listener;
    MenuCommand english{text("English"), 1};
    MenuCommand german{text("German"), 2};
    MenuCommand french{text("French"), 3};
    Form form{Form::Proportion0};
    SelectionField& field = *new SelectionField(text("Language"), &english, &form, true); // the form's
};

std::unique_ptr<SelectionField> makeField(Stage& stage)
{
    Form form(Form::Proportion0); // only asked whether there is one
    auto field = std::make_unique<SelectionField>(
        stage.translation("language"), PhonebookItem::Mobile, &stage.yes, &form, true);
    field->appendSelection(&stage.yes);
    field->appendSelection(&stage.no);
    return field;
}

std::string tell(SelectionField& field)
{
    const MenuCommand* command = field.getSelectionCommand();
    return std::to_string(field.getSelectionIndex()) + (command ? command->getText() : "none")
        + std::to_string(field.getHighlightedIndex()) + (field.getReadOnlyMode() ? "read-only" : "") + field.getLabel();
}

}

INSTANTIATE_TEST_SUITE_P(SelectionField, EveryRowTest,
    rowFamily(formHolder<SelectionField>(), makeField,
        {
            {"setFieldContents", [](auto& field, auto& stage) { field.setFieldContents(&stage.last); }},
            {"setSelectionIndex", [](auto& field, auto&) { field.setSelectionIndex(1); }},
            {"setSelectionCommand", [](auto& field, auto& stage) { field.setSelectionCommand(&stage.yes); }},
            {"appendSelection", [](auto& field, auto& stage) { field.appendSelection(&stage.maybe); }},
            {"setLabel", [](auto& field, auto&) { field.setLabel("Tongue"); }},
            {"displayCurrentSelection", [](auto& field, auto&) { field.displayCurrentSelection(false); }},
            {"clearSelections", [](auto& field, auto& stage) { field.clearSelections(&stage.no); }},
            {"setInformAppOnOk", [](auto& field, auto&) { field.setInformAppOnOk(true); }},
            {"setReadOnlyMode", [](auto& field, auto&) { field.setReadOnlyMode(true); }},
        },
        tell));

TEST_F(SelectionFieldTest, AChoiceFromTheListBecomesTheValue)
{
    field.appendSelection(&english);
    field.appendSelection(&german);
    show(form);
    EXPECT_EQ(glassLine(0) + glassLine(1), "Language?                  English                    ");

    press(UGlobal::KeyOk);
    EXPECT_EQ(screenField("string0"), "English?");
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1).substr(0, 8), "German? ");
    press(UGlobal::KeyOk);
    EXPECT_EQ(screenField("string1"), " German ") << "without what stands around it";
    EXPECT_EQ(tell(field), "1German?1");

    for (const int key : {UGlobal::KeyRight, UGlobal::KeyDown, UGlobal::KeyOk}) // the row that leads back
        press(key);
    Command* const moved = Form::SELECTION_DISPLAY_COMMAND();
    const std::vector<const void*> all{moved, moved, &field, Form::SELECTION_CHANGED_COMMAND(), moved, moved};
    EXPECT_EQ(listener.told(all.size()), all);

    field.displayCurrentSelection(false);
    press(UGlobal::KeyOk);
    EXPECT_EQ(field.getHighlightedIndex(), 0) << "it opens on its first row";
}

TEST_F(SelectionFieldTest, WhatIsNoChoiceIsKeptAndChangesNoValue)
{
    field.appendSelection(&english);
    field.setSelectionCommand(&french);
    EXPECT_EQ(field.getSelectionCommand(), &french);
    field.setSelectionIndex(1); // the row that leads back
    show(form);
    field.setFieldContents(&german);
    field.setFieldContents(nullptr);
    EXPECT_EQ(screenField("string1"), " German ");
    press(UGlobal::KeyOk);
    field.clearSelections(nullptr);
    EXPECT_EQ(tell(field), "1French?-1") << "also with the list open";
    press(UGlobal::KeyLeft);
    EXPECT_EQ(screenField("string1"), "  ");
    SelectionField without(text("Label"), &english, nullptr, true);
    without.appendSelection(&german);
    EXPECT_EQ(tell(without), "-1none0") << "a list needs a form";
}

TEST_F(SelectionFieldTest, AChangeOfLocaleReadsLabelChoicesAndValueAgain)
{
    SelectionField plain(nullptr, &english, &form, true);
    for (SelectionField* each : {&plain, &field}) {
        each->appendSelection(&german);
        each->appendSelection(&english);
    }
    field.setLabel("Tongue");
    show(form);
    display->localeChanged("en");
    EXPECT_EQ(screenField("string1"), " English ") << "nothing was selected";
    field.setSelectionIndex(0);
    translator.prefix = "fr ";
    display->localeChanged("fr");
    plain.localeChanged("fr");
    EXPECT_EQ(screenField("string0") + screenField("string1"), "fr Language? fr German ");
    EXPECT_EQ(row(field, 1), "fr English");
    EXPECT_EQ(row(field, 2), "fr Back?");
    EXPECT_EQ(row(plain, 2), "Back?") << "a field without a label has no translator";
}

TEST_F(SelectionFieldTest, ACommandThatDiedIsNotTakenForAnotherAtItsAddress)
{
    alignas(MenuCommand) std::byte memory[sizeof(MenuCommand)];
    auto* gone = new (memory) MenuCommand(text("Gone"), 5);
    field.appendSelection(gone);
    field.setSelectionIndex(0);
    std::destroy_at(gone);
    field.appendSelection(gone);
    auto* other = new (memory) MenuCommand(text("Gone"), 6);
    EXPECT_EQ(field.getSelectionCommand(), nullptr);
    show(form);
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string1"), " Gone ");
    field.appendSelection(other);
    EXPECT_EQ(field.getSelectionCommand(), nullptr) << "a choice that nobody took";
    field.setSelectionCommand(other);
    EXPECT_EQ(tell(field), "1fr Gone?0");
    std::destroy_at(other);
}
