#pragma once

#include <DisplayAPI/Numbered.h>
#include <DisplayAPI/Widget.h>

#include <memory>

namespace DisplayAPI {

class DisplayablePrivateIfc;
class Item;
class ItemStateListener;
template <typename T>
class ListenerList;

/// The base of every screen. A Displayable enters the registry of living screens when it is made, and the
/// display asks that registry before it uses a pointer.
///
/// Ownership: the application owns its screens. A screen may be deleted while it is shown: the display forgets
/// it, and so does a screen that holds it, such as a tab screen. Deleting it recalls the pending deliveries that name it.
class DISPLAYAPI_EXPORT Displayable : public Widget, public Numbered<Displayable> {
public:
    ~Displayable() override;
    void processGuiRequest(GuiRequestEvent& event) override;

    /// The half on the GUI thread; null until it has been made. The display asks on the GUI thread, with no lock held;
    /// a screen that another thread deletes meanwhile, since the loop has ended, waits for the answer.
    virtual DisplayablePrivateIfc* getPrivateImpl() = 0;

    // Item state

    /// Adds a listener; one that is added twice is told twice.
    void addItemStateListener(ItemStateListener* listener);

    /// Posts a change of the item to every listener, in order.
    void callListeners(Item* item);

    // Soft keys: this telephone has none

    void useSoftKeys();
    void doNotUseSoftKeys();
    void doNotUseSoftKeysForContent();
    void useSoftKeysBasedOnCommands();

protected:
    Displayable();

    /// The deletion of a screen's private on the GUI thread: retires the handle and takes it out of the
    /// registry and off the stack. What is left is to delete the private. A class of the application's own that has
    /// a half calls it first in its destructor.
    void retireScreen();

private:
    friend class Road;

    std::unique_ptr<ListenerList<ItemStateListener>> mItemStateListeners;
};

}
