#include "EveryScreen.h"
#include "PhoneTest.h"
#include "ScreenTextParser.h"
#include "TestTranslator.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/TextField.h>

#include <FormItemMEG.h>

#include <algorithm>

using namespace DisplayAPI;

namespace {

const std::string Password(ScreenTextParser::Password);

const Holder<Form, TextField> inForm{
    [] { return std::make_unique<Form>(Form::Proportion0); },
    [](Form& form, TextField& field) { form.append(&field); },
    [](Form& form, TextField& field) {
        const std::vector<Item*> items = form.getItems();
        form.removeItem(static_cast<unsigned int>(std::find(items.begin(), items.end(), &field) - items.begin()));
    },
};

class TextFieldTest : public PhoneTest {
protected:
    TestTranslator translator;
};

}

INSTANTIATE_TEST_SUITE_P(TextField, EveryRowTest,
    rowFamily(
        inForm, [](Stage& stage) { return std::unique_ptr<TextField>(stage.newField("Name")); },
        {
            {"setString", [](auto& field, auto&) { field.setString("Anna"); }},
            {"a translation", [](auto& field, auto& stage) { field.setString(stage.translation("anna")); }},
            {"setLabel", [](auto& field, auto&) { field.setLabel("First name"); }},
            {"its translation", [](auto& field, auto& stage) { field.setLabel(stage.translation("first")); }},
            {"setIcon", [](auto& field, auto&) { field.setIcon(TextField::IconImage(3)); }},
            {"a password", [](auto& field, auto&) { field.setFieldType(TextField::Password); }},
            {"setMaxFieldLength", [](auto& field, auto&) { field.setMaxFieldLength(8); }},
            {"setInformAppOnOk", [](auto& field, auto& stage) { field.setInformAppOnOk(&stage.yes); }},
            {"setReadOnlyMode", [](auto& field, auto&) { field.setReadOnlyMode(true); }},
            {"a number", [](auto& field, auto&) { field.setFieldType(TextField::Number); }},
            {"localeChanged", [](auto& field, auto&) { field.localeChanged("de"); }},
        },
        [](TextField& field) {
            return field.getLabel() + "|" + field.getString() + "|" + std::to_string(field.size())
                + (field.getReadOnlyMode() ? "r" : "") + field.getType();
        }));
