#include "Status.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/Display.h>

#include <cstdio>

using namespace DisplayAPI;

namespace {

enum Row {
    Clock,
    Message,
    Speaker,
    Ringer,
    SystemWindow,
    OfDesktop,
    Idle,
};
constexpr const char* Names[] = {"", "Message", "Speaker", "Ringer", "System window", "Desktop", "Idle screen"};

constexpr int Second = 1000;            // milliseconds
constexpr int LookTime = 10 * Second;   // how long desktop and idle screen stay
constexpr unsigned int PartTime = 3000; // of a long message
constexpr unsigned int Loudest = 10;
constexpr const char* NoText = "                        "; // of the system window: 24 blanks
constexpr unsigned int SpeakerDevice = 2;
constexpr unsigned int RingerDevice = 3;

/// What stands on the function keys, and behind the shift.
struct Key {
    const char* label;
    const char* alternateLabel;
};
constexpr Key Keys[] = {{"Line1", "Anna"}, {"Line2", "Bob"}, {"DND", "Fwd"}, {"Shift", ""}};
enum FunctionKey {
    ShiftKey = 4,
    FirstShifted = 5,
    LastShifted = 7,
    ResetKey = 8,
};
constexpr int LightStates = 3; // off, on, flashing

}

Status::Status(Display& display)
    : mDisplay(display)
    , mSecondOfDay((10 * 60 + 41) * 60 + 30)
{
    mList.setTitle("Status");
    for (const char* name : Names) {
        mRows.push_back(new ListItem(name, true));
        mList.append(mRows.back());
    }
    mList.addCommandListener(this);

    mDesktop.setDate(27, 2, 2026);
    mDesktop.setDayLabelText(this);
    mDesktop.setLogoText("Example Ltd.");
    mDesktop.setDesktopString("4711");
    mDesktop.displayHeadsetIcon(true);
    mDesktop.displayCallbacksIcon(true);
    mDesktop.displayRingerIcon(Desktop::RINGER_A);
    mDesktop.displayWifiStrengthIcon(Desktop::WIFI_75);

    CallPartyIdentifier carol("Carol", "4713");
    carol.displayText = "Carol";
    mIdle.setCurrentPhoneNumber("4711");
    mIdle.setBrandingText("Status");
    mIdle.addCommand(&mGoBack);
    mIdle.addCommandListener(this);
    mIdle.setForwardingIconVisible(true);
    mIdle.setForwardingAddress(new TranslationInfo("to", this), &carol);

    for (int key = 1; key <= ShiftKey; ++key) {
        mDisplay.setFPKLabel(key, Keys[key - 1].label);
        mDisplay.setAlternateLabel(key, Keys[key - 1].alternateLabel);
    }

    // One timer counts the seconds on the GUI thread, the other one sends a command.
    mClock.addEventListener(this);
    mReturn.enableSingleShot(true);
    mReturn.addCommand(&mGoBack);
    mReturn.addCommandListener(this);
}

void Status::run()
{
    mRows[Clock]->setText(clockText());
    mClock.start(Second);
    mDisplay.setCurrent(&mList);
    mDisplay.show();
    mDisplay.exec();
}

void Status::timerEvent()
{
    constexpr int secondsOfDay = 24 * 60 * 60;
    mSecondOfDay = (mSecondOfDay + 1) % secondsOfDay;
    mRows[Clock]->setText(clockText());
}

std::string Status::clockText() const
{
    const int time = mSecondOfDay;
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", time / 3600, time / 60 % 60, time % 60);
    return text;
}

std::string Status::translate(std::string key)
{
    return key.rfind("day.", 0) == 0 ? key.substr(4) : key;
}

void Status::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mList && command == List::SELECT_COMMAND())
        choose(mList.getSelectedIndex());
    if (command == &mGoBack)
        mDisplay.setCurrent(&mList);
}

void Status::choose(int row)
{
    const int time = mSecondOfDay;
    switch (row) {
    case Message:
        mHasMessage = !mHasMessage;
        mRows[Message]->setText(mHasMessage ? "Message on" : "Message");
        mDisplay.setStatusMessage(mHasMessage ? "Maintenance tonight between ten and eleven" : "", PartTime);
        break;
    case Speaker:
        mVolume = mVolume % Loudest + 1;
        mRows[Speaker]->setRightText(std::to_string(mVolume));
        mDisplay.setPreviewVolume(SpeakerDevice, mVolume, 0, Loudest, 0);
        break;
    case Ringer:
        mRingerVolume = (mRingerVolume + 1) % Loudest;
        mRows[Ringer]->setRightText(std::to_string(mRingerVolume));
        mDisplay.setPreviewVolume(RingerDevice, mRingerVolume, 0, Loudest, mRingerVolume == 0 ? 1 : 0);
        break;
    case SystemWindow:
        mHasSystemWindow = !mHasSystemWindow;
        mRows[SystemWindow]->setText(mHasSystemWindow ? "System window on" : "System window");
        mDisplay.setSystemWindowText(0, mHasSystemWindow ? "4711" : NoText);
        mDisplay.setTimeInSystemWindow(time / 3600, time / 60 % 60, time % 60);
        mDisplay.showTimeInSystemWindow(mHasSystemWindow);
        mDisplay.setSystemWindowSize(mHasSystemWindow ? 1 : 0);
        break;
    case OfDesktop:
        mDesktop.setTime(time / 3600, time / 60 % 60, time % 60);
        showForAWhile(mDesktop);
        break;
    case Idle: showForAWhile(mIdle); break;
    default: break; // the clock, or the display has been shut down meanwhile
    }
}

void Status::showForAWhile(Displayable& screen)
{
    mDisplay.setCurrent(&screen);
    mReturn.start(LookTime);
}

void Status::pressFunctionKey(int key)
{
    if (key < ShiftKey) {
        int& light = mLights[static_cast<std::size_t>(key - 1)];
        light = (light + 1) % LightStates;
        mDisplay.setFPKStatus(key, light);
    } else if (key == ShiftKey) {
        shift(!mIsShifted);
    } else if (key <= LastShifted) {
        mDisplay.shiftFPKLabel(key - FirstShifted + 1);
    } else {
        for (int single = FirstShifted; single <= LastShifted; ++single)
            mDisplay.shiftChangeEventForCertainFPKey(false, single - FirstShifted + 1);
        shift(false);
    }
}

void Status::shift(bool shifted)
{
    mIsShifted = shifted;
    mDisplay.shiftFPKBar(shifted);
    mDisplay.setFPKStatus(ShiftKey, shifted ? 1 : 0);
}
