#pragma once

#include <UApplication.h>
#include <UEvent.h>

namespace DisplayAPI {

/// Hands an event to the application's queue; without an application it is destroyed, which lets its waiter go.
inline void postToApplication(UEvent* event)
{
    if (UApplication* application = UApplication::instance())
        application->postEvent(event);
    else
        delete event;
}

}
