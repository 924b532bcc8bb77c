#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/DisplayablePrivateIfc.h>

#include <UWidget.h>

namespace DisplayAPI {

/// A living screen with its private and its widget; false while one of the two is missing, and the stack ignores
/// it then.
class StackScreen {
public:
    explicit StackScreen(Displayable* displayable)
        : mPrivate(displayable ? displayable->getPrivateImpl() : nullptr)
        , mWidget(mPrivate ? mPrivate->getWidget() : nullptr)
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
