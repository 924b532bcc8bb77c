#include <DisplayAPI/Command.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include "DisplayPrivate.h"
#include "ExistingDisplayables.h"
#include "KeptHalves.h"
#include "ScreenHolder.h"

#include <utility>

namespace DisplayAPI {

std::atomic<TranslatorIfc*> DisplayablePrivate::commonTranslator = nullptr;

DisplayablePrivate::~DisplayablePrivate()
{
    leaveHolder();
}

void DisplayablePrivate::leaveHolder()
{
    if (ScreenHolder* holder = std::exchange(mHolder, nullptr))
        holder->screenDies(*this);
}

bool DisplayablePrivate::standsIn(const DisplayablePrivate& other) const
{
    const DisplayablePrivate* screen = this;
    while (screen != &other && screen->holder())
        screen = &screen->holder()->screen();
    return screen == &other;
}

void DisplayablePrivate::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    mDisplay = Living<DisplayPrivateIfc>(display);
}

DisplayPrivateIfc* DisplayablePrivate::display() const
{
    return mDisplay.get();
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
    const Living<DisplayPrivateIfc> on = mDisplay;
    if (!on)
        return;
    // The screen below comes back, which may end this one, or the display.
    on.get()->widgetDismissed(displayable);
    if (auto* telling = dynamic_cast<DisplayPrivate*>(on.get()))
        telling->tellOfDismissal();
}

void DisplayablePrivate::join(DisplayablePrivate* other)
{
    if (other)
        connectDisplayChangedSignal(other->display());
}

void DisplayablePrivate::generateDisplayChangedEvent()
{
    DisplayPrivateIfc* living = display();
    if (living && !areKeptHalvesGoing())
        living->displayChanged();
}

void DisplayablePrivate::postCommand(Command* command, Displayable* displayable)
{
    postCommandTo(mCommandListeners, command, displayable);
}

void DisplayablePrivate::postCommandTo(
    const ListenerList<CommandListener>& listeners, Command* command, Displayable* displayable)
{
    const Living<Command> posted(command);
    listeners.forEach([&](CommandListener* listener) {
        // An overridden post may delete screen and command; nobody shall be told of a dead one.
        if ((posted || !command) && (!displayable || displayableExists(displayable)))
            listener->postCommandAction(command, displayable);
    });
}

}
