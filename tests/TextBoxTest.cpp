#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/TextBox.h>

#include "TextBoxPrivate.h"
#include "TextBoxPrivate2Line.h"

#include <UApplication.h>

using namespace DisplayAPI;

namespace {

class TextBoxTest : public PhoneTest {
protected:
};

constexpr bool TwoLines = true;

std::function<std::unique_ptr<TextBox>(Stage&)> maker(bool twoLines)
{
    return [twoLines](Stage& stage) {
        auto box = std::make_unique<TextBox>(twoLines);
        box->addCommandListener(&stage.listener);
        box->setText("Press OK to start the call. Left goes back to where you came from.", false);
        return box;
    };
}

/// The titles are seen on the box with a title line alone, the fixed line on the other.
std::vector<Change<TextBox>> changesOf(bool twoLines)
{
    return {
        {"setText", [](auto& box, auto&) { box.setText("Help\nHold the key to hear more.", true); }},
        {"setTitle", [](auto& box, auto&) { box.setTitle("Help"); }, !twoLines},
        {"a translation", [](auto& box, auto& stage) { box.setTitle(stage.translation("help")); }, !twoLines},
        {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }, false},
        {"fixed line", [](auto& box, auto&) { box.setTopLineSlidableOffAndTruncationOn(true); }, twoLines},
        {"Right", [](auto&, auto& stage) { stage.press(UGlobal::KeyRight); }, false},
        {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }},
        {"clear", [](auto& box, auto&) { box.clear(); }, false},
        {"hide", [](auto& box, auto&) { box.hide(); }},
    };
}

std::string tell(TextBox& box)
{
    return box.getText() + " " + std::to_string(box.getSize()) + " " + std::to_string(box.getMaxSize());
}

}

INSTANTIATE_TEST_SUITE_P(TextBox, EveryScreenTest, screenFamily<TextBox>(maker(!TwoLines), changesOf(!TwoLines), tell));

INSTANTIATE_TEST_SUITE_P(
    TextBoxOfTwoLines, EveryScreenTest, screenFamily<TextBox>(maker(TwoLines), changesOf(TwoLines), tell));

TEST_F(TextBoxTest, TheTextIsReadBelowItsTitleOrOnBothLines)
{
    const std::string text = "Press OK to start the call. Left goes back.";
    TextBox titled(false);
    titled.setTitle("Help");
    titled.setText(text, false);
    show(titled);
    EXPECT_EQ(glassLine(0), "Help                       ");
    EXPECT_EQ(glassLine(1), "Press OK to start the     v");
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "call. Left goes back.     ^");
    titled.setTitle("");
    EXPECT_EQ(glassLine(0), "Press OK to start the      ");
    titled.setText("1\n2\n3\n4", true);
    EXPECT_EQ(glassLine(0), "1                          ") << "what was in view stays";
    press(UGlobal::KeyDown);
    press(UGlobal::KeyDown);
    titled.setTitle("Help");
    EXPECT_EQ(glassLine(1), "3                         |");
    press(UGlobal::KeyDown);
    titled.setTitle("");
    press(UGlobal::KeyUp);
    EXPECT_EQ(glassLine(0), "2                          ") << "the first press moves";

    TextBox plain(true);
    plain.setTitle("Help");
    plain.setText("Menu\n" + text, false);
    show(plain);
    EXPECT_EQ(glassLine(0), "Menu                       ");
    EXPECT_EQ(glassLine(1), "Press OK to start the     v");
    plain.setTopLineSlidableOffAndTruncationOn(true);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(0), "Menu                       ");
    EXPECT_EQ(glassLine(1), "call. Left goes back.     ^");
    press(UGlobal::KeyUp);
    plain.getPrivateImpl()->getWidget()->setStatusMessageAvailable(true);
    EXPECT_EQ(glassLine(1), "Press OK to start the     v") << "the fixed line gives way to a message";

    EXPECT_EQ(screenText(), "");
    EXPECT_EQ(plain.getPrivateImpl()->serialise(), lines({"object:", "name:Not Implemented", "end:"}));
}

TEST_F(TextBoxTest, SizesAreBytesAndStayWhatTheyAre)
{
    for (const bool twoLines : {false, true}) {
        TextBox box(twoLines);
        EXPECT_EQ(box.getSize(), 0);
        box.setText("\xC3\xA4\xE2\x82\xAC\n", false);
        TranslationInfo untouched("other", nullptr);
        box.setText(&untouched);
        box.clear();
        box.setMaxSize(3);
        EXPECT_EQ(box.getText(), "\xC3\xA4\xE2\x82\xAC\n");
        EXPECT_EQ(box.getSize(), 6);
        EXPECT_EQ(box.getMaxSize(), 100);
    }
}

TEST_F(TextBoxTest, RoadAndHardwareDecideWhichOneItIs)
{
    struct Case {
        int variant;
        bool twoLines;
        bool isPosted;
        bool hasTwoLines;
    };
    const Case table[] = {
        {0, false, false, false}, {0, true, false, true}, {0, false, true, false}, {0, true, true, true},
        {1, false, false, false}, {1, true, false, true}, {1, false, true, false}, {1, true, true, false},
        {2, true, true, true}, // any other
    };
    for (const Case& row : table) {
        SCOPED_TRACE(testing::Message() << "variant " << row.variant << ", " << row.twoLines << row.isPosted);
        VantoUApplication::getCurrentApplication()->setHardwareVariant(VantoUApplication::HardwareVariant{row.variant});
        std::unique_ptr<TextBox> box;
        const auto make = [&] { box = std::make_unique<TextBox>(row.twoLines); };
        if (row.isPosted)
            elsewhere(make);
        else
            make();
        EXPECT_EQ(dynamic_cast<TextBoxPrivate2Line*>(box->getPrivateImpl()) != nullptr, row.hasTwoLines);
        EXPECT_EQ(box->widgetName(), "TextBox");
    }
}

TEST_F(TextBoxTest, LeftIsToldOnceToEachListenerAndNothingElseIs)
{
    RecordingListener listener;
    RecordingListener gone;
    TextBox box(true);
    for (RecordingListener* each : {&gone, &listener, &listener})
        box.addCommandListener(each);
    box.addCommandListener(nullptr);
    box.removeCommandListener(&gone);
    show(box);
    changes.takeNotices();
    for (const int key : {UGlobal::KeyRight, UGlobal::KeyOk, UGlobal::KeyLeft, UGlobal::KeyLeft})
        press(key);
    EXPECT_EQ(listener.commands(2), (std::vector<Command*>(2, TextBox::BACK_COMMAND())));
    EXPECT_EQ(changes.takeNotices(), 2);
    EXPECT_EQ(gone.count(), 0u);
}

TEST_F(TextBoxTest, ATranslatedTitleFollowsTheLocale)
{
    TestTranslator translator;
    TextBox box(false);
    auto* title = new TranslationInfo("<", "help", ">", &translator);
    box.setTitle(title);
    show(box);
    EXPECT_EQ(glassLine(0).substr(0, 5), "help ") << "without prefix and suffix";
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(glassLine(0).substr(0, 8), "fr help ");
    box.setTitle(title);
    EXPECT_EQ(glassLine(0).substr(0, 8), "fr help ") << "the same again";
    box.setTitle(static_cast<TranslationInfo*>(nullptr));
    display->localeChanged("de");
    EXPECT_EQ(dynamic_cast<TextBoxPrivate&>(*box.getPrivateImpl()).getTitle(), "");
}

TEST_F(TextBoxTest, AHalfWithoutAHandleIsMadeWithItsTexts)
{
    TextBoxPrivate titled("Help", "text", 0, TextBox::PlainText);
    EXPECT_EQ(titled.getTitle() + titled.getText(), "Helptext");
    TextBoxPrivate2Line plain("Help", "text", 0, TextBox::PlainText);
    EXPECT_EQ(plain.getTitle() + plain.getText(), "text");
    EXPECT_EQ(plain.getParent(), nullptr);
}
