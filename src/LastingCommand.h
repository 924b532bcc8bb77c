#pragma once

#include <DisplayAPI/MenuCommand.h>

namespace DisplayAPI {

/// Makes a command that a class hands out under a name. Applications tell such commands apart by address, and workers
/// may still hold them when the process ends: nobody deletes them.
inline Command* lastingCommand(Command::Type type, const char* label = "")
{
    return new Command(label, type);
}

/// Makes the command by which a class of screens tells that one of them has gone down.
inline MenuCommand* lastingHiddenCommand(const char* label = "WIDGET_IS_HIDDEN_EVENT")
{
    return new MenuCommand(label, 1001012345);
}

}
