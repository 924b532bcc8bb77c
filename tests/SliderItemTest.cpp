#include "Deliveries.h"
#include "EveryScreen.h"
#include "FormHolder.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/SliderItem.h>

#include <UApplication.h>

using namespace DisplayAPI;

namespace {

class SliderItemTest : public PhoneTest {
protected:
    ~SliderItemTest() override { endLoop(); } // which waits for the listener

    TestTranslator translator;
    RecordingListener listener;
    Form form{Form::Proportion0};
    SliderItem& slider = *new SliderItem(new TranslationInfo("<", "Volume", ">", &translator)); // the form's
};

std::string tell(SliderItem& slider)
{
    return slider.getMinValue() + "|" + slider.getValue() + "|" + slider.getMaxValue()
        + (slider.isReadOnly() ? "|read-only" : "|") + (slider.isEditable() ? "|edited" : "|");
}

}

INSTANTIATE_TEST_SUITE_P(SliderItem, EveryRowTest,
    rowFamily(
        formHolder<SliderItem>(),
        [](Stage& stage) { return std::make_unique<SliderItem>(stage.translation("volume")); },
        {
            {"setMinValue", [](auto& slider, auto&) { slider.setMinValue("2"); }},
            {"setMaxValue", [](auto& slider, auto&) { slider.setMaxValue("20"); }},
            {"setInterval", [](auto& slider, auto&) { slider.setInterval("3"); }},
            {"setValue", [](auto& slider, auto&) { slider.setValue("7"); }},
            {"setRingerVolumeBarLimit", [](auto& slider, auto&) { slider.setRingerVolumeBarLimit(3); }},
            {"setLabel", [](auto& slider, auto&) { slider.setLabel("Ringer"); }},
            {"its translation", [](auto& slider, auto& stage) { slider.setLabel(stage.translation("ringer")); }},
            {"setReadOnly", [](auto& slider, auto&) { slider.setReadOnly(true); }},
            {"localeChanged", [](auto& slider, auto&) { slider.localeChanged("fr"); }},
        },
        tell));

TEST_F(SliderItemTest, OfEachNumberTheLow16BitsAreTaken)
{
    const std::pair<const char*, const char*> numbers[] = {{"0", "0"}, {"100", "100"}, {"65535", "65535"},
        {"65536", "0"}, {"70000", "4464"}, {"-1", "65535"}, {"-65535", "1"}, {" +12 steps", "12"}, {"0x10", "0"},
        {"loud", "0"}, {"", "0"}, {"99999999999999999999", "65535"}};
    form.append(&slider);
    for (const auto& [given, taken] : numbers) {
        slider.setMinValue(given);
        slider.setMaxValue(given);
        slider.setValue(given);
        EXPECT_EQ(tell(slider), std::string(taken) + "|" + taken + "|" + taken + "||") << given;
    }
}

TEST_F(SliderItemTest, TheKeysMoveTheValueBetweenTheLimits)
{
    form.addItemStateListener(&listener);
    form.append(&slider);
    slider.setMaxValue("10");
    slider.setInterval("4");
    slider.setValue("7");
    show(form);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:FormWidget", "subitem:", "name:FormSliderItem", "string0:<Volume>", "string1:0",
            "string2:7 ", "string3:10", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0).substr(0, 8), "<Volume>");
    EXPECT_TRUE(glassLine(1).starts_with("0 ") && glassLine(1).ends_with(" 10")) << glassLine(1);

    press(UGlobal::KeyOk);
    EXPECT_EQ(tell(slider), "0|7|10||edited");
    press(UGlobal::KeyRight);
    EXPECT_EQ(slider.getValue(), "10");
    EXPECT_EQ(listener.told(1), std::vector<const void*>{&slider});
    for (const int key : {UGlobal::KeyUp, UGlobal::KeyLeft, UGlobal::KeyLeft, UGlobal::KeyLeft})
        press(key);
    press(UGlobal::KeyOk);
    EXPECT_EQ(tell(slider), "0|0|10||");
    press(UGlobal::KeyOk);
    slider.setReadOnly(true);
    for (const int key : {UGlobal::KeyRight, UGlobal::KeyOk})
        press(key);
    EXPECT_EQ(tell(slider), "0|0|10|read-only|") << "not even by a user who had begun";
    EXPECT_EQ(screenField("string0"), "[<Volume>");
    endDeliveries();
}

TEST_F(SliderItemTest, TheLabelFollowsTheLocaleWithoutAFormToo)
{
    translator.prefix = "fr ";
    display->localeChanged("fr");
    form.append(&slider);
    show(form);
    EXPECT_EQ(screenField("string0"), "<fr Volume>");
    slider.setLabel("Ringer");
    display->localeChanged("de");
    EXPECT_EQ(screenField("string0"), "Ringer") << "a literal label stays";
    EXPECT_STREQ(slider.getType(), "baseItem");
    EXPECT_EQ(slider.getID(), 0U);
}

TEST_F(SliderItemTest, WithoutAnApplicationThereIsNoRow)
{
    endDisplay();
    VantoUApplication::endCurrent();
    SliderItem bare(new TranslationInfo("", "Volume", "", &translator));
    bare.setMinValue("3");
    bare.setMaxValue("9");
    bare.setValue("5");
    bare.setInterval("2");
    bare.setRingerVolumeBarLimit(4);
    bare.setLabel("Ringer");
    bare.setReadOnly(true);
    EXPECT_EQ(tell(bare), "0||0||");
    makeDisplay();
    form.append(&slider);
    form.append(&bare);
    EXPECT_EQ(form.removeItem(1), &bare);
}
