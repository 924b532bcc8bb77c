#include <DisplayAPI/CommandListener.h>

#include "CommandExecutor.h"
#include "LivingSet.h"

namespace DisplayAPI {

namespace {

// Never destroyed: a listener may be made before main() and die behind it.
LivingSet<CommandListener>& livingListeners()
{
    static LivingSet<CommandListener>& instance = *new LivingSet<CommandListener>;
    return instance;
}

}

CommandListener::CommandListener()
{
    livingListeners().add(this);
}

CommandListener::CommandListener(const CommandListener&)
    : CommandListener()
{
}

// First out of the living, so that nothing new comes behind the recall.
CommandListener::~CommandListener()
{
    livingListeners().remove(this);
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

bool CommandListener::exists(const CommandListener* listener)
{
    return listener && livingListeners().contains(listener);
}

}
