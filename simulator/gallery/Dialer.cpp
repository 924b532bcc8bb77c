#include "Gallery.h"

#include <PopupDialerMEG.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoTextEditMEG.h>

namespace {

using namespace Gallery;

PopupDialerMEG* addDialer(Stage& stage)
{
    stage.addScreen("4711           Example Ltd.", "3 missed calls");
    auto* dialer = stage.add<PopupDialerMEG>(stage.listener(), false);
    addRows(*dialer->listBox, {"Call?", "Redial?"});
    return dialer;
}

const Exhibit dialing("dialer", R"(
    shot begun
    type 0123456
    shot number
    press UP
    shot delete
    press OK
    shot deleted
    type 78901234567890123456
    shot long
    press LEFT 26
    shot empty
    press LEFT
)",
    [](Stage& stage) {
        PopupDialerMEG* dialer = addDialer(stage);
        dialer->setLine1PrefixText(text("Dial"));
        dialer->popupAsNotification();
    });

const Exhibit fixedText("dialer-label", R"(
    shot fixed
    press DOWN
    shot rows
    type 5
    shot typed
)",
    [](Stage& stage) {
        PopupDialerMEG* dialer = addDialer(stage);
        dialer->setText(text("Please dial"));
        dialer->setLine2Text(text("or choose a contact"));
        dialer->setLine1Icon1(14);
        dialer->showLabel();
        dialer->popupAsNotification();
    });

/// What the application does for the popup of a text field.
PopupDialerMEG* addTextField(Stage& stage, const std::string& label)
{
    auto* dialer = stage.add<PopupDialerMEG>(stage.listener(), false);
    dialer->setNumberInput(false);
    dialer->setTextEditMode(VantoTextEditMEG::Capitalised);
    dialer->setText(text(label));
    addRows(*dialer->listBox, {"OK?                     Abc", "Cancel?"});
    dialer->setModePromptVisible(true);
    dialer->popupAsNotification();
    return dialer;
}

const Exhibit textField("dialer-text", R"(
    shot begun
    type 266
    shot keypad
    advance 1s
    shot text
    press DOWN
    shot second
    press LEFT
    shot deleted
)",
    [](Stage& stage) { addTextField(stage, "Name"); });

const Exhibit passwordField("dialer-secret", R"(
    type 2233
    shot keypad
    advance 1s
    shot text
)",
    [](Stage& stage) { addTextField(stage, "PIN = ")->setEditEchoMode(1); });

}
