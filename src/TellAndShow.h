#pragma once

#include <UAgent.h>

namespace DisplayAPI {

class Command;
class Displayable;

/// What an action of the user leads to: queues the command for the listeners of a screen, unless it is null, and tells
/// the display. A listener that overrides the posting may delete the half, and the display's subscriber too.
template <typename Half>
void tellAndShow(Half& half, Command* command, Displayable* screen)
{
    const LifeNode life(&half);
    if (command)
        half.postCommand(command, screen);
    if (life.isAlive())
        half.generateDisplayChangedEvent();
}

}
