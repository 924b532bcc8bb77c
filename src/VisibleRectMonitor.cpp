#include "VisibleRectMonitor.h"

#include "StackScreen.h"

#include <algorithm>

namespace DisplayAPI {

void VisibleRectMonitor::clear()
{
    mRects.clear();
    mDisplayables.clear();
}

void VisibleRectMonitor::update(Displayable& displayable)
{
    const StackScreen screen(&displayable);
    if (!screen)
        return;
    mRects.push_back(findTopLevelGeometry(screen.widget()));
    mDisplayables.push_back(&displayable);
}

void VisibleRectMonitor::remove(Displayable& displayable)
{
    const auto found = std::find(mDisplayables.begin(), mDisplayables.end(), &displayable);
    if (found == mDisplayables.end())
        return;
    mRects.erase(mRects.begin() + (found - mDisplayables.begin()));
    mDisplayables.erase(found);
}

Rect VisibleRectMonitor::findTopLevelGeometry(const UWidget& widget) const
{
    const URect own = widget.getRect();
    int left = own.left();
    int top = own.top();
    for (const UWidget* ancestor = widget.parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        const URect outer = ancestor->getRect();
        left += outer.left();
        top += outer.top();
    }
    return Rect(left, top, own.width(), own.height());
}

}
