#include <DisplayAPI/Item.h>

#include "CommandExecutor.h"
#include "ItemHolder.h"

#include <utility>

namespace DisplayAPI {

Item::~Item()
{
    // An item of the application's own, perhaps. Behind the loop its holder finds out when it asks.
    if (isGuiThread())
        retireItem(nullptr);
    leave();
    CommandExecutor::retrieveCommand(nullptr, this);
}

void Item::retireItem(ItemPrivateIfc* half)
{
    retire();
    // Dead for everybody, before the holder tells of it.
    const Living<Item> self(this);
    leave();
    if (ItemHolder* holder = std::exchange(mHolder, nullptr))
        holder->itemDies(self, half);
}

void Item::setParent(Displayable* parent)
{
    mParent = parent;
}

const char* Item::getType()
{
    return "baseItem";
}

unsigned int Item::getID()
{
    return 0;
}

void Item::setReadOnly(bool) { }

bool Item::isReadOnly()
{
    return false;
}

}
