#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Living.h>

#include <Semaphore.h>
#include <TranslationInfo.h>
#include <VantoListBoxItemMEG.h>

#include <optional>
#include <string>
#include <utility>

namespace DisplayAPI {

/// What a screen shows of a command: a copy, made while the command could not die.
struct CommandText {
    Living<Command> command;
    Command::Type type;
    std::string text;
    bool isTranslated = false;
    TranslatorIfc* translator = nullptr; // of its translation; null too where that has none
};

/// Asks a command that may have gone, or whose address may be another's by now; empty-handed then. `ask(command)` is
/// one step under the lock of all commands, in which no command dies. Threads: any.
template <typename Ask>
auto askCommand(const Living<Command>& command, Ask ask) -> std::optional<decltype(ask(std::declval<const Command&>()))>
{
    CriticalSection section(Command::commandListMutex());
    const Command* living = command.get();
    if (!living)
        return std::nullopt;
    return ask(*living);
}

/// What a screen shows of a command, read in such a step.
inline std::optional<CommandText> readCommand(const Living<Command>& command)
{
    return askCommand(command, [&command](const Command& living) {
        const TranslationInfo* info = living.getTranslationInfo();
        return CommandText{
            command, living.getType(), living.getText(), info != nullptr, info ? info->translator() : nullptr};
    });
}

inline std::optional<CommandText> readCommand(Command* command)
{
    return readCommand(Living<Command>(command));
}

/// A row that stands for a command. The command may die, and its address become another's: the row then stands for
/// nothing. It does not follow the command's removal from a screen, so that a row that stays still tells.
class CommandRow final : public VantoListBoxItemMEG {
public:
    /// The row's handle is the command.
    CommandRow(Command* command, const CommandText& shown)
        : VantoListBoxItemMEG(UString::fromUTF8(shown.text), reinterpret_cast<long>(command), false)
        , mCommand(shown.command)
    {
    }

    const Living<Command>& command() const { return mCommand; }

private:
    Living<Command> mCommand;
};

}
