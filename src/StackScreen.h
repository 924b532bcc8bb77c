#pragma once

#include <DisplayAPI/DisplayablePrivateIfc.h>

#include "ExistingDisplayables.h"

#include <UWidget.h>

namespace DisplayAPI {

/// A living screen with its private and its widget; false while one of the three is missing, and the stack ignores
/// it then.
class StackScreen {
public:
    explicit StackScreen(Displayable* displayable)
        : StackScreen(privateOfLiving(displayable))
    {
    }
    explicit StackScreen(DisplayablePrivateIfc* screen)
        : mPrivate(screen)
        , mWidget(screen ? screen->getWidget() : nullptr)
    {
    }

    explicit operator bool() const { return mWidget != nullptr; }
    DisplayablePrivateIfc* operator->() const { return mPrivate; }
    DisplayablePrivateIfc& operator*() const { return *mPrivate; }
    UWidget& widget() const { return *mWidget; }

private:
    DisplayablePrivateIfc* mPrivate;
    UWidget* mWidget;
};

}
