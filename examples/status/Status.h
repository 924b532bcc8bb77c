#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Desktop.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerEvent.h>
#include <DisplayAPI/TranslationInfo.h>

#include <array>
#include <atomic>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// What a telephone tells of itself, each from a row of a list: clock, message, volume, system window, desktop, idle
/// screen. The function keys 1 to 3 have lights, 4 shifts them all, 5 to 7 shift one each, and 8 takes that back.
class Status : public DisplayAPI::CommandListener, private DisplayAPI::TimerEvent, private TranslatorIfc {
public:
    explicit Status(DisplayAPI::Display& display);

    /// Shows the list until the display is shut down. Threads: GUI thread.
    void run();

    /// Presses a function key, 1 to 8. Threads: one at a time.
    void pressFunctionKey(int key);

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void timerEvent() override;
    std::string translate(std::string key) override;
    void choose(int row);
    void showForAWhile(DisplayAPI::Displayable& screen);
    void shift(bool shifted);
    std::string clockText() const;

    DisplayAPI::Display& mDisplay;
    std::atomic<int> mSecondOfDay;
    bool mHasMessage = false;
    bool mHasSystemWindow = false;
    unsigned int mVolume = 4;
    unsigned int mRingerVolume = 2;
    bool mIsShifted = false;
    std::array<int, 3> mLights{}; // of the function keys 1 to 3

    DisplayAPI::List mList{0};
    std::vector<DisplayAPI::ListItem*> mRows; // the list's
    DisplayAPI::Desktop mDesktop;
    DisplayAPI::IdleDisplay mIdle{""};
    DisplayAPI::MenuCommand mGoBack{"Back?", 1};
    DisplayAPI::Timer mClock{1000};
    DisplayAPI::Timer mReturn{10'000};
};
