#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/PopupProgress.h>

namespace DisplayAPI {
class Display;
}

/// A list from which each kind of popup comes up: notices, a question, a menu, work under way.
class Popups : public DisplayAPI::CommandListener {
public:
    explicit Popups(DisplayAPI::Display& display);

    /// Shows the list until the display is shut down. Threads: GUI thread.
    void run();

    /// Says how far the work is, in per cent; at 100 it is done. Threads: any.
    void setProgress(int percent);

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void show(int row);
    void notify(DisplayAPI::PopupNotification::InfoType type, const std::string& first, const std::string& second);

    DisplayAPI::Display& mDisplay;
    DisplayAPI::List mList{0};
    DisplayAPI::PopupNotification mNotice;
    DisplayAPI::PopupNotification mForwarded;
    DisplayAPI::PopupConfirm mQuestion{true};
    DisplayAPI::PopupProgress mProgress;
    DisplayAPI::ContextMenu mMenu{false};
    DisplayAPI::MenuCommand mYes{"Yes?", 1};
    DisplayAPI::MenuCommand mNo{"No?", 2};
    DisplayAPI::MenuCommand mHeadset{"Take headset?", 3};
    DisplayAPI::MenuCommand mMute{"Mute?", 4};
};
