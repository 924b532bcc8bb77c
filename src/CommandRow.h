#pragma once

#include "CommandText.h"

#include <VantoListBoxItemMEG.h>

namespace DisplayAPI {

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
