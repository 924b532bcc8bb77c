#include "Gallery.h"

#include <ContextMenuMEG.h>
#include <DesktopMEG.h>
#include <IdleDisplayMEG.h>

namespace {

using namespace Gallery;

IdleDisplayMEG* addIdleDisplay(Stage& stage)
{
    auto* idle = stage.add<IdleDisplayMEG>(text(""), true);
    idle->setListener(stage.listener());
    idle->setCurrentPhoneNumber(text("4711"));
    idle->setLogoText(text("Example Ltd."));
    return idle;
}

const Exhibit resting("idle", R"(
    shot resting
    press OK
    shot menu
    press DOWN
    shot second-row
    press OK
    shot out-again
    press 5
)",
    [](Stage& stage) {
        IdleDisplayMEG* idle = addIdleDisplay(stage);
        idle->setMissedCalls(3);
        for (const char* command : {"Do not disturb?", "Forwarding?"})
            idle->getContextMenu()->addCommand(command, 0, false, false, 0);
    });

const Exhibit idleNotes("idle-notes", R"(
    shot first
    advance 3s
    shot rest-of-it
    advance 3s
    shot calls
)",
    [](Stage& stage) {
        IdleDisplayMEG* idle = addIdleDisplay(stage);
        idle->setForwardingAddress(text("0987654"));
        idle->addSystemMessage(text("Maintenance tonight from ten to eleven"));
        idle->setMissedCalls(1);
        idle->setCallBack(true);
        idle->displayMobileUserIcon(true);
    });

const Exhibit idleEmergency("idle-emergency", R"(
    shot shown
    advance 3s
    shot still-there
)",
    [](Stage& stage) {
        IdleDisplayMEG* idle = addIdleDisplay(stage);
        idle->setMissedCalls(3);
        idle->setEmergencyText(text("Emergency calls only"));
    });

void fill(DesktopMEG& desktop)
{
    desktop.setTime(10, 42, 0);
    desktop.setDate(2, 3, 2026);
    desktop.setDayLabels({"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"});
    desktop.setDesktopString("4711");
    desktop.setLogoText(text("Example Ltd."));
    desktop.setKeyLockIcon(true);
    desktop.setDNDIcon(true);
    desktop.setStrength(true, 75);
}

const Exhibit day("desktop", R"(
    shot morning
    advance 50400s
    shot next-day
)",
    [](Stage& stage) { fill(*stage.add<DesktopMEG>()); });

const Exhibit desktopStrip("desktop-strip", R"(
    shot short-of-room
)",
    [](Stage& stage) {
        auto* desktop = stage.add<DesktopMEG>();
        desktop->setCoordinates(0, 0, 161, 15);
        fill(*desktop);
        desktop->setHeadsetIcon(true);
        desktop->setUsbIcon(true);
    });

const Exhibit desktopWithSystemWindow("desktop-system-window", R"(
    shot shown
)",
    [](Stage& stage) { fill(*stage.add<DesktopMEGQVT>()); });

}
