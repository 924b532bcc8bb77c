#include "ExistingDisplayables.h"

#include <DisplayAPI/Displayable.h>

#include <Semaphore.h>

#include <algorithm>
#include <unordered_set>

namespace DisplayAPI {

namespace {

struct Registry {
    Semaphore semaphore{Semaphore::AVAILABLE, 1};
    std::vector<Displayable*> inOrder;
    std::unordered_set<const Displayable*> all;
};

// A screen may be made before main() and die behind it.
Registry& registry()
{
    static Registry& instance = *new Registry;
    return instance;
}

}

std::vector<Displayable*>& existingDisplayables = registry().inOrder;
Semaphore& existingDisplayablesSemaphore = registry().semaphore;

void registerDisplayable(Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    if (screens.all.insert(displayable).second)
        screens.inOrder.push_back(displayable);
}

void unregisterDisplayable(Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    if (screens.all.erase(displayable) == 0)
        return;
    // Screens mostly go in the reverse order of their coming.
    auto found = std::find(screens.inOrder.rbegin(), screens.inOrder.rend(), displayable);
    screens.inOrder.erase(std::next(found).base());
}

bool displayableExists(const Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    return screens.all.contains(displayable);
}

DisplayablePrivateIfc* privateOfLiving(Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    return screens.all.contains(displayable) ? displayable->getPrivateImpl() : nullptr;
}

}
