#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/DisplayEventIfc.h>
#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/ExpandingTreeListItem.h>
#include <DisplayAPI/Item.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/Numbered.h>
#include <DisplayAPI/TabListener.h>
#include <DisplayAPI/TextField.h>
#include <DisplayAPI/TimerEvent.h>

#include "LivingSet.h"

namespace DisplayAPI {

namespace {

// Never destroyed: objects may be made before main() and die behind it.
template <typename T>
LivingSet<Numbered<T>>& living()
{
    static LivingSet<Numbered<T>>& instance = *new LivingSet<Numbered<T>>;
    return instance;
}

}

template <typename T>
Numbered<T>::Numbered()
{
    living<T>().add(this);
}

template <typename T>
void Numbered<T>::leave()
{
    living<T>().remove(this);
}

template <typename T>
std::uint64_t Numbered<T>::numberOf(const T* object)
{
    return living<T>().numberOf(object);
}

template <typename T>
std::vector<T*> Numbered<T>::all()
{
    std::vector<T*> objects;
    for (Numbered* object : living<T>().all())
        objects.push_back(static_cast<T*>(object));
    return objects;
}

template class Numbered<CommandListener>;
template class Numbered<Item>;
template class Numbered<ItemStateListener>;
template class Numbered<ListItem>;
template class Numbered<TextField>;
template class Numbered<Displayable>;
template class Numbered<ExpandingTreeListItem>;
template class Numbered<TabListener>;
template class Numbered<DisplayEventIfc>;
template class Numbered<DisplayPrivateIfc>;
template class Numbered<TimerEvent>;

}
