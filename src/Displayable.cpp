#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/ListenerList.h>

#include "CommandExecutor.h"
#include "DisplayPrivate.h"
#include "ExistingDisplayables.h"

namespace DisplayAPI {

Displayable::Displayable()
    : mItemStateListeners(std::make_unique<ListenerList<ItemStateListener>>())
{
    mName = "Displayable with no name";
    registerDisplayable(this);
}

Displayable::~Displayable()
{
    // First dead and out of the registry, so that nobody asks for a half any more and nothing new comes behind the
    // recall.
    leave();
    unregisterDisplayable(this);
    CommandExecutor::retrieveCommand(nullptr, nullptr, this);
}

void Displayable::processGuiRequest(GuiRequestEvent&) { }

void Displayable::addItemStateListener(ItemStateListener* listener)
{
    mItemStateListeners->add(listener);
}

void Displayable::callListeners(Item* item)
{
    mItemStateListeners->notify(&ItemStateListener::postItemStateChange, item);
}

void Displayable::useSoftKeys() { }

void Displayable::doNotUseSoftKeys() { }

void Displayable::doNotUseSoftKeysForContent() { }

void Displayable::useSoftKeysBasedOnCommands() { }

void Displayable::retireScreen()
{
    retire();
    leave();
    unregisterDisplayable(this);
    if (auto* half = dynamic_cast<DisplayablePrivate*>(getPrivateImpl()); half && half->holder()) {
        // It takes its widget with it, wherever that stands.
        half->gainOwnership();
        half->leaveHolder();
    }
    for (DisplayPrivateIfc* living : DisplayPrivateIfc::all()) {
        if (auto* display = dynamic_cast<DisplayPrivate*>(living))
            display->forget(this);
    }
}

}
