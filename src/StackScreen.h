#pragma once

#include <DisplayAPI/DisplayablePrivateIfc.h>

#include "ExistingDisplayables.h"

#include <UWidget.h>

namespace DisplayAPI {

/// A living screen with its private and its widget; false while one of the three is missing, and the stack ignores
/// it then.
class StackScreen {
public:
    /// Looks the screen up: the one question to the registry for as long as nothing of the application runs.
    explicit StackScreen(Displayable* displayable)
        : StackScreen(displayable, privateOfLiving(displayable))
    {
    }

    /// For a screen that is being deleted and stands in no registry any more, while its private still lives.
    StackScreen(Displayable* displayable, DisplayablePrivateIfc* screen)
        : mDisplayable(displayable)
        , mPrivate(screen)
        , mWidget(screen ? screen->getWidget() : nullptr)
    {
    }

    explicit operator bool() const { return static_cast<bool>(mWidget); }

    /// Whether it is still there behind a call that may have run code of the application.
    bool survives() const { return mWidget && privateOfLiving(mDisplayable) == mPrivate; }

    Displayable* displayable() const { return mDisplayable; }
    DisplayablePrivateIfc* operator->() const { return mPrivate; }
    UWidget& widget() const { return *mWidget; }

private:
    Displayable* mDisplayable;
    DisplayablePrivateIfc* mPrivate;
    UPointer<UWidget> mWidget; // tells this screen from a later one at its address
};

}
