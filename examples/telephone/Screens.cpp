#include "Screens.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/IdleDisplay.h>

Screens::Screens(DisplayAPI::Display& display, DisplayAPI::IdleDisplay& idle)
    : mDisplay(display)
    , mIdle(idle)
{
}

void Screens::show(DisplayAPI::Displayable& screen)
{
    mShown = &screen;
    mDisplay.setCurrent(&screen);
    if (onShown)
        onShown();
}

void Screens::showOver(DisplayAPI::Displayable& popup)
{
    mDisplay.setCurrent(&popup);
}

void Screens::showIdle()
{
    show(mIdle);
}

bool Screens::isIdleOnTop()
{
    return mDisplay.getCurrent() == &mIdle;
}
