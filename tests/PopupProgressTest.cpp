#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/PopupProgress.h>

using namespace DisplayAPI;

namespace {

class PopupProgressTest : public PhoneTest {
protected:
};

}

INSTANTIATE_TEST_SUITE_P(PopupProgress, EveryScreenTest,
    screenFamily<PopupProgress>([](Stage&) { return std::make_unique<PopupProgress>(); },
        {
            {"setText", [](auto& popup, auto&) { popup.setText("Fetching"); }},
            {"a translation", [](auto& popup, auto& stage) { popup.setText(stage.translation("work")); }},
            {"stage", [](auto& popup, auto&) { popup.setCurrentStageText("Stage 1/4"); }},
            {"its translation",
                [](auto& popup, auto& stage) { popup.setCurrentStageText(stage.translation("stage")); }},
            {"activity", [](auto& popup, auto& stage) { popup.setCurrentActivityText(stage.translation("copy")); }},
            {"setType", [](auto& popup, auto&) { popup.setType(PopupProgress::INFO); }, false},
            {"updateProgressBar", [](auto& popup, auto&) { popup.updateProgressBar(40); }, false},
            {"a key", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }, false},
            {"dismiss", [](auto& popup, auto&) { popup.dismiss(); }},
        }));

TEST_F(PopupProgressTest, TheEmptyLineStandsBeforeTheStatusLines)
{
    PopupProgress popup;
    popup.setText("Fetching settings");
    show(popup);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupProgress", "icon:None", "caption:Fetching settings", "string0: ", "end:"}));
    popup.setCurrentActivityText("address book");
    popup.setCurrentStageText("Stage 2/4");
    popup.setType(PopupProgress::MOBILE_USER_FETCHING);
    popup.updateProgressBar(50);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupProgress", "icon:Mobile User Fetching", "caption:Fetching settings",
            "string0: ", "string0:Stage 2/4", "string1:address book", "end:"}));
    EXPECT_NE(glassLine(0).find("Fetching settings"), std::string::npos);
    EXPECT_NE(glassLine(1).find("Stage 2/4"), std::string::npos);
}

TEST_F(PopupProgressTest, EachTypeHasItsIconAndItsWord)
{
    struct Case {
        int type;
        std::uint16_t icon;
        const char* word;
    };
    PopupProgress popup(PopupProgress::ProgressType{7});
    popup.setText("text");
    show(popup);
    for (const Case& row : std::initializer_list<Case>{{1, 21, "Info"}, {2, 0, "None"}, {4, 64, "None"},
             {5, 83, "Mobile User Fetching"}, {6, 82, "Mobile User Failed"}, {-1, 0, "None"}}) {
        popup.setType(static_cast<PopupProgress::InfoType>(row.type));
        EXPECT_EQ(screenField("icon"), row.word) << "type " << row.type;
        const bool hasAnIcon = glassLine(0).substr(0, 4) != "text";
        EXPECT_EQ(hasAnIcon, row.icon != 0) << "type " << row.type;
        EXPECT_TRUE(row.icon == 0 || hasIcon(0, 0, row.icon)) << "type " << row.type;
    }
}

TEST_F(PopupProgressTest, AChangeOfLocaleReadsTheTranslationsAgain)
{
    TestTranslator translator;
    PopupProgress popup;
    popup.setText(new TranslationInfo("", "text", "!", &translator));
    popup.setCurrentStageText(new TranslationInfo("", "stage", "", &translator));
    popup.setCurrentActivityText("literal");
    show(popup);
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupProgress", "icon:None", "caption:fr text!", "string0: ", "string0:fr stage",
            "string1:literal", "end:"}));
}
