#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Numbered.h>

namespace DisplayAPI {

class Item;

/// Implemented by the application to hear of changed fields.
///
/// Threads, ownership and errors are those of CommandListener. A change that is posted while the same one still waits
/// is delivered once.
class DISPLAYAPI_EXPORT ItemStateListener : public Numbered<ItemStateListener> {
public:
    ItemStateListener() = default;
    ItemStateListener(const ItemStateListener&) = default;
    ItemStateListener& operator=(const ItemStateListener&) = default;
    virtual ~ItemStateListener();

    virtual void itemStateChanged(Item* item) = 0;

    /// Queues a delivery.
    void postItemStateChange(Item* item);

    /// Recalls the deliveries of the item that have not begun; null matches every item.
    void retrievePendingItemStateChange(Item* item);
};

}
