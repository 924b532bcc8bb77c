#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerPrivateIfc.h>

#include "Road.h"
#include "TimerPrivate.h"

#include <Semaphore.h>

namespace DisplayAPI {

enum class Timer::Request : int {
    Create = 0,
    Destroy = 1,
    Start = 2,
    Stop = 3,
    EnableSingleShot = 4,
    AddCommand = 5,
    AddCommandListener = 6,
    RemoveCommandListener = 7,
    AddEventListener = 8,
    RemoveEventListener = 9,
};

Timer::Timer(int interval)
{
    create(interval);
}

Timer::~Timer()
{
    if (isGuiThread()) {
        cleanUp();
        return;
    }
    // A wait of its own leaves the handle's lock free meanwhile.
    Wait wait;
    GuiRequestEvent* event = makeRequest(this, Request::Destroy);
    event->setWaitCondition(&wait);
    postEvent(event);
    Road::keepIfRefused(this, mPrivate);
}

void Timer::create(int interval)
{
    if (!Road::post(this, Request::Create, interval))
        return;
    mName = "Timer";
    mPrivate = std::make_unique<TimerPrivate>(interval);
}

void Timer::cleanUp()
{
    retire();
    mPrivate.reset();
}

// Clock

void Timer::start(int milliseconds)
{
    if (auto* half = Road::post(this, mPrivate, Request::Start, milliseconds))
        half->start(milliseconds);
}

void Timer::stop()
{
    if (auto* half = Road::post(this, mPrivate, Request::Stop))
        half->stop();
}

void Timer::enableSingleShot(bool singleShot)
{
    if (auto* half = Road::post(this, mPrivate, Request::EnableSingleShot, singleShot))
        half->enableSingleShot(singleShot);
}

// Whom it tells

void Timer::addCommand(Command* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommand, command))
        half->addCommand(command);
}

void Timer::addCommandListener(CommandListener* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddCommandListener, listener))
        half->addCommandListener(listener);
}

void Timer::removeCommandListener(CommandListener* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::RemoveCommandListener, listener))
        half->removeCommandListener(listener);
}

void Timer::addEventListener(TimerEvent* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddEventListener, listener))
        half->addEventListener(listener);
}

void Timer::removeEventListener(TimerEvent* listener)
{
    if (auto* half = Road::post(this, mPrivate, Request::RemoveEventListener, listener))
        half->removeEventListener(listener);
}

// Road across threads

void Timer::processGuiRequest(GuiRequestEvent& event)
{
    void* const object = event.ptrParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(event.intParam1); break;
    case Request::Destroy: cleanUp(); break;
    case Request::Start: start(event.intParam1); break;
    case Request::Stop: stop(); break;
    case Request::EnableSingleShot: enableSingleShot(event.boolParam1); break;
    case Request::AddCommand: addCommand(static_cast<Command*>(object)); break;
    case Request::AddCommandListener: addCommandListener(static_cast<CommandListener*>(object)); break;
    case Request::RemoveCommandListener: removeCommandListener(static_cast<CommandListener*>(object)); break;
    case Request::AddEventListener: addEventListener(static_cast<TimerEvent*>(object)); break;
    case Request::RemoveEventListener: removeEventListener(static_cast<TimerEvent*>(object)); break;
    }
    signalComplete(event);
}

}
