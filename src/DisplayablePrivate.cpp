#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include "ExistingDisplayables.h"
#include "LivingDisplays.h"

namespace DisplayAPI {

std::atomic<TranslatorIfc*> DisplayablePrivate::commonTranslator = nullptr;

void DisplayablePrivate::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    mDisplay = display;
    mDisplayNumber = LivingDisplays::numberOf(display);
}

DisplayPrivateIfc* DisplayablePrivate::display() const
{
    return LivingDisplays::numberOf(mDisplay) == mDisplayNumber ? mDisplay : nullptr;
}

std::string DisplayablePrivate::serialise()
{
    return "object:\nname:Not Implemented\nend:\n";
}

std::string DisplayablePrivate::serialise(const std::vector<Rect>&)
{
    return serialise();
}

void DisplayablePrivate::widgetDismissed(DisplayablePrivate* displayable)
{
    DisplayPrivateIfc* living = display();
    if (!living)
        return;
    // The screen below comes back, which may end this one, or the display.
    living->widgetDismissed(displayable);
    LivingDisplays::tellOfDismissal(living);
}

void DisplayablePrivate::join(DisplayablePrivate* other)
{
    if (other)
        connectDisplayChangedSignal(other->display());
}

void DisplayablePrivate::generateDisplayChangedEvent()
{
    if (DisplayPrivateIfc* living = display())
        living->displayChanged();
}

void DisplayablePrivate::postCommand(Command* command, Displayable* displayable)
{
    mCommandListeners.forEach([command, displayable](CommandListener* listener) {
        // An overridden post may delete the screen; nobody shall be told of a dead one.
        if (!displayable || displayableExists(displayable))
            listener->postCommandAction(command, displayable);
    });
}

}
