#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include "WidgetImpl.h"

#include <EventPool.h>
#include <Semaphore.h>

namespace DisplayAPI {

GuiRequestEvent::GuiRequestEvent(Widget* requester, int requestType)
    : GuiRequestEvent(requester, nullptr, requestType, Hold::Counted)
{
}

GuiRequestEvent::GuiRequestEvent(Widget* requester, Wait* wait, int requestType)
    : GuiRequestEvent(requester, wait, requestType, Hold::Counted)
{
}

GuiRequestEvent::GuiRequestEvent(Widget* requester, Wait* wait, int requestType, Hold hold)
    : UEvent(EventType::GuiRequest)
    , mRequester(requester)
    , mImpl(requester ? requester->mImpl : nullptr)
    , mWait(wait)
    , mRequestType(requestType)
    , mHold(mImpl ? hold : Hold::None)
{
    if (mHold == Hold::Counted)
        mImpl->retain();
}

GuiRequestEvent::~GuiRequestEvent()
{
    if (mOwned)
        freeOwned(true);
    if (mHold == Hold::Posted)
        mImpl->eventEnded(Widget::isGuiThread());
    else if (mHold == Hold::Counted)
        mImpl->release();
    // Nobody has answered: the waiter must not wait for ever. It may be gone right behind this.
    if (mWait && !mIsAnswered)
        mWait->abandon();
}

GuiRequestEvent* GuiRequestEvent::forHandle(const Widget* requester, int requestType)
{
    // A const operation posts too: the GUI thread runs the request on the same handle.
    return new GuiRequestEvent(const_cast<Widget*>(requester), nullptr, requestType, Hold::None);
}

void GuiRequestEvent::countAsPosted(WidgetImpl& poster)
{
    if (mHold != Hold::None || !mImpl)
        return;
    // Only the lock of the event's own handle makes the cheap count safe.
    mHold = mImpl == &poster ? Hold::Posted : Hold::Counted;
    if (mHold == Hold::Posted)
        mImpl->eventPosted();
    else
        mImpl->retain();
}

void GuiRequestEvent::process()
{
    if (!mRequester || mImpl->isRetired())
        return;
    if (mOwned)
        freeOwned(false);
    mRequester->processGuiRequest(*this);
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
