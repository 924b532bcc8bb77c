#include "Gallery.h"

#include <PopupCallMEG.h>
#include <PopupNotificationMEG.h>
#include <VantoListBoxMEG.h>

namespace {

using namespace Gallery;

const Exhibit notification("notification", R"(
    shot one
    advance 3s
    shot gone
)",
    [](Stage& stage) {
        stage.addScreen("4711           Example Ltd.", "3 missed calls");
        auto* popup = stage.add<PopupNotificationMEG>();
        popup->setText(text("Settings saved"));
        popup->setLine1Icon1(21);
        popup->setTimeout(2000);
        popup->popupAsNotification();
    });

const Exhibit twoLineNotification("notification-two-lines", R"(
    shot shown
)",
    [](Stage& stage) {
        auto* popup = stage.add<PopupNotificationMEG>();
        popup->setText(text("Update failed"));
        popup->setLine2Text(text("Try again later"));
        popup->setLine1Icon1(16);
        popup->popupAsNotification();
    });

const Exhibit question("dialog", R"(
    shot no
    press DOWN
    shot yes
    press OK
)",
    [](Stage& stage) {
        auto* popup = stage.add<PopupDialogMEG>();
        popup->setText(text("Delete entry?"));
        popup->setLine2Text(text("Bob"));
        popup->setLine1Icon1(19);
        popup->setDownArrowDisplayable(true);
        addRows(*popup->listBox, {"No?", "Yes?"});
        popup->setListener(stage.listener());
        popup->popupAsCall();
    });

const Exhibit incoming("popup-call", R"(
    shot ringing
    press DOWN
    shot choice
)",
    [](Stage& stage) {
        auto* popup = stage.add<PopupCallMEG>();
        popup->setLine1TextNN(text("Bob"), text("4712"));
        popup->setLine1Icon1(14);
        popup->setListScrollable(true);
        popup->setDownArrowDisplayable(true);
        addRows(*popup->listBox, {"Accept?", "Deflect?", "Reject?"});
        popup->popupAsCall();
    });

}
