#pragma once

#include <DisplayAPI/PopupCall.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/PopupProgress.h>

class Stage;

// Popups; the number is the state, the kind or the priority of the enumeration that the popup has for it.

void showCall(Stage& stage, int state);
void showPriority(Stage& stage, int priority);
void showForwardedCall(Stage& stage, int type);
void showNotice(Stage& stage, int type);
void showLongNotice(Stage& stage, int);
void showQuestion(Stage& stage, int state);
void showWork(Stage& stage, int type);
void showMenu(Stage& stage, int);
