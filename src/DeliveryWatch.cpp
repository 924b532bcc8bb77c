#include <DisplayAPI/DeliveryWatch.h>

#include "CommandExecutor.h"
#include "DeliveryNotice.h"
#include "ExistingDisplayables.h"

#include <Semaphore.h>

#include <atomic>
#include <utility>

namespace DisplayAPI {

namespace {

struct State {
    std::atomic<bool> isWatched = false;
    Semaphore semaphore{Semaphore::AVAILABLE, 1};
    DeliveryWatch::Observer observer GUARDED_BY(semaphore);
};

// Never destroyed: a worker may be at it while the process ends.
State& state()
{
    static State& instance = *new State;
    return instance;
}

}

void DeliveryWatch::setObserver(Observer observer)
{
    State& watch = state();
    CriticalSection section(watch.semaphore);
    watch.isWatched = static_cast<bool>(observer);
    watch.observer = std::move(observer);
}

std::optional<std::uint64_t> DeliveryWatch::countAtRest()
{
    return CommandExecutor::countAtRest();
}

void noticeDelivery(
    const Living<CommandListener>& listener, const Living<Command>& command, const Displayable* displayable)
{
    State& watch = state();
    if (!watch.isWatched.load(std::memory_order_relaxed) || !listener)
        return;
    DeliveryWatch::Delivery delivery;
    delivery.screen = nameOfLiving(displayable);
    {
        CriticalSection section(Command::commandListMutex());
        const Command* living = command.get();
        if (!living && !command.isAt(nullptr))
            return;
        if (living) {
            delivery.text = living->getText();
            delivery.type = living->getType();
        }
    }
    CriticalSection section(watch.semaphore);
    if (watch.observer)
        watch.observer(delivery);
}

}
