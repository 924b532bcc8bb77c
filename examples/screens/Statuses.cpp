#include "Statuses.h"

#include "Stage.h"

#include <DisplayAPI/IdleDisplay.h>

using namespace DisplayAPI;

namespace {

constexpr unsigned int RingerDevice = 3;

Desktop& makeDesktop(Stage& stage)
{
    auto& desktop = stage.make<Desktop>();
    desktop.setDate(27, 2, 2026);
    desktop.setTime(10, 41, 30);
    desktop.setLogoText("Example Ltd.");
    desktop.setDesktopString("4711");
    return desktop;
}

void light(Desktop& desktop, Sign sign)
{
    switch (sign) {
    case Sign::KeyLock: desktop.displayKeyLockIcon(true); break;
    case Sign::DoNotDisturb: desktop.displayDNDIcon(true); break;
    case Sign::Headset: desktop.displayHeadsetIcon(true); break;
    case Sign::RingerA: desktop.displayRingerIcon(Desktop::RINGER_A); break;
    case Sign::RingerB: desktop.displayRingerIcon(Desktop::RINGER_B); break;
    case Sign::Maintenance: desktop.displayMaintenanceIcon(true); break;
    case Sign::MobileUser: desktop.displayMobileUserIcon(true, 1); break;
    case Sign::CallBack: desktop.displayCallbacksIcon(true); break;
    case Sign::Usb: desktop.displayUsbIcon(true); break;
    }
}

void take(IdleDisplay& idle, Note note)
{
    switch (note) {
    case Note::Messages: idle.setMessages(2); break;
    case Note::MissedCalls: idle.setMissedCalls(3); break;
    case Note::SystemMessage: idle.addSystemMessage("Maintenance tonight"); break;
    case Note::Forwarded:
        idle.setForwardingIconVisible(true);
        idle.setForwardingAddress("4713");
        break;
    case Note::ForwardedByServer: idle.setServerBasedForwardingAddress("4713"); break;
    case Note::MobileUser: idle.displayMobileUserIcon(true, 1); break;
    }
}

}

void showIdle(Stage& stage, int note)
{
    auto& idle = stage.make<IdleDisplay>("");
    idle.setCurrentPhoneNumber("4711");
    idle.setBrandingText("Example Ltd.");
    take(idle, static_cast<Note>(note));
    stage.show(idle);
}

void showDesktop(Stage& stage, int sign)
{
    Desktop& desktop = makeDesktop(stage);
    light(desktop, static_cast<Sign>(sign));
    stage.show(desktop);
}

void showRadio(Stage& stage, int strength)
{
    Desktop& desktop = makeDesktop(stage);
    desktop.displayWifiStrengthIcon(static_cast<Desktop::WifiIconType>(strength));
    stage.show(desktop);
}

void showVolume(Stage& stage, int device)
{
    stage.showBelow();
    stage.display().setPreviewVolume(static_cast<unsigned int>(device), 6, 0, 10, 0);
}

void showSilence(Stage& stage, int)
{
    stage.showBelow();
    stage.display().setPreviewVolume(RingerDevice, 0, 0, 10, 1);
}
