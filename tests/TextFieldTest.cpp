#include "EveryScreen.h"
#include "FormHolder.h"
#include "PhoneTest.h"
#include "ScreenTextParser.h"
#include "TestTranslator.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/TextField.h>

#include <FormItemMEG.h>

using namespace DisplayAPI;

namespace {

const std::string Password(ScreenTextParser::Password);

class TextFieldTest : public PhoneTest {
protected:
    TestTranslator translator;
};

FormItemMEG& rowOf(TextField& field)
{
    return static_cast<FormItemMEG&>(*field.getPrivateImpl()->getWidget());
}

TextField::FieldType typeOf(int number)
{
    return static_cast<TextField::FieldType>(number);
}

}

INSTANTIATE_TEST_SUITE_P(TextField, EveryRowTest,
    rowFamily(
        formHolder<TextField>(), [](Stage& stage) { return std::unique_ptr<TextField>(stage.newField("Name")); },
        {
            {"setString", [](auto& field, auto&) { field.setString("Anna"); }},
            {"a translation", [](auto& field, auto& stage) { field.setString(stage.translation("anna")); }},
            {"setLabel", [](auto& field, auto&) { field.setLabel("First name"); }},
            {"its translation", [](auto& field, auto& stage) { field.setLabel(stage.translation("first")); }},
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

TEST_F(TextFieldTest, EachTypeHasItsKindOnBothKindsOfRow)
{
    struct Case {
        int type;
        int kind;
        bool leavesPassword;
    };
    constexpr int P = FormItemIfc::PasswordField;
    for (const Case& row : std::initializer_list<Case>{{0, 0, true}, {1, 1, true}, {2, 2, true}, {3, 3, true},
             {4, 1, false}, {5, 1, false}, {6, P, false}, {7, 5, false}, {8, 6, true}, {9, 1, false}, {10, 12, true},
             {11, 11, true}, {12, 1, false}, {-1, 1, false}}) {
        SCOPED_TRACE(row.type);
        TextField made(nullptr, {}, nullptr, typeOf(row.type), true);
        TextField plain(nullptr, {}, nullptr, TextField::AnyText, true);
        TextField password(nullptr, {}, nullptr, TextField::Password, true);
        for (TextField* field : {&plain, &password}) {
            field->setReadOnlyMode(true);
            field->setFieldType(typeOf(row.type));
        }
        EXPECT_EQ(rowOf(made).getFieldType(), row.kind);
        EXPECT_EQ(rowOf(made).flag(), row.type != 6 && row.type != 10);
        EXPECT_EQ(rowOf(plain).getFieldType(), row.kind);
        EXPECT_EQ(rowOf(password).getFieldType(), row.leavesPassword ? row.kind : P);
        EXPECT_EQ(plain.getReadOnlyMode(), row.type != 6);
        EXPECT_EQ(password.getReadOnlyMode(), !row.leavesPassword);
        EXPECT_EQ(made.getFieldType(), row.type);
        EXPECT_EQ(plain.getFieldType(), TextField::AnyText);
    }
}

TEST_F(TextFieldTest, AFieldCountsItsUnitsAndAllFields)
{
    TextField first(nullptr, {}, nullptr, TextField::AnyText, false);
    auto second = std::make_unique<TextField>(nullptr, TextField::IconImage(), nullptr, TextField::Password, false);
    EXPECT_EQ(second->getID(), first.getID() + 1);
    for (TextField* field : {&first, second.get()}) {
        field->setString("J\xC3\xB6rg \xF0\x9F\x98\x80");
        EXPECT_EQ(field->size(), 7);
        EXPECT_EQ(field->getString(), "J\xC3\xB6rg \xF0\x9F\x98\x80");
        field->setInformAppOnOk(true);
        EXPECT_TRUE(rowOf(*field).informsAppOnOk());
        field->setInformAppOnOk(false);
        EXPECT_FALSE(rowOf(*field).informsAppOnOk());
    }
    TextField* gone = second.get();
    EXPECT_TRUE(TextField::exists(gone));
    second.reset();
    EXPECT_FALSE(TextField::exists(gone));
}

TEST_F(TextFieldTest, APlainTextOutlastsAChangeOfLocale)
{
    TextField field(new TranslationInfo("", "name", ":", &translator), {},
        new TranslationInfo("", "anna", "", &translator), TextField::AnyText, false);
    translator.prefix = "de:";
    display->localeChanged("de");
    EXPECT_EQ(field.getLabel() + field.getString(), "de:name:de:anna");
    field.setString("Bob");
    translator.prefix = "fr:";
    display->localeChanged("fr");
    EXPECT_EQ(field.getLabel() + field.getString(), "fr:name:Bob");
}

TEST_F(TextFieldTest, AFieldBecomesAPasswordInTheMiddleOfItsForm)
{
    Form form(Form::Proportion0);
    auto* field = new TextField(nullptr, {}, nullptr, TextField::AnyText, false);
    form.append(new TextField(nullptr, {}, nullptr, TextField::AnyText, false));
    form.append(field);
    form.append(new TextField(nullptr, {}, nullptr, TextField::AnyText, false));
    form.append(field);
    form.setSelected(field);
    field->setLabel("PIN");
    show(form);
    press(UGlobal::KeyOk);
    field->setFieldType(TextField::Password);
    field->setString(Password);
    const std::string hidden = lines({"object:", "name:FormWidget", "subitem:", "name:FormItem", "string0:PIN",
        "string1: ****** ", "icon3:NavigationArrowUpDown", "endsubitem:", "end:"});
    EXPECT_EQ(screenText(), hidden);
    EXPECT_EQ(glassLine(1).substr(0, 7), "****** ");
    EXPECT_EQ(form.getSelected(), field);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyDown);
    EXPECT_EQ(form.getSelected(), field);
    EXPECT_EQ(screenField("string1"), " ****** ");
    field->setFieldType(TextField::AnyText);
    field->setString("none");
    EXPECT_EQ(screenField("string1"), " none ");
}
