#include "Popups.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/Display.h>

using namespace DisplayAPI;

namespace {

enum Row {
    Saved,
    Failed,
    Forwarded,
    Question,
    Menu,
    Work,
};
constexpr const char* Names[] = {"Settings saved", "Update failed", "Forwarded call", "Delete entry", "Menu", "Work"};
constexpr int NoticeTime = 3000; // milliseconds
constexpr int MenuTime = 10;     // seconds

}

Popups::Popups(Display& display)
    : mDisplay(display)
{
    mList.setTitle("Popups");
    for (const char* name : Names)
        mList.append(name);
    mList.addCommandListener(this);

    mNotice.setTimeout(NoticeTime);
    CallPartyIdentifier caller("Bob", "4712");
    CallPartyIdentifier called("Carol", "4713");
    mForwarded.setForwardNotification(caller, called, FORWARDED_ON_BUSY);
    mForwarded.setTimeout(NoticeTime);

    mQuestion.setState(PopupConfirm::Question);
    mQuestion.setText("Delete entry?");
    mQuestion.setLine2Text("Bob");
    mQuestion.addCommand(&mNo);
    mQuestion.addCommand(&mYes);
    mQuestion.addCommandListener(this);

    mMenu.addCommand(&mHeadset, nullptr, false, true, "HeadSet");
    mMenu.addCommand(&mMute, nullptr, false, false, "");
    mMenu.setAutoHideTimeout(MenuTime);
    mMenu.addCommandListener(this);

    mProgress.setText("Fetching settings");
    mProgress.setType(PopupProgress::INFO);
}

void Popups::run()
{
    mDisplay.setCurrent(&mList);
    mDisplay.show();
    mDisplay.exec();
}

void Popups::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mList && command == List::SELECT_COMMAND())
        show(mList.getSelectedIndex());
    if (displayable == &mQuestion && command != PopupConfirm::HIDDEN_COMMAND()) {
        mQuestion.dismiss();
        if (command == &mYes)
            notify(PopupNotification::SUCCESS, "Entry deleted", "");
    }
    // Left and the time without use end the menu by themselves or by this; a choice is told.
    if (displayable == &mMenu && command->getType() != Command::Dismiss) {
        mMenu.dismiss();
        if (command->getType() == Command::Menu)
            notify(PopupNotification::INFO, command == &mMute ? "Muted" : "Headset", "");
    }
}

void Popups::show(int row)
{
    switch (row) {
    case Saved: notify(PopupNotification::INFO, "Settings saved", ""); break;
    case Failed: notify(PopupNotification::ERROR, "Update failed", "Try again later"); break;
    case Forwarded: mDisplay.setCurrent(&mForwarded); break;
    case Question: mDisplay.setCurrent(&mQuestion); break;
    case Menu: mDisplay.setCurrent(&mMenu); break;
    case Work: mDisplay.setCurrent(&mProgress); break;
    default: break; // the display has been shut down meanwhile
    }
}

void Popups::notify(PopupNotification::InfoType type, const std::string& first, const std::string& second)
{
    mNotice.setType(type);
    mNotice.setText(first);
    mNotice.setLine2Text(second);
    mDisplay.setCurrent(&mNotice);
}

void Popups::setProgress(int percent)
{
    mProgress.setCurrentStageText("Stage " + std::to_string(percent / 25) + "/4");
    mProgress.updateProgressBar(percent);
    if (percent >= 100)
        mProgress.dismiss();
}
