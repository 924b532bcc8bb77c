#include "Gallery.h"

#include <ContextMenuMEG.h>
#include <PopupProgressActualMEG.h>
#include <VantoListBoxMEG.h>

namespace {

using namespace Gallery;

constexpr std::uint16_t Headset = 90;

/// A menu over the idle screen, with two commands and the way back.
ContextMenuMEG* addMenu(Stage& stage)
{
    stage.addScreen("4711           Example Ltd.", "3 missed calls");
    auto* menu = stage.add<ContextMenuMEG>(nullptr, true, 1, "Back");
    menu->addCommand("Take headset?", 2, false, false, Headset);
    menu->addCommand("Hold?", 3, false, false, 0);
    menu->setHeadSetStatus(true);
    menu->listBox->setListener(stage.listener());
    return menu;
}

const Exhibit below("menu", R"(
    shot first
    press DOWN
    shot second
    press DOWN
    shot back
    press LEFT
)",
    [](Stage& stage) { addMenu(stage)->slideIn(); });

const Exhibit over("menu-over", R"(
    shot first
    press DOWN
    shot second
    press DOWN
    shot back
)",
    [](Stage& stage) {
        ContextMenuMEG* menu = addMenu(stage);
        menu->setHeight(2);
        menu->slideIn();
    });

const Exhibit withoutRule("menu-plain", R"(
    shot shown
)",
    [](Stage& stage) {
        ContextMenuMEG* menu = addMenu(stage);
        menu->setDrawLineAtTop(false);
        menu->slideIn();
    });

PopupProgressActualMEG* addProgress(Stage& stage, const std::string& caption, unsigned short icon)
{
    auto* popup = stage.add<PopupProgressActualMEG>(PopupProgressActualMEG::ProgressType{4});
    popup->setText(text(caption));
    popup->setIcon(icon);
    popup->popupAsNotification();
    return popup;
}

const Exhibit progress("progress", R"(
    shot stage
    advance 3s
    shot activity
    press OK
    press LEFT
)",
    [](Stage& stage) {
        PopupProgressActualMEG* popup = addProgress(stage, "Fetching settings", 64);
        popup->setStatusText1(text("Stage 2/4"));
        popup->setStatusText2(text("Ring tones and more"));
        popup->setProgress(40);
    });

const Exhibit progressAlone(
    "progress-bar", "shot shown", [](Stage& stage) { addProgress(stage, "Mobile user", 83)->setProgress(75); });

const Exhibit progressWithoutBar("progress-text", "shot shown",
    [](Stage& stage) { addProgress(stage, "Fetching settings", 64)->setStatusText1(text("Looking for the server")); });

}
