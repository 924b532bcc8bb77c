#include "Gallery.h"

#include <DetailsWithCommandListMEG.h>
#include <VantoListBoxItemMEG.h>
#include <VantoTextBoxMEG.h>

namespace {

using namespace Gallery;

constexpr const char* Help = "Press OK to start the call. Left goes back.\nHold a key to dial its number.";

const Exhibit textBox("text-box", R"(
    shot top
    press DOWN
    shot below
    press DOWN
    press DOWN
    press DOWN
    shot end
    press LEFT
)",
    [](Stage& stage) {
        auto* box = stage.add<VantoTextBoxWithTitleMEG>();
        box->setTitle(text("Help"));
        box->textBox()->setText(text(Help), false);
        box->textBox()->setListener(stage.listener());
    });

const Exhibit twoLines("text-box-two-lines", R"(
    shot top
    press DOWN
    shot below
)",
    [](Stage& stage) { stage.add<VantoTextBox2LineMEG>()->setText(text(Help), false); });

const Exhibit fixedLine("text-box-fixed-line", R"(
    shot top
    press DOWN
    shot below
)",
    [](Stage& stage) {
        auto* box = stage.add<VantoTextBox2LineMEG>();
        box->setText(text(Help), false);
        box->setTopLineSlidableOffAndTruncationOn(true);
    });

const Exhibit details("details", R"(
    shot call
    press DOWN
    shot edit
    press LEFT
    press OK
)",
    [](Stage& stage) {
        auto* screen = stage.add<DetailsWithCommandListMEG>(nullptr);
        screen->setListener(stage.listener());
        screen->setHeaderText("Bob 4712");
        for (const char* command : {"Call", "Edit"}) {
            auto* row = new VantoListBoxItemMEG(text(command), 0, false);
            row->setArrow(true);
            screen->addListItem(row);
        }
    });

}
