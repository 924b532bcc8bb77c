#pragma once

#include <DisplayAPI/Command.h>

#include "LivingSet.h"

#include <Semaphore.h>

#include <optional>
#include <string>

namespace DisplayAPI {

/// The living commands, to be asked without the lock of all commands. Never destroyed. Threads: any.
LivingSet<Command>& livingCommands();

/// The text of a command that may have gone: empty-handed if it has. The command can't die between the question
/// and the answer, since the lock of all commands is held. Threads: any.
inline std::optional<std::string> livingCommandText(const Command* command)
{
    CriticalSection section(Command::commandListMutex());
    if (!command || !Command::exists(command))
        return std::nullopt;
    return command->getText();
}

}
