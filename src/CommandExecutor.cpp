#include "CommandExecutor.h"

#include "DeliveryNotice.h"
#include "DisplayThread.h"
#include "DisplayThreadPool.h"
#include "ExceptionLog.h"
#include "ExistingDisplayables.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/Living.h>

#include <Log.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <sstream>
#include <string>
#include <unordered_set>
#include <variant>
#include <vector>

namespace DisplayAPI {

namespace {

constexpr int MaximumPoolSize = 10;
constexpr const char* LogModule = "DisplayAPI::AbbreviatedItemPrivate";
constexpr int LogLevel = 5;

template <typename T>
bool isWanted(T* wanted, const Living<T>& found)
{
    return !wanted || found.isAt(wanted);
}

template <typename T>
bool isWanted(T* wanted, T* found)
{
    return !wanted || found == wanted;
}

/// What a recall names; null matches everything.
struct CommandPattern {
    CommandListener* listener;
    Command* command;
    Displayable* displayable;
};

struct CommandDelivery {
    Living<CommandListener> listener;
    Living<Command> command;
    Displayable* displayable = nullptr;

    /// False once one of those whom it names has died.
    bool isLiving() const
    {
        return listener && (command || command.isAt(nullptr)) && (!displayable || displayableExists(displayable));
    }
    void deliver() const
    {
        noticeDelivery(listener, command, displayable);
        CommandListener* living = listener.get();
        Command* what = command.get();
        if (living && (what || command.isAt(nullptr)))
            living->commandAction(what, displayable);
    }
    bool matches(const CommandPattern& pattern) const
    {
        return isWanted(pattern.listener, listener) && isWanted(pattern.command, command)
            && isWanted(pattern.displayable, displayable);
    }
};

struct ItemStatePattern {
    ItemStateListener* listener;
    Item* item;
};

struct ItemStateDelivery {
    Living<ItemStateListener> listener;
    Item* item = nullptr;

    bool isLiving() const { return static_cast<bool>(listener); }
    void deliver() const
    {
        if (ItemStateListener* living = listener.get())
            living->itemStateChanged(item);
    }
    bool matches(const ItemStatePattern& pattern) const
    {
        return isWanted(pattern.listener, listener) && isWanted(pattern.item, item);
    }
    bool operator==(const ItemStateDelivery&) const = default;

    struct Hash {
        std::size_t operator()(const ItemStateDelivery& delivery) const
        {
            return std::hash<std::uint64_t>()(delivery.listener.number()) * 31 + std::hash<void*>()(delivery.item);
        }
    };
};

using Delivery = std::variant<CommandDelivery, ItemStateDelivery>;

/// The label of a command that may have gone. Whoever hangs may hold the lock of all commands: no label then.
std::string labelOf(const Living<Command>& command)
{
    constexpr int briefly = 100;
    std::string label;
    Semaphore& lock = Command::commandListMutex();
    if (!lock.take(briefly))
        return label;
    if (const Command* living = command.get())
        label = living->getLabel();
    lock.give();
    return label;
}

std::string described(const CommandDelivery& delivery)
{
    std::ostringstream text;
    text << "command \"" << labelOf(delivery.command) << "\" (" << delivery.command.address() << ") of screen \""
         << nameOfLiving(delivery.displayable) << "\" (" << delivery.displayable << ')';
    return text.str();
}

std::string described(const ItemStateDelivery& delivery)
{
    std::ostringstream text;
    text << "changed item (" << delivery.item << ')';
    return text.str();
}

std::string described(const Delivery& delivery)
{
    return "The delivery of " + std::visit([](const auto& each) { return described(each); }, delivery);
}

void logDelivery(const Delivery& delivery, const std::string& what, int line)
{
    constexpr const char* module = "DisplayAPI";
    constexpr int level = 2;
    if (!loggingOnAppUni(module, level))
        return;
    logAppUni(module, "src/CommandExecutor", level, line, "%s %s.", described(delivery).c_str(), what.c_str());
}

void deliver(const Delivery& delivery)
{
    runAndLogExceptions(
        "src/CommandExecutor", __LINE__, [&] { std::visit([](const auto& what) { what.deliver(); }, delivery); },
        [&] { return described(delivery); });
}

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
    bool starting GUARDED_BY(semaphore) = false;   // a worker has been called and has not arrived yet
    bool closed GUARDED_BY(semaphore) = false;     // nothing is queued
    std::uint64_t count GUARDED_BY(semaphore) = 0; // of the deliveries that have begun
    const Delivery* inHand GUARDED_BY(semaphore) = nullptr;
    unsigned int worker GUARDED_BY(semaphore) = 0;         // the thread that is at it
    std::vector<Semaphore*> closers GUARDED_BY(semaphore); // who waits until the work is done

    bool claimStart(bool start) REQUIRES(semaphore);
    bool takeFirst(Delivery& delivery) REQUIRES(semaphore);
    std::size_t recall(const CommandPattern& pattern) REQUIRES(semaphore);
    std::size_t recall(const ItemStatePattern& pattern) REQUIRES(semaphore);
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
    ++count;
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

std::size_t CommandExecutor::State::recall(const CommandPattern& pattern)
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

std::size_t CommandExecutor::State::recall(const ItemStatePattern& pattern)
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
        const CommandDelivery delivery{Living<CommandListener>(listener), Living<Command>(command), displayable};
        if (waiting.closed || !delivery.isLiving())
            return;
        waiting.commands.push_back(delivery);
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
        const ItemStateDelivery delivery{Living<ItemStateListener>(listener), item};
        if (waiting.closed || !delivery.isLiving())
            return;
        const auto [record, isNew] = waiting.changes.insert(delivery);
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
        waiting.inHand = &delivery;
        waiting.worker = Threadable::currentThreadId();
    }
    std::vector<Semaphore*> closers;
    for (bool isDone = false; !isDone;) {
        deliver(delivery);
        CriticalSection section(waiting.semaphore);
        isDone = !waiting.takeFirst(delivery);
        if (isDone) {
            waiting.inHand = nullptr;
            closers.swap(waiting.closers);
        }
    }
    for (Semaphore* closer : closers)
        closer->give();
}

bool CommandExecutor::closeDeliveries(std::chrono::milliseconds patience)
{
    State& waiting = state();
    {
        CriticalSection section(waiting.semaphore);
        waiting.closed = true;
    }
    retrieveCommand(nullptr, nullptr, nullptr);
    retrieveCommand(nullptr, nullptr);
    Semaphore done(Semaphore::NOT_AVAILABLE);
    {
        CriticalSection section(waiting.semaphore);
        if (!waiting.running || waiting.worker == Threadable::currentThreadId())
            return true;
        waiting.closers.push_back(&done);
    }
    if (done.take(static_cast<int>(patience.count())))
        return true;
    bool isLate = false;
    Delivery delivery;
    {
        CriticalSection section(waiting.semaphore);
        isLate = std::erase(waiting.closers, &done) > 0;
        if (isLate)
            delivery = *waiting.inHand;
    }
    if (isLate)
        logDelivery(delivery, "has not ended, and is waited for no longer", __LINE__);
    else
        done.take(-1); // it has ended meanwhile, and its worker is about to say so
    return !isLate;
}

std::optional<std::uint64_t> CommandExecutor::countAtRest()
{
    State& waiting = state();
    CriticalSection section(waiting.semaphore);
    return waiting.running || waiting.starting ? std::nullopt : std::optional(waiting.count);
}

void CommandExecutor::openDeliveries()
{
    State& waiting = state();
    CriticalSection section(waiting.semaphore);
    waiting.closed = false;
}

void CommandExecutor::retrieveCommand(CommandListener* listener, Command* command, Displayable* displayable)
{
    State& waiting = state();
    std::size_t recalled = 0;
    {
        CriticalSection section(waiting.semaphore);
        recalled = waiting.recall(CommandPattern{listener, command, displayable});
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
        recalled = waiting.recall(ItemStatePattern{listener, item});
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
