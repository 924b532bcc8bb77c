#include "EveryScreen.h"
#include "ListFixture.h"

#include <DisplayAPI/ExclusiveList.h>
#include <DisplayAPI/GuiRequestEvent.h>

#include <UApplication.h>

using namespace DisplayAPI;

namespace {

class ExclusiveListTest : public ListFixture { };

std::string tell(ExclusiveList& list)
{
    return list.widgetName() + std::to_string(list.getSelectedIndex()) + (list.isSelected(1) ? " B" : "");
}

}

INSTANTIATE_TEST_SUITE_P(ExclusiveList, EveryScreenTest,
    screenFamily<ExclusiveList>(
        [](Stage& stage) {
            auto list = std::make_unique<ExclusiveList>();
            list->addCommandListener(&stage.listener);
            for (const char* text : {"A", "B", "C"})
                list->append(stage.newRow(text));
            return list;
        },
        {
            {"setTitle", [](auto& list, auto& stage) { list.setTitle(stage.translation("Tone")); }},
            {"setSelectedIndex", [](auto& list, auto&) { list.setSelectedIndex(1); }, false},
            {"addCommand", [](auto& list, auto& stage) { list.addCommand(&stage.yes); }, false},
            {"removeCommand", [](auto& list, auto& stage) { list.removeCommand(&stage.yes); }, false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"removeAt", [](auto& list, auto& stage) { stage.takeBack(list.removeAt(1)); }},
        },
        tell));

TEST_F(ExclusiveListTest, OneRowIsSelectedWhateverTheUserLooksAt)
{
    ExclusiveList list;
    list.setTitle("Tone");
    EXPECT_EQ(tell(list), "ExclusiveList-1");
    fill(list, "ABC");
    show(list);
    EXPECT_TRUE(VantoUApplication::getCurrentApplication()->isFullScreen());
    EXPECT_EQ(screenField("caption"), "Tone:");
    EXPECT_EQ(glassLine(1), "(o) A                     v");
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "( ) B                     |");
    EXPECT_EQ(list.getSelected()->getText(), "A");
    press(UGlobal::KeyOk);
    EXPECT_EQ(glassLine(1), "(o) B                     |");
    EXPECT_EQ(tell(list), "ExclusiveList1 B");

    press(UGlobal::KeyDown);
    int index = -1;
    GuiRequestEvent get(&list, 12); // of the base, as the next
    get.intResult = &index;
    list.processGuiRequest(get);
    EXPECT_EQ(index, 1);
    GuiRequestEvent set(&list, 13);
    set.intParam1 = 0;
    list.processGuiRequest(set);
    EXPECT_EQ(tell(list), "ExclusiveList0");

    list.insertAt(new CountedItem("X"), 0);
    ListItem* a = list.getSelected();
    list.replace(a, new CountedItem("Y"));
    delete a;
    EXPECT_EQ(list.getSelected()->getText(), "Y");
    EXPECT_EQ(screenField("string0"), " Y");
}
