#include <DisplayAPI/ItemStateListener.h>

#include "CommandExecutor.h"

namespace DisplayAPI {

// First out of the living, so that nothing new comes behind the recall.
ItemStateListener::~ItemStateListener()
{
    leave();
    CommandExecutor::retrieveCommand(this, nullptr);
}

void ItemStateListener::postItemStateChange(Item* item)
{
    CommandExecutor::postCommand(this, item, true);
}

void ItemStateListener::retrievePendingItemStateChange(Item* item)
{
    CommandExecutor::retrieveCommand(this, item);
}

}
