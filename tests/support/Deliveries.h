#pragma once

#include "CommandExecutor.h"

/// Recalls what has not begun and waits for the delivery in hand, so that a listener may die: it must outlive what has
/// begun.
inline void endDeliveries()
{
    DisplayAPI::CommandExecutor::closeDeliveries();
    DisplayAPI::CommandExecutor::openDeliveries();
}
