#include "CommandExecutor.h"

#include "DisplayThread.h"
#include "DisplayThreadPool.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ItemStateListener.h>

#include <Log.h>

#include <cstddef>
#include <functional>
#include <unordered_set>
#include <variant>

namespace DisplayAPI {

namespace {

constexpr int MaximumPoolSize = 10;
constexpr const char* LogModule = "DisplayAPI::AbbreviatedItemPrivate";
constexpr int LogLevel = 5;

template <typename T>
bool isWanted(T* wanted, T* found)
{
    return !wanted || wanted == found;
}

struct CommandDelivery {
    CommandListener* listener = nullptr;
    Command* command = nullptr;
    Displayable* displayable = nullptr;

    void deliver() const { listener->commandAction(command, displayable); }
    bool matches(const CommandDelivery& pattern) const
    {
        return isWanted(pattern.listener, listener) && isWanted(pattern.command, command)
            && isWanted(pattern.displayable, displayable);
    }
};

struct ItemStateDelivery {
    ItemStateListener* listener = nullptr;
    Item* item = nullptr;

    void deliver() const { listener->itemStateChanged(item); }
    bool matches(const ItemStateDelivery& pattern) const
    {
        return isWanted(pattern.listener, listener) && isWanted(pattern.item, item);
    }
    bool operator==(const ItemStateDelivery&) const = default;

    struct Hash {
        std::size_t operator()(const ItemStateDelivery& delivery) const
        {
            return std::hash<void*>()(delivery.listener) * 31 + std::hash<void*>()(delivery.item);
        }
    };
};

using Delivery = std::variant<CommandDelivery, ItemStateDelivery>;

}

/// What waits, and who is at work. The entries of the queue point into the two containers of records, whose
/// elements stay where they are while others come and go. A deque takes its memory in blocks: a record that one
/// thread allocates and another one frees would cost more than the rest of a post.
struct CommandExecutor::State {
    Semaphore semaphore{Semaphore::AVAILABLE, 1};
    ItemQueue queue GUARDED_BY(semaphore);
    std::deque<CommandDelivery> commands GUARDED_BY(semaphore); // in the order of the queue
    std::unordered_set<ItemStateDelivery, ItemStateDelivery::Hash> changes GUARDED_BY(semaphore);
    bool running GUARDED_BY(semaphore) = false;
    bool starting GUARDED_BY(semaphore) = false; // a worker has been called and has not arrived yet

    bool claimStart(bool start) REQUIRES(semaphore);
    bool takeFirst(Delivery& delivery) REQUIRES(semaphore);
    std::size_t recall(const CommandDelivery& pattern) REQUIRES(semaphore);
    std::size_t recall(const ItemStateDelivery& pattern) REQUIRES(semaphore);
};

/// True if the caller has to call a worker: one start is under way at a time.
bool CommandExecutor::State::claimStart(bool start)
{
    if (!start || running || starting)
        return false;
    starting = true;
    return true;
}

/// Takes the head off the queue. Without one the work is done.
bool CommandExecutor::State::takeFirst(Delivery& delivery)
{
    running = !queue.empty();
    if (!running)
        return false;
    const auto [type, record] = queue.front();
    queue.pop_front();
    if (type == ItemType::Command) {
        delivery = *static_cast<const CommandDelivery*>(record);
        commands.pop_front();
    } else {
        const ItemStateDelivery change = *static_cast<const ItemStateDelivery*>(record);
        delivery = change;
        changes.erase(change);
    }
    return true;
}

std::size_t CommandExecutor::State::recall(const CommandDelivery& pattern)
{
    if (commands.empty())
        return 0;
    // The commands that stay close the ranks, so their entries point at other records.
    std::size_t examined = 0;
    std::size_t kept = 0;
    auto end = queue.begin();
    for (auto [type, record] : queue) {
        if (type == ItemType::Command) {
            const CommandDelivery found = commands[examined++];
            if (found.matches(pattern))
                continue;
            commands[kept] = found;
            record = &commands[kept++];
        }
        *end++ = {type, record};
    }
    queue.erase(end, queue.end());
    commands.resize(kept);
    return examined - kept;
}

std::size_t CommandExecutor::State::recall(const ItemStateDelivery& pattern)
{
    if (changes.empty())
        return 0;
    return std::erase_if(queue, [&](const ItemQueue::value_type& entry) REQUIRES(semaphore) {
        if (entry.first != ItemType::ItemState)
            return false;
        const ItemStateDelivery found = *static_cast<const ItemStateDelivery*>(entry.second);
        return found.matches(pattern) && changes.erase(found) > 0;
    });
}

// Worker threads may be at work while the process ends, and commands may be posted before main().
CommandExecutor::State& CommandExecutor::state()
{
    static State& instance = *new State;
    return instance;
}

Semaphore& CommandExecutor::itemQueueSemaphore = state().semaphore;
CommandExecutor::ItemQueue& CommandExecutor::itemQueue = state().queue;
bool& CommandExecutor::running = state().running;

void CommandExecutor::postCommand(CommandListener* listener, Command* command, Displayable* displayable, bool start)
{
    if (!listener)
        return;
    State& waiting = state();
    bool mustCallWorker = false;
    {
        CriticalSection section(waiting.semaphore);
        // Asked under the lock: who dies leaves the living first and recalls then.
        if (!CommandListener::exists(listener) || (command && Command::numberOf(command) == 0))
            return;
        waiting.commands.push_back({listener, command, displayable});
        waiting.queue.emplace_back(ItemType::Command, &waiting.commands.back());
        mustCallWorker = waiting.claimStart(start);
    }
    if (mustCallWorker)
        callWorker();
}

void CommandExecutor::postCommand(ItemStateListener* listener, Item* item, bool start)
{
    if (!listener)
        return;
    State& waiting = state();
    bool mustCallWorker = false;
    {
        CriticalSection section(waiting.semaphore);
        if (!ItemStateListener::exists(listener))
            return;
        const auto [record, isNew] = waiting.changes.insert({listener, item});
        if (!isNew)
            return;
        waiting.queue.emplace_back(ItemType::ItemState, const_cast<ItemStateDelivery*>(&*record));
        mustCallWorker = waiting.claimStart(start);
    }
    if (mustCallWorker)
        callWorker();
}

/// Outside of the lock, which the worker needs as soon as it wakes.
void CommandExecutor::callWorker()
{
    if (DisplayThread* worker = DisplayThreadPool::instance(MaximumPoolSize)->getThread()) {
        worker->executeRequest(new CommandExecutor);
        return;
    }
    // The platform gives no thread: the next post tries again.
    State& waiting = state();
    CriticalSection section(waiting.semaphore);
    waiting.starting = false;
}

void CommandExecutor::run()
{
    State& waiting = state();
    Delivery delivery;
    {
        CriticalSection section(waiting.semaphore);
        waiting.starting = false;
        if (waiting.running || !waiting.takeFirst(delivery))
            return;
    }
    for (;;) {
        std::visit([](const auto& what) { what.deliver(); }, delivery);
        CriticalSection section(waiting.semaphore);
        if (!waiting.running || !waiting.takeFirst(delivery))
            return;
    }
}

void CommandExecutor::retrieveCommand(CommandListener* listener, Command* command, Displayable* displayable)
{
    State& waiting = state();
    std::size_t recalled = 0;
    {
        CriticalSection section(waiting.semaphore);
        recalled = waiting.recall(CommandDelivery{listener, command, displayable});
    }
    // The sink of the log may be the application's, so it is called without the lock.
    if (recalled == 0 || !loggingOnAppUni(LogModule, LogLevel))
        return;
    for (; recalled > 0; --recalled) {
        logAppUni(LogModule, "src/CommandExecutor", LogLevel, __LINE__,
            "CommandExecutor::retrieveCommand(CommandListener=%p, Command=%p, Displayable=%p) recall of posted "
            "command.",
            static_cast<void*>(listener), static_cast<void*>(command), static_cast<void*>(displayable));
    }
}

void CommandExecutor::retrieveCommand(ItemStateListener* listener, Item* item)
{
    State& waiting = state();
    std::size_t recalled = 0;
    {
        CriticalSection section(waiting.semaphore);
        recalled = waiting.recall(ItemStateDelivery{listener, item});
    }
    if (recalled == 0 || !loggingOnAppUni(LogModule, LogLevel))
        return;
    for (; recalled > 0; --recalled) {
        logAppUni(LogModule, "src/CommandExecutor", LogLevel, __LINE__,
            "CommandExecutor::retrieveCommand(ItemStateListener=%p, Item=%p) recall of posted command.",
            static_cast<void*>(listener), static_cast<void*>(item));
    }
}

}
