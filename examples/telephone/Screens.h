#pragma once

#include <functional>

namespace DisplayAPI {
class Display;
class Displayable;
class IdleDisplay;
}

/// The way from screen to screen. A screen replaces whatever is there, so calls that want the user's attention are
/// brought up again over it.
class Screens {
public:
    Screens(DisplayAPI::Display& display, DisplayAPI::IdleDisplay& idle);

    /// Shows a screen in the place of all others.
    void show(DisplayAPI::Displayable& screen);

    /// Shows a popup or menu over what is there.
    void showOver(DisplayAPI::Displayable& popup);
    void showIdle();

    /// True for the screen that was shown last, also while popups lie over it.
    bool isShown(const DisplayAPI::Displayable& screen) const { return mShown == &screen; }

    /// True if nothing lies over the idle screen.
    bool isIdleOnTop();

    /// Told when a screen has come.
    std::function<void()> onShown;

private:
    DisplayAPI::Display& mDisplay;
    DisplayAPI::IdleDisplay& mIdle;
    DisplayAPI::Displayable* mShown = nullptr;
};
