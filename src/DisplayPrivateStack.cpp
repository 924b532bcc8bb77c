#include "DisplayPrivate.h"

#include <DisplayAPI/Displayable.h>

#include "AssertGuiThread.h"
#include "ContentWidgetIfc.h"
#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "StackScreen.h"

#include <StatusVolumeMEG.h>

#include <algorithm>

namespace DisplayAPI {

Displayable* DisplayPrivate::getCurrent()
{
    assertGuiThread();
    dropDeadEntries();
    return mCurrent;
}

void DisplayPrivate::setCurrent(Displayable* displayable)
{
    assertGuiThread();
    if (!displayable) {
        darken();
        return;
    }
    if (!displayableExists(displayable))
        return;
    const StackScreen screen(displayable);
    if (!screen)
        return;
    if (screen->hideOldWidgetOnFocusGained())
        clearStack();
    screen->connectDisplayChangedSignal(this);
    addDisplayableToStack(displayable);
    addNewCurrent(displayable);
    displayChanged();
}

void DisplayPrivate::darken()
{
    dropDeadEntries();
    if (!mCurrent)
        return;
    hideContentWidget();
    const std::vector<Displayable*> leaving = std::move(mItemList);
    mItemList.clear();
    mCurrent = nullptr;
    for (Displayable* displayable : leaving) {
        if (!displayableExists(displayable))
            continue; // gone inside the notice of one below
        const StackScreen screen(displayable);
        if (!screen)
            continue;
        screen->lostFocus();
        screen.widget().setParent(nullptr);
        screen->gainOwnership();
    }
    displayChanged();
}

void DisplayPrivate::clearStack()
{
    dropDeadEntries();
    for (Displayable* displayable : mItemList) {
        const StackScreen screen(displayable);
        if (!screen)
            continue;
        if (isInContent(screen.widget())) {
            screen.widget().hide();
            screen.widget().setParent(nullptr);
        }
        // While the display was hidden, the stack took the widget without putting it anywhere.
        if (!screen.widget().parentWidget())
            screen->gainOwnership();
        screen->connectDisplayChangedSignal(nullptr);
    }
    mItemList.clear();
}

void DisplayPrivate::addDisplayableToStack(Displayable* displayable)
{
    const auto found = std::find(mItemList.begin(), mItemList.end(), displayable);
    if (found != mItemList.end())
        mItemList.erase(found);
    mItemList.push_back(displayable);
}

void DisplayPrivate::addNewCurrent(Displayable* displayable)
{
    const StackScreen screen(displayable);
    if (!screen)
        return;
    screen.widget().setParent(nullptr);
    showWidget(*screen);
    // A screen that is shown gives a notice, in which the subscriber may have changed the stack again.
    dropDeadEntries();
    if (isOnStack(displayable))
        screen->releaseOwnership();
    mCurrent = top();
}

void DisplayPrivate::showWidget(DisplayablePrivateIfc& screen)
{
    if (!mIsVisible)
        return;
    UWidget* widget = screen.getWidget();
    UWidget* content = mContent->getUWidget();
    if (widget->parentWidget() != content) {
        widget->setParent(nullptr);
        content->setVisible(true);
        widget->setParent(content);
        screen.releaseOwnership();
    }
    widget->show();
    widget->refresh();
    screen.show();
}

void DisplayPrivate::widgetDismissed(DisplayablePrivateIfc* displayable)
{
    assertGuiThread();
    if (!displayable)
        return;
    dropDeadEntries();
    const auto found = std::find_if(mItemList.begin(), mItemList.end(),
        [displayable](Displayable* entry) { return privateOfLiving(entry) == displayable; });
    if (found != mItemList.end()) {
        mItemList.erase(found);
        displayable->gainOwnership();
        UWidget* widget = displayable->getWidget();
        if (widget && widget->parentWidget()) {
            displayable->gainOwnership();
            widget->setParent(nullptr);
        }
    }
    if (!mCurrent || privateOfLiving(mCurrent) != displayable)
        return;
    if (mItemList.empty()) {
        setCurrent(nullptr);
        return;
    }
    mCurrent = top();
    mPreviousCurrent = nullptr;
    const StackScreen screen(mCurrent);
    if (!mIsVisible || !screen)
        return;
    screen->releaseOwnership();
    screen.widget().setParent(mContent->getUWidget());
    screen->show();
}

void DisplayPrivate::createServerDisplay(Displayable* displayable)
{
    assertGuiThread();
    if (!displayableExists(displayable))
        return;
    const StackScreen screen(displayable);
    if (!screen)
        return;
    mCurrent = displayable;
    if (mIsStacking) {
        mItemList.push_back(displayable);
        screen->connectDisplayChangedSignal(this);
        screen.widget().setParent(nullptr);
        screen->releaseOwnership();
        screen.widget().setParent(mContent->getUWidget());
    }
    screen->connectDisplayChangedSignal(this);
    show();
}

void DisplayPrivate::show()
{
    assertGuiThread();
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->enableScreen();
    const int hardwareVariant = currentHardwareVariant();
    mIsVisible = true;
    showContentWidget();
    if (const StackScreen screen{top()})
        showWidget(*screen);
    if (hardwareVariant == 0)
        displayChanged();
}

void DisplayPrivate::showContentWidget()
{
    dropDeadEntries();
    UWidget* content = mContent->getUWidget();
    content->setVisible(true);
    for (Displayable* displayable : mItemList) {
        const StackScreen screen(displayable);
        if (!screen || isInContent(screen.widget()))
            continue;
        screen.widget().setParent(nullptr);
        screen->releaseOwnership();
        screen.widget().setParent(content);
        screen.widget().setVisible(true);
    }
}

void DisplayPrivate::hide()
{
    assertGuiThread();
    mIsVisible = false;
    if (auto* application = VantoUApplication::getCurrentApplication()) {
        application->disableScreen();
        if (application->getAppName() != "CallViewPhonelet" && mContent->getUWidget()->isVisible())
            application->releaseFullScreen();
    }
    hideContentWidget();
    if (currentHardwareVariant() == 0)
        displayChanged();
}

void DisplayPrivate::hideContentWidget()
{
    mContent->getUWidget()->setVisible(false);
    if (mVolumeIndicator)
        mVolumeIndicator->setVisible(false);
    setSystemWindowSize(0);
}

void DisplayPrivate::removeOldCurrent()
{
    dropDeadEntries();
    if (DisplayablePrivateIfc* screen = privateOfLiving(mCurrent)) {
        screen->lostFocus();
        screen->gainOwnership();
    }
}

std::vector<Rect>* DisplayPrivate::getDisplayedRects()
{
    dropDeadEntries();
    mRectMonitor.clear();
    for (Displayable* displayable : mItemList)
        mRectMonitor.update(*displayable);
    return mRectMonitor.getVisibleRects();
}

// Screens that are gone

void DisplayPrivate::forget(Displayable* displayable)
{
    assertGuiThread();
    const bool wasOnStack = std::erase(mItemList, displayable) > 0;
    if (mCurrent == displayable)
        mCurrent = top();
    if (mPreviousCurrent == displayable)
        mPreviousCurrent = nullptr;
    const StackScreen screen(displayable->getPrivateImpl());
    if (!screen)
        return;
    if (wasOnStack || isInContent(screen.widget()))
        screen.widget().setParent(nullptr);
    // What stands in no tree has no other owner.
    if (!screen.widget().parentWidget())
        screen->gainOwnership();
}

void DisplayPrivate::dropDeadEntries()
{
    std::erase_if(mItemList, [](Displayable* entry) { return !displayableExists(entry); });
    if (mCurrent && !displayableExists(mCurrent))
        mCurrent = top();
    if (mPreviousCurrent && !displayableExists(mPreviousCurrent))
        mPreviousCurrent = nullptr;
}

bool DisplayPrivate::isOnStack(const Displayable* displayable) const
{
    return std::find(mItemList.begin(), mItemList.end(), displayable) != mItemList.end();
}

bool DisplayPrivate::isInContent(const UWidget& widget) const
{
    return widget.parentWidget() == mContent->getUWidget();
}

}
