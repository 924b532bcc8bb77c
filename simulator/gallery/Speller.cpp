#include "Gallery.h"

#include <SpellerMEG.h>
#include <VantoTextEditMEG.h>

namespace {

using namespace Gallery;

const Exhibit writing("speller", R"(
    type 2
    shot keypad
    type 6
    advance 1s
    type 6
    advance 1s
    type 2
    press #
    shot upper
    press DOWN
    shot mode
    press OK
    shot numeric
    press DOWN
    press OK
    shot cursor
    press DOWN 2
    press OK
    press DOWN
    shot paste
    press OK
    shot pasted
    press UP
    shot copied
    type 5
    shot typed
    press OK
    press UP
    shot cancel
)",
    [](Stage& stage) { stage.add<SpellerMEG>()->setListener(stage.listener()); });

const Exhibit secretSpeller("speller-secret", R"(
    shot shown
    type 4
    shot typed
)",
    [](Stage& stage) {
        auto* speller = stage.add<SpellerMEG>();
        speller->getEditBox()->setEchoMode(VantoTextEditMEG::EchoAsterisks);
        speller->setText(text("secret"));
        speller->setListener(stage.listener());
    });

const Exhibit numberSpeller("speller-number", R"(
    type 0049#
    press DOWN 6
    shot pause
    press OK
    type 12
    shot steps
)",
    [](Stage& stage) {
        auto* speller = stage.add<SpellerMEG>();
        speller->getEditBox()->setNumberInput(true);
        speller->setCallRows(true);
        speller->setListener(stage.listener());
    });

}
