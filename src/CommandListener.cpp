#include <DisplayAPI/CommandListener.h>

#include "CommandExecutor.h"

namespace DisplayAPI {

// First out of the living, so that nothing new comes behind the recall.
CommandListener::~CommandListener()
{
    leave();
    CommandExecutor::retrieveCommand(this, nullptr, nullptr);
}

void CommandListener::postCommandAction(Command* command, Displayable* displayable)
{
    CommandExecutor::postCommand(this, command, displayable, true);
}

void CommandListener::retrievePendingCommandAction(Command* command, Displayable* displayable)
{
    CommandExecutor::retrieveCommand(this, command, displayable);
}

}
