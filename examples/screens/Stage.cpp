#include "Stage.h"

using namespace DisplayAPI;

Stage::Stage(Display& display)
    : mDisplay(display)
{
    mBelow.setTitle("Screens");
    mBelow.append("F1 shows the next one");
    mDisplay.setCurrent(&mBelow);
    mDisplay.show();
}

void Stage::show(Displayable& screen)
{
    mDisplay.setCurrent(&screen);
    clear();
}

void Stage::showOver(Displayable& popup)
{
    mDisplay.setCurrent({&mBelow, &popup});
    clear();
}

void Stage::showBelow()
{
    mDisplay.setCurrent(&mBelow);
    clear();
}

/// Deletes the parts of the screen before. A popup that is deleted leaves the display.
void Stage::clear()
{
    mParts.erase(mParts.begin(), mParts.begin() + static_cast<std::ptrdiff_t>(mShown));
    mShown = mParts.size();
}
