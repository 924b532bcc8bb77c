#pragma once

#include <vector>

class Semaphore;

namespace DisplayAPI {

class Displayable;
class DisplayablePrivateIfc;

/// The living screens, in the order of construction. A screen is here from its base constructor to its deletion:
/// that its handle lives does not say that its private has been made. Never destroyed.
extern std::vector<Displayable*>& existingDisplayables;
extern Semaphore& existingDisplayablesSemaphore;

// Threads: any, for all three.

void registerDisplayable(Displayable* displayable);

/// Keeps the order of the rest; a screen that is not registered is no error.
void unregisterDisplayable(Displayable* displayable);

/// The pointer is not followed. The cost does not grow with the number of screens.
bool displayableExists(const Displayable* displayable);

/// The half on the GUI thread; null for a screen that is not here. A screen whose deletion is refused dies on its
/// own thread, behind the lock: then its half is kept, and may be used on.
DisplayablePrivateIfc* privateOfLiving(Displayable* displayable);

}
