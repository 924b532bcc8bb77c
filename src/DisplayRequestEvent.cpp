#include <DisplayAPI/Display.h>
#include <DisplayAPI/DisplayRequestEvent.h>

#include "ExceptionLog.h"

#include <EventPool.h>
#include <Semaphore.h>

namespace DisplayAPI {

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request)
    : UEvent(EventType::DisplayRequest)
    , mRequester(requester)
    , mRequest(request)
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request, Displayable* displayable)
    : DisplayRequestEvent(requester, request)
{
    mDisplayable = displayable;
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request, bool value)
    : DisplayRequestEvent(requester, request)
{
    mBool = value;
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request, int value)
    : DisplayRequestEvent(requester, request)
{
    mInts[0] = value;
}

DisplayRequestEvent::DisplayRequestEvent(
    Display* requester, DisplayRequests request, unsigned int first, unsigned int second, unsigned int third)
    : DisplayRequestEvent(requester, request, first, second, third, 0, 0)
{
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request, unsigned int first,
    unsigned int second, unsigned int third, unsigned int fourth, unsigned int fifth)
    : DisplayRequestEvent(requester, request)
{
    const unsigned int values[] = {first, second, third, fourth, fifth};
    for (int i = 0; i < 5; ++i)
        mInts[i] = static_cast<int>(values[i]);
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request, bool value, int number)
    : DisplayRequestEvent(requester, request)
{
    mBool = value;
    mInts[0] = number;
}

DisplayRequestEvent::DisplayRequestEvent(Display* requester, DisplayRequests request, const std::string& text)
    : DisplayRequestEvent(requester, request)
{
    mString = text;
}

DisplayRequestEvent::DisplayRequestEvent(
    Display* requester, DisplayRequests request, const std::vector<Rect>& rects, const std::string& text)
    : DisplayRequestEvent(requester, request)
{
    mSerialisableRects = &rects;
    mString = text;
}

DisplayRequestEvent::DisplayRequestEvent(
    Display* requester, DisplayRequests request, int value, const std::string& text)
    : DisplayRequestEvent(requester, request)
{
    mInts[0] = value;
    mString = text;
}

DisplayRequestEvent::~DisplayRequestEvent()
{
    // Nobody has answered: the caller must not wait for ever. It may be gone right behind this.
    if (mSemaphore && !mIsAnswered)
        mSemaphore->abandon();
}

void DisplayRequestEvent::process()
{
    // A display that was followed by another one may die with requests in the queue.
    if (!Display::exists(mRequester))
        return;
    runAndLogExceptions(
        "src/DisplayRequestEvent", __LINE__, [this] { mRequester->processDisplayRequest(this); },
        [this] { return "Request " + std::to_string(mRequest) + " of the display"; });
}

void DisplayRequestEvent::requestCompleted()
{
    if (!mSemaphore || mIsAnswered)
        return;
    mIsAnswered = true;
    mSemaphore->give();
}

void DisplayRequestEvent::setDisplayedRects(std::vector<Rect>* rects)
{
    if (mRectsCopy && rects) {
        *mRectsCopy = *rects;
        rects = mRectsCopy;
    }
    if (mDisplayedRects)
        *mDisplayedRects = rects;
}

void* DisplayRequestEvent::operator new(std::size_t size)
{
    return EventPool::allocate(size);
}

void DisplayRequestEvent::operator delete(void* block, std::size_t size)
{
    EventPool::release(block, size);
}

static_assert(sizeof(DisplayRequestEvent) <= EventPool::BlockSize, "request events come from the pool");

}
