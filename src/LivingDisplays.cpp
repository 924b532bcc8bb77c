#include "LivingDisplays.h"

#include "DisplayPrivate.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace DisplayAPI {

namespace {

using Entry = std::pair<DisplayPrivate*, unsigned long>;

// Never destroyed: screens may die behind the last display.
std::vector<Entry>& entries()
{
    static std::vector<Entry>& instance = *new std::vector<Entry>;
    return instance;
}

}

void LivingDisplays::add(DisplayPrivate* display)
{
    static unsigned long lastNumber = 0;
    entries().emplace_back(display, ++lastNumber);
}

void LivingDisplays::remove(DisplayPrivate* display)
{
    std::erase_if(entries(), [display](const Entry& entry) { return entry.first == display; });
}

unsigned long LivingDisplays::numberOf(const DisplayPrivateIfc* display)
{
    for (const auto& [living, number] : entries()) {
        if (living == display)
            return number;
    }
    return 0;
}

void LivingDisplays::tellOfDismissal(const DisplayPrivateIfc* display)
{
    for (const auto& [living, number] : entries()) {
        if (living == display)
            return living->tellOfDismissal();
    }
}

void LivingDisplays::forget(Displayable* displayable)
{
    for (const auto& [display, number] : entries())
        display->forget(displayable);
}

}
