#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "ScreenTextParser.h"
#include "TestTranslator.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/TextField.h>

#include "FormPrivate.h"

#include <FormWidgetMEG.h>
#include <SpellerMEG.h>
#include <UApplication.h>
#include <VantoListBoxMEG.h>
#include <VantoTextEditMEG.h>

using namespace DisplayAPI;

namespace {

TextField* newField(const std::string& label, const std::string& value, int type = TextField::AnyText)
{
    auto* field = new TextField(nullptr, {}, nullptr, static_cast<TextField::FieldType>(type), false);
    field->setLabel(label);
    field->setString(value);
    return field;
}

class FormTest : public PhoneTest {
protected:
    FormTest()
    {
        form.addCommandListener(&listener);
        form.addItemStateListener(&listener);
    }

    FormWidgetMEG& widget() { return static_cast<FormWidgetMEG&>(*form.getPrivateImpl()->getWidget()); }

    /// The labels of the rows, as the toolkit has them.
    std::string rows()
    {
        std::string all;
        for (int i = 0; i < widget().rowCount(); ++i)
            all += widget().listBox()->item(i)->getText().toUTF8() + " ";
        return all;
    }
    std::string items()
    {
        std::string all;
        for (Item* item : form.getItems())
            all += static_cast<TextField*>(item)->getLabel() + " ";
        return all;
    }

    /// Several presses of a key, and the time after which its letter stands.
    void tap(int key, int times)
    {
        for (; times > 0; --times)
            press(key);
        advance(VantoTextEditMEG::TapTime);
    }

    TestTranslator translator;
    RecordingListener listener;
    MenuCommand dial{"Dial", 1};
    Form form{Form::Proportion0};
};

std::unique_ptr<Form> makeForm(Stage& stage)
{
    auto form = std::make_unique<Form>(Form::Proportion2);
    form->setTitle(stage.translation("settings"));
    form->append(stage.newField("Name"));
    form->append(newField("PIN", std::string(ScreenTextParser::Password), TextField::Password));
    form->addCommand(&stage.yes);
    form->addCommandListener(&stage.listener);
    form->addItemStateListener(&stage.listener);
    return form;
}

std::string tellForm(Form& form)
{
    const std::vector<Item*> items = form.getItems();
    const auto* widget = form.getPrivateImpl() ? form.getPrivateImpl()->getWidget() : nullptr;
    for (Item* item : items) {
        EXPECT_EQ(item->getParent(), &form);
        // Each has its row, unless the toolkit has deleted them.
        EXPECT_TRUE(!widget || item->getPrivateImpl()->getWidget());
    }
    return form.title() + "|" + form.getClipboard() + "|" + std::to_string(items.size()) + "|"
        + std::to_string(form.getCommands().size()) + (form.getSelected() ? "+" : "-") + (form.isReadonly() ? "r" : "");
}

}

INSTANTIATE_TEST_SUITE_P(Form, EveryScreenTest,
    screenFamily<Form>(makeForm,
        {
            {"setTitle", [](auto& form, auto&) { form.setTitle("Settings"); }},
            {"a translation", [](auto& form, auto& stage) { form.setTitle(stage.translation("title")); }, false},
            {"append", [](auto& form, auto& stage) { form.append(stage.newField("Street")); }},
            {"insertItem", [](auto& form, auto& stage) { form.insertItem(stage.newField("Town"), 0); }},
            {"append again",
                [](auto& form, auto&) { form.append(form.getItems().empty() ? nullptr : form.getItems()[0]); }},
            {"removeItem", [](auto& form, auto& stage) { stage.takeBack(form.removeItem(0)); }},
            {"the death of an item",
                [](auto& form, auto& stage) {
                    stage.takeBack(form.getItems().empty() ? nullptr : form.getItems()[0]);
                }},
            {"setSelected",
                [](auto& form, auto&) { form.setSelected(form.getItems().empty() ? nullptr : form.getItems().back()); },
                false},
            {"addCommand", [](auto& form, auto& stage) { form.addCommand(&stage.no); }},
            {"setClipboard", [](auto& form, auto&) { form.setClipboard("Anna"); }, false},
            {"setSpellerLanguage", [](auto& form, auto& stage) { form.setSpellerLanguage(&stage.translator); }, false},
            {"setReadonly", [](auto& form, auto&) { form.setReadonly(true); }, false},
            {"down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }},
            {"clearCommands", [](auto& form, auto&) { form.clearCommands(); }, false},
        },
        tellForm));
