#include "Road.h"

#include "ExistingDisplayables.h"

#include <TranslationInfo.h>

#include <mutex>
#include <vector>

namespace DisplayAPI {

void keepUntilExit(void* object)
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
    unregisterDisplayable(&screen);
}

}
