#pragma once

#include <DisplayAPI/Widget.h>

#include <UApplication.h>
#include <UEvent.h>

#include <cassert>

namespace DisplayAPI {

/// Stands at the doors behind the request frame: where halves on the GUI thread come and go, and where screens and
/// rows change places. It costs nothing in release builds. Before a display exists every thread passes.
inline void assertGuiThread()
{
    assert(Widget::isGuiThread() && "this is the GUI thread's work: post a request instead");
}

/// Hands an event to the application's queue; without an application it is destroyed, which lets its waiter go.
inline void postToApplication(UEvent* event)
{
    if (UApplication* application = UApplication::instance())
        application->postEvent(event);
    else
        delete event;
}

}
