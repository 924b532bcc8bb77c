#pragma once

#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include "ExistingDisplayables.h"

#include <memory>
#include <mutex>
#include <vector>

namespace DisplayAPI {

/// Keeps an object where it is until the process ends: the half of a handle whose deletion was refused, since
/// the event loop has ended, or what a request carried that never ran. Null is ignored. Threads: any.
///
/// Nobody may delete such an object: other threads may still use it. It stays reachable, so that it counts as
/// kept and not as lost.
inline void keepUntilExit(void* object)
{
    struct Kept {
        std::mutex mutex;
        std::vector<void*> objects;
    };
    static Kept& kept = *new Kept;
    if (!object)
        return;
    std::lock_guard lock(kept.mutex);
    kept.objects.push_back(object);
}

/// The end of a screen's destructor off the GUI thread: keeps its half if the deletion was refused. The screen leaves
/// the registry first, so that the display never asks a handle that is half gone.
template <typename Half>
void keepIfRefused(Displayable* screen, std::unique_ptr<Half>& half)
{
    if (!half)
        return;
    unregisterDisplayable(screen);
    keepUntilExit(half.release());
}

/// The request, which hands `object` over to the GUI thread. If it never runs, the object is kept until the
/// process ends. On the GUI thread itself the request runs at once.
inline GuiRequestEvent* handingOver(GuiRequestEvent* event, void* object)
{
    if (object && !Widget::isGuiThread())
        event->ownUntilRun(object, &keepUntilExit);
    return event;
}

}
