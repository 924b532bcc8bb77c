#pragma once

#include <DisplayAPI/CallConnectedItem.h>
#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/LineOverviewItem.h>

class Stage;

// Lists with one row of a kind; the number is the state or the icon of the enumeration that the row has for it.

void showConnected(Stage& stage, int state);
void showSecurity(Stage& stage, int state);
void showBetterVoice(Stage& stage, int);
void showSecondLine(Stage& stage, int);
void showRecording(Stage& stage, int);
void showLogRow(Stage& stage, int icon);
void showLogRowOfElsewhere(Stage& stage, int icon);
void showBoldLogRow(Stage& stage, int);
void showLine(Stage& stage, int state);
void showRow(Stage& stage, int);
void showWaveStyleRow(Stage& stage, int);
void showBar(Stage& stage, int);
void showQVTList(Stage& stage, int);
void showForwarding(Stage& stage, int icon);
void showUncheckedForwarding(Stage& stage, int);
void showForwardingText(Stage& stage, int);
void showText(Stage& stage, int);
