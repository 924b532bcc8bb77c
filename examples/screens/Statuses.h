#pragma once

#include <DisplayAPI/Desktop.h>

class Stage;

// The telephone at rest, and what lies over every screen.

/// A note of the idle screen.
enum class Note { Messages, MissedCalls, SystemMessage, Forwarded, ForwardedByServer, MobileUser };

/// An icon of the desktop.
enum class Sign { KeyLock, DoNotDisturb, Headset, RingerA, RingerB, Maintenance, MobileUser, CallBack, Usb };

void showIdle(Stage& stage, int note);
void showDesktop(Stage& stage, int sign);

/// The number is a Desktop::WifiIconType.
void showRadio(Stage& stage, int strength);

/// The number is that of the device, see Display::setPreviewVolume().
void showVolume(Stage& stage, int device);
void showSilence(Stage& stage, int);
