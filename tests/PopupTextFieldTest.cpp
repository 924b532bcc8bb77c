#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupDialer.h>
#include <DisplayAPI/PopupTextField.h>

#include "PopupTextFieldPrivate.h"

#include <cstddef>

using namespace DisplayAPI;

namespace {

class PopupTextFieldTest : public PhoneTest {
protected:
    ~PopupTextFieldTest() override
    {
        display->setTranslator(nullptr);
        endLoop(); // which waits for the listener
    }
    TranslationInfo* text(const char* key) { return new TranslationInfo("", key, "", &translator); }
    std::unique_ptr<TextField> makeField(const char* label, TextField::FieldType type = TextField::AnyText)
    {
        return std::make_unique<TextField>(text(label), TextField::IconImage(), nullptr, type, true);
    }

    TestTranslator translator;
    RecordingListener listener;
    MenuCommand ok{"OK?", 1}, cancel{"Cancel?", 2};
    std::unique_ptr<TextField> field = makeField("Name");
};

std::unique_ptr<PopupTextField> makePopup(Stage& stage)
{
    auto popup = std::make_unique<PopupTextField>(stage.newField("Name"), true);
    popup->addCommand(&stage.yes);
    popup->addCommand(&stage.no);
    popup->addCommandListener(&stage.listener);
    // As after a change of locale, which brings the name of the mode.
    if (stage.hasLoop)
        callOnGui([&] { dynamic_cast<PopupTextFieldPrivate&>(*popup->getPrivateImpl()).localeChanged(""); });
    return popup;
}

}

INSTANTIATE_TEST_SUITE_P(PopupTextField, EveryScreenTest,
    screenFamily<PopupTextField>(makePopup,
        {
            {"a letter", [](auto&, auto& stage) { stage.press('2'); }},
            {"hash", [](auto&, auto& stage) { stage.press('#'); }, false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }, false},
            {"setLabel", [](auto& popup, auto& stage) { popup.setLabel(stage.translation("Surname")); }, false},
            {"setFieldType", [](auto& popup, auto&) { popup.setFieldType(TextField::Password); }, false},
            {"a mode", [](auto& popup, auto&) { popup.setTextEditMode(PopupTextFieldPrivateIfc::Numeric); }, false},
            {"setDefaultCommand", [](auto& popup, auto& stage) { popup.setDefaultCommand(&stage.last); }},
            {"a listener leaves", [](auto& popup, auto& stage) { popup.removeCommandListener(&stage.listener); }},
            {"clearCommands", [](auto& popup, auto&) { popup.clearCommands(); }},
            {"dismiss", [](auto& popup, auto&) { popup.dismiss(); }},
        },
        [](PopupTextField& popup) { return popup.getText() + std::to_string(popup.getTextEditMode()); }));

TEST_F(PopupTextFieldTest, TheFirstChoiceEndsInTheNameOfTheMode)
{
    PopupTextField popup(field.get(), true);
    popup.addCommand(&ok);
    popup.addCommand(&cancel);
    show(popup);
    type("2");
    EXPECT_EQ(screenText(), lines({"object:", "name:PopupTextField", "string0:A", "string1:ABC2ÄÀÁÂÃÅÆÇ", "end:"}));
    advance(1000);
    EXPECT_EQ(screenText(), lines({"object:", "name:PopupTextField", "string0:A", "end:"})) << "without a translator";
    display->setTranslator(&translator);
    popup.dismiss();
    show(popup);
    EXPECT_EQ(screenField("string0") + screenField("string1"), "OK?                       Abc");
    type("#");
    EXPECT_EQ(screenField("string1"), "OK?                       ABC");
    for (const std::size_t width : {26U, 19U}) { // the second on a narrow glass
        HardwareVersion::setAll({.isRX40 = width == 19});
        MenuCommand longest(std::string(width, 'x'), 1);
        popup.clearCommands();
        popup.addCommand(&longest);
        EXPECT_EQ(screenField("string1"), longest.getText() + "ABC") << "no room for a blank";
    }
}

TEST_F(PopupTextFieldTest, TheLabelOfAPasswordLosesItsSign)
{
    const std::pair<const char*, const char*> labels[]
        = {{"PIN = ", "PIN"}, {" = ", ""}, {"= ", "= "}, {"PIN =", "PIN ="}};
    for (const auto& [label, shown] : labels) {
        const auto secret = makeField(label, TextField::Password);
        PopupTextField popup(secret.get(), true);
        const auto& widget = dynamic_cast<PopupDialerMEG&>(*popup.getPrivateImpl()->getWidget());
        display->localeChanged("fr");
        EXPECT_EQ(widget.getText().toUTF8(), shown) << label;
        show(popup);
        type("2");
        EXPECT_EQ(screenField("string0"), "*") << label;
    }
}

TEST_F(PopupTextFieldTest, APasswordIsNeverWrittenInClear)
{
    const std::pair<const char*, std::function<void(PopupTextField & popup)>> ways[] = {
        {"by the popup", [](auto& popup) { popup.setFieldType(TextField::Password); }},
        {"no more",
            [this](auto&) {
                field->setFieldType(TextField::Password);
                field->setFieldType(TextField::AnyText);
            }},
        {"of a field that has died in its form",
            [this](auto&) {
                Form form(Form::Proportion0);
                form.append(field.get());
                field.release()->setFieldType(TextField::Password);
            }},
    };
    for (const auto& [name, change] : ways) {
        field = makeField("PIN");
        PopupTextField popup(field.get(), true);
        show(popup);
        change(popup);
        popup.setTextEditMode(PopupTextFieldPrivateIfc::Numeric);
        type("1234");
        EXPECT_EQ(screenField("string0"), "****") << name;
    }
}

TEST_F(PopupTextFieldTest, WhatTheUserDoesIsToldInOrder)
{
    PopupTextField popup(field.get(), true);
    popup.addCommandListener(&listener);
    popup.addItemStateListener(&listener);
    popup.removeItemStateListener(&listener);
    popup.getPrivateImpl()->clearCommandListeners();
    popup.addCommand(&ok);
    popup.setDefaultCommand(&cancel);
    show(popup);
    const TextField* changed = field.get();
    type("2");
    listener.told(1);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyLeft);
    press(UGlobal::KeyLeft);
    listener.told(4);
    field.reset();
    type("3"); // of a field that has died nothing is told
    popup.setTimeout(5000);
    advance(5000);
    const std::vector<const void*> all{
        changed, &cancel, changed, PopupDialer::BackCommand(), PopupConfirm::HIDDEN_COMMAND()};
    EXPECT_EQ(listener.told(all.size()), all);
}

TEST_F(PopupTextFieldTest, ADeadCommandGetsNoRowAndPostsNothing)
{
    alignas(MenuCommand) std::byte memory[sizeof(MenuCommand)];
    auto* gone = new (memory) MenuCommand("Gone?", 5);
    PopupTextField popup(nullptr, true);
    popup.addCommandListener(&listener);
    popup.addCommand(&ok);
    popup.setDefaultCommand(gone);
    std::destroy_at(gone);
    popup.addCommand(gone);
    show(popup);
    auto* other = new (memory) MenuCommand("Other?", 6);
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string1"), "Gone?");
    for (const int key : {UGlobal::KeyOk, UGlobal::KeyDown, UGlobal::KeyOk})
        press(key);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{&ok});
    std::destroy_at(other);
}

TEST_F(PopupTextFieldTest, AFieldMayTakeItsPopupWithItAtAChangeOfLocale)
{
    struct FatalField : TextField {
        explicit FatalField(std::unique_ptr<PopupTextField>& popup)
            : TextField(nullptr, IconImage(), nullptr, AnyText, true)
            , mine(popup)
        {
        }
        void localeChanged(std::string) override { mine.reset(); }

        std::unique_ptr<PopupTextField>& mine;
    };
    std::unique_ptr<PopupTextField> popup;
    FatalField fatal(popup);
    popup = std::make_unique<PopupTextField>(&fatal, true);
    display->localeChanged("de");
    EXPECT_FALSE(popup);
}

TEST_F(PopupTextFieldTest, AChangeOfLocaleReadsLabelAndChoicesAgain)
{
    MenuCommand translated(text("Done"), 3);
    PopupTextField popup(field.get(), true);
    popup.setLabel(new TranslationInfo("<", "Surname", ">", &translator));
    popup.addCommand(&translated);
    show(popup);
    EXPECT_EQ(glassLine(0).substr(0, 9), "Surname: ") << "without what stands around it";
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(glassLine(0).substr(0, 14), "<fr Surname>: ");
    EXPECT_EQ(glassLine(1), "fr Done                 Abc");
}
