#include <DisplayAPI/ItemStateListener.h>

#include "CommandExecutor.h"
#include "LivingSet.h"

namespace DisplayAPI {

namespace {

// Never destroyed: a listener may be made before main() and die behind it.
LivingSet<ItemStateListener>& livingListeners()
{
    static LivingSet<ItemStateListener>& instance = *new LivingSet<ItemStateListener>;
    return instance;
}

}

ItemStateListener::ItemStateListener()
{
    livingListeners().add(this);
}

ItemStateListener::ItemStateListener(const ItemStateListener&)
    : ItemStateListener()
{
}

// First out of the living, so that nothing new comes behind the recall.
ItemStateListener::~ItemStateListener()
{
    livingListeners().remove(this);
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

bool ItemStateListener::exists(const ItemStateListener* listener)
{
    return listener && livingListeners().contains(listener);
}

}
