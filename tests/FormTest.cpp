#include "Deliveries.h"
#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "ScreenTextParser.h"
#include "TestTranslator.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/SelectionField.h>
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

/// An item of the application's own, which takes its form with it at a change of locale.
class FatalItem : public Item, public ItemPrivateIfc {
public:
    explicit FatalItem(std::unique_ptr<Form>& form)
        : mForm(form)
    {
    }

    void processGuiRequest(GuiRequestEvent&) override { }
    ItemPrivateIfc* getPrivateImpl() override { return this; }
    FormItemIfc* getWidget() override { return nullptr; }
    void releaseOwnership() override { }
    void localeChanged(std::string) override { mForm.reset(); }

private:
    std::unique_ptr<Form>& mForm;
};

class FormTest : public PhoneTest {
protected:
    FormTest()
    {
        form.addCommandListener(&listener);
        form.addItemStateListener(&listener);
    }

    /// The texts of the input are the process's: with the keys themselves the toolkit takes its own again.
    ~FormTest() override
    {
        endDeliveries();
        TestTranslator own;
        form.setSpellerLanguage(&own);
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

Item* firstOf(Form& form)
{
    const std::vector<Item*> items = form.getItems();
    return items.empty() ? nullptr : items.front();
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
            {"append again", [](auto& form, auto&) { form.append(firstOf(form)); }},
            {"removeItem", [](auto& form, auto& stage) { stage.takeBack(form.removeItem(0)); }},
            {"the death of an item", [](auto& form, auto& stage) { stage.takeBack(firstOf(form)); }},
            {"setSelected", [](auto& form, auto&) { form.setSelected(firstOf(form)); }, false},
            {"addCommand", [](auto& form, auto& stage) { form.addCommand(&stage.no); }},
            {"setClipboard", [](auto& form, auto&) { form.setClipboard("Anna"); }, false},
            {"setSpellerLanguage", [](auto& form, auto& stage) { form.setSpellerLanguage(&stage.translator); }, false},
            {"down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }},
            {"clearCommands", [](auto& form, auto&) { form.clearCommands(); }, false},
        },
        tellForm));

TEST_F(FormTest, ANameWithAnUmlautIsTypedAndSaved)
{
    TextField* name = newField("Name", "");
    form.setTitle("Settings");
    form.append(name);
    form.addCommand(&dial);
    show(form);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "caption:Settings", "subitem:", "name:FormItem", "string0:Name",
            "string1:  ", "icon3:NavigationArrowDown", "endsubitem:", "end:"}));
    press(UGlobal::KeyOk);
    press('5');
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "caption:J", "subitem:", "name: VantoTextEditMEG", "string0:JKL5",
            "endsubitem:", "end:"}));
    tap('6', 5);
    tap('7', 3);
    tap('4', 1);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "caption:J\xC3\xB6rg", "subitem:", "name:VantoListBoxItem", "string0:OK?",
            "endsubitem:", "end:"}));
    press(UGlobal::KeyOk);
    EXPECT_EQ(name->getString(), "J\xC3\xB6rg");
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "caption:Settings", "subitem:", "name:FormItem", "string0:Dial",
            "string1:  ", "icon3:NavigationArrowUp", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0).substr(0, 9), "Settings ");
    press(UGlobal::KeyOk);
    auto gone = std::make_unique<MenuCommand>("Gone", 2);
    form.addCommand(gone.get());
    gone.reset();
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    EXPECT_EQ(form.getCommands(), std::vector<Command*>{&dial});
    name->setInformAppOnOk(true);
    form.setSelected(name);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyLeft);
    EXPECT_EQ(listener.told(5),
        (std::vector<const void*>{name, Form::SAVE_COMMAND(), &dial, Form::OK_COMMAND(), Form::BACK_COMMAND()}));
}

TEST_F(FormTest, APasswordIsHiddenWhereverItIsTyped)
{
    TextField* pin = newField("PIN", "", TextField::Password);
    form.append(pin);
    show(form);
    press(UGlobal::KeyOk);
    for (const auto& [key, times] : {std::pair('4', 1), {'3', 2}, {'4', 2}, {'3', 2}, {'4', 3}, {'6', 1}}) {
        tap(key, times);
        EXPECT_EQ(screenField("caption").find_first_not_of('*'), std::string::npos);
    }
    EXPECT_EQ(screenField("caption"), "******");
    press(UGlobal::KeyOk);
    EXPECT_EQ(screenField("string1"), " ****** ");
    EXPECT_EQ(pin->getString(), ScreenTextParser::Password);
    pin->setReadOnlyMode(true);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "subitem:", "name:FormItem", "string0:[PIN", "string1: ******] ",
            "endsubitem:", "end:"}));
}

TEST_F(FormTest, ATextIsCopiedIntoAnother)
{
    TextField* other = newField("Other", "");
    form.append(newField("Name", "Anna"));
    form.append(other);
    translator.words = {{"Speller.menu.Copy", "Kopieren"}, {"Speller.menu.Paste", "Einsetzen"}};
    form.setSpellerLanguage(&translator);
    form.getPrivateImpl()->removeCommandListener(&listener);
    form.getPrivateImpl()->clearCommandListeners();
    show(form);
    for (const auto& [row, downs] : {std::pair("Kopieren?", 4), {"Einsetzen?", 5}}) {
        press(UGlobal::KeyOk);
        for (int i = 0; i < downs; ++i)
            press(UGlobal::KeyDown);
        EXPECT_EQ(screenField("string0"), row);
        press(UGlobal::KeyOk);
        for (int i = 0; i < downs; ++i)
            press(UGlobal::KeyUp);
        press(UGlobal::KeyOk);
        press(UGlobal::KeyDown);
    }
    EXPECT_EQ(form.getClipboard() + other->getString(), "AnnaAnna");
    EXPECT_EQ(listener.commands(3),
        (std::vector<Command*>{Form::CLIPBOARD_CHANGED_COMMAND(), Form::SAVE_COMMAND(), Form::SAVE_COMMAND()}));
}

TEST_F(FormTest, AnOpenListIsWrittenInThePlaceOfItsRow)
{
    show(form);
    EXPECT_EQ(screenText(), lines({"object:", "name:FormWidget", "end:"}));
    MenuCommand speaker("Speaker", 1);
    auto* output = new SelectionField(new TranslationInfo("Output", &translator), &speaker, &form, true);
    output->appendSelection(&dial);
    form.setFormOptions(output);
    form.setTitle("Output");
    output->setReadOnlyMode(true);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "caption:Output", "subitem:", "name:FormItem", "string0:[",
            "string1: Speaker] ", "endsubitem:", "end:"}));
    output->setReadOnlyMode(false);
    press(UGlobal::KeyOk);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "caption:Output", "subitem:", "name:VantoListBoxItem", "string0:Dial",
            "endsubitem:", "end:", "end:"}));
    press(UGlobal::KeyOk);
    EXPECT_EQ(screenField("string1"), " Dial ");
    EXPECT_EQ(listener.told(3),
        (std::vector<const void*>{Form::SELECTION_DISPLAY_COMMAND(), output, Form::SELECTION_CHANGED_COMMAND()}));
}

TEST_F(FormTest, RowsItemsAndPairsHaveEachTheirOwnOrder)
{
    TextField* b = newField("b", "");
    form.append(newField("a", ""));
    form.addCommand(&dial);
    form.append(b);
    form.insertItem(newField("c", ""), 3);
    form.insertItem(newField("d", ""), -1);
    form.append(b);
    EXPECT_EQ(rows(), "a b b Dial c d ");
    EXPECT_EQ(items(), "a b c d ");
    EXPECT_EQ(form.removeItem(4), nullptr);
    EXPECT_EQ(form.removeItem(1), b);
    EXPECT_EQ(rows(), "a Dial c d ");
    EXPECT_EQ(items(), "a c d ");

    Form other(Form::Proportion0);
    show(form);
    other.append(b);
    form.append(b);
    EXPECT_EQ(b->getParent(), &other);
    changes.onNextNotice = [&] { other.append(form.getItems()[0]); };
    EXPECT_EQ(form.removeItem(0), nullptr);
    EXPECT_EQ(rows() + items(), "Dial c d c d ");
    EXPECT_EQ(other.getItems().size(), 2U);
    delete form.getItems()[0];
    form.clearCommands();
    EXPECT_EQ(rows() + items(), "d d ");
}

TEST_F(FormTest, AnItemMayTakeItsFormWithItAtAChangeOfLocale)
{
    auto mortal = std::make_unique<Form>(Form::Proportion0);
    mortal->setTitle(new TranslationInfo("Settings", &translator));
    mortal->append(new FatalItem(mortal));
    mortal->append(newField("Name:", ""));
    display->localeChanged("de");
    EXPECT_FALSE(mortal);
}

TEST_F(FormTest, AnItemMayTakeItsFormWithItOnItsWayInAndOut)
{
    struct Leaver : TextField {
        explicit Leaver(std::unique_ptr<Form>& form)
            : TextField(nullptr, IconImage(), nullptr, AnyText, false)
            , mine(form)
        {
        }
        void setParent(Displayable* parent) override
        {
            TextField::setParent(parent);
            if (isFatal)
                mine.reset();
        }

        std::unique_ptr<Form>& mine;
        bool isFatal = true;
    };
    auto mortal = std::make_unique<Form>(Form::Proportion0);
    mortal->append(new Leaver(mortal));
    EXPECT_FALSE(mortal);

    mortal = std::make_unique<Form>(Form::Proportion0);
    auto* leaver = new Leaver(mortal);
    leaver->isFatal = false;
    mortal->append(leaver);
    leaver->isFatal = true;
    EXPECT_EQ(mortal->removeItem(0), nullptr);
    EXPECT_FALSE(mortal);
}

TEST_F(FormTest, OnlyATranslatedTitleComesBackWithTheTextsOfTheInput)
{
    form.setSpellerLanguage(&translator);
    translator.prefix = "de:";
    display->localeChanged("de");
    EXPECT_EQ(SpellerMEG::msOK.toUTF8(), "Speller.menu.OK?");
    form.setTitle(new TranslationInfo("", "title", "", &translator));
    form.setTitle("plain");
    translator.prefix = "fr:";
    display->localeChanged("fr");
    EXPECT_EQ(form.title(), "fr:title");
    EXPECT_EQ(SpellerMEG::msOK.toUTF8(), "fr:Speller.menu.OK?");
    EXPECT_EQ(VantoTextEditMEG::msKeypad9upperRestricted.toUTF8(), "fr:Keypad.9.restricted.upper.case?");
    EXPECT_EQ(VantoTextEditMEG::msTextInputModeNumeric.toUTF8(), "fr:Text.input.mode.numeric");
}

TEST(FormWithoutAnApplicationTest, AFormHasNoWidget)
{
    if (VantoUApplication::getCurrentApplication())
        GTEST_SKIP() << "another test has made one";
    Form form(Form::Proportion0);
    TextField* field = newField("Name", "Anna");
    form.setTitle("Settings");
    form.append(field);
    EXPECT_EQ(form.getPrivateImpl()->serialise(), lines({"object:", "name:FormWidget", "end:"}));
    EXPECT_EQ(form.title() + form.getClipboard() + field->getString(), "Anna");
    EXPECT_EQ(form.getSelected(), nullptr);
}
