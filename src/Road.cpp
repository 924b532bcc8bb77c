#include "Road.h"

#include "ExistingDisplayables.h"
#include "KeptHalves.h"

#include <TranslationInfo.h>

#include <mutex>
#include <utility>
#include <vector>

namespace DisplayAPI {

namespace {

struct Kept {
    std::mutex mutex;
    std::vector<void*> objects;
    std::vector<std::shared_ptr<void>> halves;
};

thread_local bool keptHalvesGo = false;

// Never destroyed, so that what is kept stays reachable.
Kept& kept()
{
    static Kept& instance = *new Kept;
    return instance;
}

}

void keepUntilExit(void* object)
{
    if (!object)
        return;
    std::lock_guard lock(kept().mutex);
    kept().objects.push_back(object);
}

void keepForGuiThread(std::shared_ptr<void> half)
{
    std::lock_guard lock(kept().mutex);
    kept().halves.push_back(std::move(half));
}

void deleteKeptHalves()
{
    std::vector<std::shared_ptr<void>> halves;
    {
        std::lock_guard lock(kept().mutex);
        halves.swap(kept().halves);
    }
    const bool goAlready = std::exchange(keptHalvesGo, true);
    halves.clear();
    keptHalvesGo = goAlready;
}

bool areKeptHalvesGoing()
{
    return keptHalvesGo;
}

void RequestSlots::keepIfRefused(void* object)
{
    // On the GUI thread itself the request runs at once.
    if (object && !Widget::isGuiThread())
        mEvent.ownUntilRun(object, &keepUntilExit);
}

void Road::drop(const GivenObject<TranslationInfo>& given)
{
    delete given.object;
}

void Road::leaveRegistry(Displayable& screen)
{
    screen.leave();
    unregisterDisplayable(&screen);
}

}
