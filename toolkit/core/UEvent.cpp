#include "UEvent.h"

#include "UAgent.h"
#include "UWindowManager.h"

UEvent::UEvent(const UEvent& other)
    : type(other.type)
    , mSource(other.mSource)
    , mPayload(other.mPayload)
    , mReceiver(other.mReceiver)
{
    // The queue's link stays with the original: a copy stands in no queue.
}

UEvent::~UEvent() = default;

void UEvent::process()
{
    if (mReceiver)
        mReceiver->event(this);
}

UEvent* UEvent::clone() const
{
    return new UEvent(*this);
}

void UKeyEvent::process()
{
    UWindowManager::instance().dispatchKey(*this);
}

UEvent* UKeyEvent::clone() const
{
    return new UKeyEvent(*this);
}

UEvent* UTimerEvent::clone() const
{
    return new UTimerEvent(*this);
}
