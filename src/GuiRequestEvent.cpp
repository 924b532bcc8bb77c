#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include "ExceptionLog.h"
#include "WidgetImpl.h"

#include <EventPool.h>
#include <Semaphore.h>

namespace DisplayAPI {

GuiRequestEvent::GuiRequestEvent(Widget* requester, int requestType)
    : GuiRequestEvent(requester, nullptr, requestType)
{
}

GuiRequestEvent::GuiRequestEvent(Widget* requester, Wait* wait, int requestType)
    : UEvent(EventType::GuiRequest)
    , mRequester(requester)
    , mImpl(requester ? requester->mImpl : nullptr)
    , mWait(wait)
    , mRequestType(requestType)
{
    if (mImpl)
        mImpl->retain();
}

GuiRequestEvent::~GuiRequestEvent()
{
    if (mOwned)
        freeOwned(true);
    if (mImpl)
        mImpl->release();
    // Nobody has answered: the waiter must not wait for ever. It may be gone right behind this.
    if (mWait && !mIsAnswered)
        mWait->abandon();
}

void GuiRequestEvent::process()
{
    if (!mRequester || mImpl->isRetired())
        return;
    if (mOwned)
        freeOwned(false);
    runAndLogExceptions(
        "src/GuiRequestEvent", __LINE__, [this] { mRequester->processGuiRequest(*this); },
        [this] {
            const std::string handle = mImpl->isRetired() ? "handle that has gone" : mRequester->widgetName();
            return "Request " + std::to_string(mRequestType) + " of a " + handle;
        });
}

bool GuiRequestEvent::waitForCompletion()
{
    return !mWait || mWait->wait();
}

void GuiRequestEvent::signalComplete()
{
    if (!mWait || mIsAnswered)
        return;
    mIsAnswered = true;
    mWait->release();
}

void GuiRequestEvent::freeOwned(bool withObjects)
{
    while (Owned* owned = mOwned) {
        mOwned = owned->next;
        if (withObjects)
            owned->destroy(owned->object);
        delete owned;
    }
}

void* GuiRequestEvent::operator new(std::size_t size)
{
    return EventPool::allocate(size);
}

void GuiRequestEvent::operator delete(void* block, std::size_t size)
{
    EventPool::release(block, size);
}

static_assert(sizeof(GuiRequestEvent) <= EventPool::BlockSize, "request events come from the pool");

}
