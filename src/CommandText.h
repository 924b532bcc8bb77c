#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Living.h>

#include <Semaphore.h>
#include <TranslationInfo.h>

#include <optional>
#include <string>

namespace DisplayAPI {

/// What a screen shows of a command: a copy, made while the command could not die.
struct CommandText {
    Living<Command> command;
    Command::Type type;
    std::string text;
    bool isTranslated = false;
    TranslatorIfc* translator = nullptr; // of its translation; null too where that has none
};

/// Reads a command that may have gone, or whose address may be another's by now; empty-handed then. All of it is one
/// step under the lock of all commands, in which no command dies. Threads: any.
inline std::optional<CommandText> readCommand(const Living<Command>& command)
{
    CriticalSection section(Command::commandListMutex());
    const Command* living = command.get();
    if (!living)
        return std::nullopt;
    const TranslationInfo* info = living->getTranslationInfo();
    return CommandText{
        command, living->getType(), living->getText(), info != nullptr, info ? info->translator() : nullptr};
}

inline std::optional<CommandText> readCommand(Command* command)
{
    return readCommand(Living<Command>(command));
}

}
