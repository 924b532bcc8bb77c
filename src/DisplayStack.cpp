#include "DisplayStack.h"

#include <DisplayAPI/Displayable.h>

#include <algorithm>
#include <utility>

namespace DisplayAPI {

// Questions

Displayable* DisplayStack::current()
{
    if (mCurrent && !displayableExists(mCurrent))
        mCurrent = top();
    return mCurrent;
}

Displayable* DisplayStack::previousCurrent()
{
    if (mPreviousCurrent && !displayableExists(mPreviousCurrent))
        mPreviousCurrent = nullptr;
    return mPreviousCurrent;
}

Displayable* DisplayStack::top()
{
    while (!mItemList.empty() && !displayableExists(mItemList.back()))
        mItemList.pop_back();
    return mItemList.empty() ? nullptr : mItemList.back();
}

bool DisplayStack::holds(const Displayable* displayable) const
{
    return std::find(mItemList.begin(), mItemList.end(), displayable) != mItemList.end();
}

bool DisplayStack::isInContent(const UWidget& widget) const
{
    return widget.parentWidget() == mContent;
}

// Coming

void DisplayStack::put(const StackScreen& screen)
{
    if (screen->hideOldWidgetOnFocusGained())
        clear();
    screen->connectDisplayChangedSignal(&mDisplay);
    std::erase(mItemList, screen.displayable());
    mItemList.push_back(screen.displayable());
    addNewCurrent(screen);
}

void DisplayStack::clear()
{
    forEach([this](const StackScreen& screen) {
        if (isInContent(screen.widget())) {
            screen.widget().hide();
            screen.widget().setParent(nullptr);
        }
        // While the display was hidden, the stack took the widget without putting it anywhere.
        if (!screen.widget().parentWidget())
            screen->gainOwnership();
        screen->connectDisplayChangedSignal(nullptr);
    });
    mItemList.clear();
}

void DisplayStack::addNewCurrent(const StackScreen& screen)
{
    screen.widget().setParent(nullptr);
    showWidget(screen);
    // A screen that is shown gives a notice, in which the subscriber may have taken it off again or deleted it.
    if (screen.survives() && holds(screen.displayable()))
        screen->releaseOwnership();
    mCurrent = top();
}

void DisplayStack::putServer(const StackScreen& screen, bool isStacked)
{
    mCurrent = screen.displayable();
    screen->connectDisplayChangedSignal(&mDisplay);
    if (!isStacked)
        return;
    mItemList.push_back(screen.displayable());
    screen.widget().setParent(nullptr);
    screen->releaseOwnership();
    screen.widget().setParent(mContent);
}

void DisplayStack::showAll()
{
    forEach([this](const StackScreen& screen) {
        if (isInContent(screen.widget()))
            return;
        screen.widget().setParent(nullptr);
        screen->releaseOwnership();
        screen.widget().setParent(mContent);
        screen.widget().setVisible(true);
    });
    if (const StackScreen screen{top()})
        showWidget(screen);
}

void DisplayStack::showWidget(const StackScreen& screen)
{
    if (!mIsVisible)
        return;
    if (!isInContent(screen.widget())) {
        screen.widget().setParent(nullptr);
        mContent->setVisible(true);
        screen.widget().setParent(mContent);
        screen->releaseOwnership();
    }
    screen.widget().show();
    screen.widget().refresh();
    screen->show();
}

// Going

void DisplayStack::darken()
{
    const std::vector<Displayable*> leaving = std::exchange(mItemList, {});
    mCurrent = nullptr;
    for (Displayable* displayable : leaving) {
        const StackScreen screen(displayable);
        if (!screen)
            continue;
        screen->lostFocus();
        // The notice of one that loses the focus may have deleted it, or put it on again.
        if (!screen.survives() || holds(displayable))
            continue;
        screen.widget().setParent(nullptr);
        screen->gainOwnership();
    }
}

bool DisplayStack::takeOff(DisplayablePrivateIfc& half)
{
    const auto found = std::find_if(
        mItemList.begin(), mItemList.end(), [&half](Displayable* entry) { return privateOfLiving(entry) == &half; });
    if (found == mItemList.end())
        return false;
    mItemList.erase(found);
    half.gainOwnership();
    if (UWidget* widget = half.getWidget())
        widget->setParent(nullptr);
    return true;
}

void DisplayStack::returnToTop()
{
    mCurrent = top();
    mPreviousCurrent = nullptr;
    const StackScreen screen(mCurrent);
    if (!mIsVisible || !screen)
        return;
    screen->releaseOwnership();
    screen.widget().setParent(mContent);
    screen->show();
}

void DisplayStack::removeOldCurrent()
{
    const StackScreen screen(current());
    if (!screen)
        return;
    screen->lostFocus();
    if (screen.survives())
        screen->gainOwnership();
}

void DisplayStack::forget(Displayable* displayable)
{
    const bool wasOnStack = std::erase(mItemList, displayable) > 0;
    if (mCurrent == displayable)
        mCurrent = top();
    if (mPreviousCurrent == displayable)
        mPreviousCurrent = nullptr;
    const StackScreen screen(displayable, displayable->getPrivateImpl());
    if (!screen)
        return;
    if (wasOnStack || isInContent(screen.widget()))
        screen.widget().setParent(nullptr);
    // What stands in no tree has no other owner.
    if (!screen.widget().parentWidget())
        screen->gainOwnership();
}

void DisplayStack::giveBack()
{
    forEach([](const StackScreen& screen) {
        screen.widget().setParent(nullptr);
        screen->gainOwnership();
    });
}

}
