#pragma once

#include "Runnable.h"

#include <Semaphore.h>

#include <deque>
#include <utility>

namespace DisplayAPI {

class Command;
class CommandListener;
class Displayable;
class Item;
class ItemStateListener;

/// The way of a user's action to the application: a queue of deliveries and one worker that empties it, in the
/// order of posting, so that no code of the application runs on the GUI thread.
///
/// Threads: any. No lock is held while a listener runs, and no post waits for one. A delivery that has begun is
/// neither recalled nor waited for.
/// Errors: a listener that is null or has died is ignored. With null a recall matches everything.
class CommandExecutor : public Runnable {
public:
    /// Queues a delivery, also one that waits already. `start` calls a worker if none is at work or on its way.
    static void postCommand(CommandListener* listener, Command* command, Displayable* displayable, bool start);

    /// Queues a state change, unless the same one of the same listener waits already.
    static void postCommand(ItemStateListener* listener, Item* item, bool start);

    /// Takes the deliveries off the queue that match and have not begun. State changes stay.
    static void retrieveCommand(CommandListener* listener, Command* command, Displayable* displayable);

    /// The same for state changes.
    static void retrieveCommand(ItemStateListener* listener, Item* item);

    /// Empties the queue, unless another worker is at it.
    void run() override;

private:
    enum class ItemType : int {
        Command = 0,
        ItemState = 1,
    };
    using ItemQueue = std::deque<std::pair<ItemType, void*>>;
    struct State;

    static State& state();
    static void callWorker();

    static Semaphore& itemQueueSemaphore;
    static ItemQueue& itemQueue GUARDED_BY(itemQueueSemaphore);
    static bool& running GUARDED_BY(itemQueueSemaphore);
};

}
