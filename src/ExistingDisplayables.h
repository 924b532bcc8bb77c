#pragma once

#include <string>
#include <vector>

class Semaphore;

namespace DisplayAPI {

class Displayable;
class DisplayablePrivateIfc;

/// The living screens, in the order of construction. A screen is here from its base constructor to its deletion:
/// that its handle lives does not say that its private has been made. Never destroyed.
extern std::vector<Displayable*>& existingDisplayables;
extern Semaphore& existingDisplayablesSemaphore;

// Threads: any, for all of them. A search begins with the newest screen.

/// A screen that is registered already stays where it is.
void registerDisplayable(Displayable* displayable);

/// Keeps the order of the rest; a screen that is not registered is no error. While another thread is inside the
/// screen's getPrivateImpl(), it returns behind that.
void unregisterDisplayable(Displayable* displayable);

/// The pointer is not followed.
bool displayableExists(const Displayable* displayable);

/// The half on the GUI thread, from getPrivateImpl(); null for a screen that is not here, or has left meanwhile. The
/// application may have overridden that, so it runs without the lock. A screen whose deletion is refused leaves on its
/// own thread, behind that call: its half is kept, and may be used on.
DisplayablePrivateIfc* privateOfLiving(Displayable* displayable);

/// The name of its class; empty for a screen that is not here.
std::string nameOfLiving(const Displayable* displayable);

}
