#pragma once

namespace DisplayAPI {

class Displayable;
class DisplayPrivate;
class DisplayPrivateIfc;

/// The displays that live: one, but for tests. A screen may outlive the display that it stores.
/// Threads: GUI thread only.
namespace LivingDisplays {

void add(DisplayPrivate* display);
void remove(DisplayPrivate* display);

/// A number that tells a display from a later one at the same address; 0 for one that is not here. The pointer
/// is not followed.
unsigned long numberOf(const DisplayPrivateIfc* display);

/// Gives the notice that is owed since a screen was dismissed, unless the display has gone or told of it.
void tellOfDismissal(const DisplayPrivateIfc* display);

/// Takes a screen that is being deleted off every display.
void forget(Displayable* displayable);

}

}
