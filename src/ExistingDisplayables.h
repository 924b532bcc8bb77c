#pragma once

#include <vector>

class Semaphore;

namespace DisplayAPI {

class Displayable;

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

/// A copy of the living screens, to be walked without the lock.
std::vector<Displayable*> livingDisplayables();

}
