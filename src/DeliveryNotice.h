#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Living.h>

namespace DisplayAPI {

class Displayable;

/// Tells the observer of DeliveryWatch, if there is one, and those whom the delivery names live. Threads: any, with no
/// lock held.
void noticeDelivery(
    const Living<CommandListener>& listener, const Living<Command>& command, const Displayable* displayable);

}
