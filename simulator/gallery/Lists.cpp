#include "Gallery.h"

#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

namespace {

using namespace Gallery;

const Exhibit list("list", R"(
    shot first
    press DOWN
    shot second
    press DOWN
    shot third
    press OK
)",
    [](Stage& stage) {
        auto* widget = stage.add<VantoListBoxWithTitleMEG>();
        addRows(*widget->list(), {"Bob", "Carol", "Dave"});
        widget->list()->item(1)->setArrow(true);
        widget->list()->item(0)->setRightText(text("10:42"));
        widget->list()->item(1)->setRightText(text("11:05"));
        widget->list()->item(2)->setIcon(7);
        widget->list()->setListener(stage.listener());
    });

const Exhibit titledList("list-title", R"(
    shot first
    press DOWN
    shot second
)",
    [](Stage& stage) {
        auto* widget = stage.add<VantoListBoxWithTitleMEG>();
        widget->setTitle(text("Audio output"));
        addRows(*widget->list(), {"Speaker", "Headset", "Handset"});
        widget->list()->item(1)->setArrow(true);
    });

const Exhibit radioList("list-radio", R"(
    press DOWN
    press OK
    shot chosen
    press DOWN
    shot other
)",
    [](Stage& stage) {
        auto* widget = stage.add<RadioButtonListMEG>();
        addRows(*widget->list(), {"Speaker", "Headset", "Handset"});
    });

}
