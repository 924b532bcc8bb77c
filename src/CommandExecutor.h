#pragma once

#include "DisplayThread.h"

#include <Semaphore.h>

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
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
/// not recalled, and waited for at the end of the application alone.
/// Errors: a listener that is null or has died is ignored. With null a recall matches everything. An exception of a
/// listener ends the process, behind a line in the log that names screen, command and what().
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

    /// The end of an application: recalls all that has not begun, drops what is posted from now on, and returns when
    /// the delivery that has begun has ended; one on the calling thread is not waited for. False if that took longer
    /// than `patience`: a line in the log names it, and it goes on.
    static bool closeDeliveries(std::chrono::milliseconds patience = std::chrono::seconds(5));

    /// Takes deliveries again, as it does when the process begins.
    static void openDeliveries();

    /// How many deliveries have begun, or nothing while one is under way or waits for a worker that comes.
    static std::optional<std::uint64_t> countAtRest();

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
