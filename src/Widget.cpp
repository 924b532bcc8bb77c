#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include "PostToApplication.h"
#include "WidgetImpl.h"

#include <Threadable.h>

#include <memory>
#include <mutex>
#include <vector>

namespace DisplayAPI {

std::atomic<unsigned int> WidgetImpl::m_GuiThreadId = 0;

namespace {

/// The impls whose last reference went while an event or a call was under way. Never destroyed.
struct Leftovers {
    std::mutex mutex;
    std::vector<WidgetImpl*> impls;
    std::size_t nextSweep = 16;
};

Leftovers& leftovers()
{
    static Leftovers& instance = *new Leftovers;
    return instance;
}

}

bool WidgetImpl::isIdle()
{
    // The lock first: whoever gave it has posted what he posted.
    return lock.isIdle()
        && mPosted.load(std::memory_order_relaxed)
        == mEndedOnGui.load(std::memory_order_acquire) + mEndedElsewhere.load(std::memory_order_acquire);
}

void WidgetImpl::deleteWhenIdle()
{
    if (isIdle()) {
        delete this;
        return;
    }
    Leftovers& left = leftovers();
    std::lock_guard section(left.mutex);
    left.impls.push_back(this);
    // Sweeping only when the number has doubled keeps the cost of each death the same.
    if (left.impls.size() < left.nextSweep)
        return;
    std::erase_if(left.impls, [](WidgetImpl* impl) {
        const bool isIdle = impl->isIdle();
        if (isIdle)
            delete impl;
        return isIdle;
    });
    left.nextSweep = 2 * left.impls.size() + 16;
}

Widget::Widget()
    : mImpl(new WidgetImpl)
{
}

Widget::~Widget()
{
    mImpl->retire();
    mImpl->release();
}

bool Widget::isGuiThread()
{
    const unsigned int id = WidgetImpl::m_GuiThreadId.load(std::memory_order_relaxed);
    return id == 0 || id == Threadable::currentThreadId();
}

void Widget::setGuiThreadId()
{
    WidgetImpl::m_GuiThreadId = Threadable::currentThreadId();
}

void Widget::setGuiThreadId(unsigned int id)
{
    WidgetImpl::m_GuiThreadId = id;
}

void Widget::postEvent(GuiRequestEvent* event) const
{
    if (!event)
        event = GuiRequestEvent::forHandle(this, -1);
    // Behind the wait for the lock the handle itself may have gone.
    WidgetImpl& impl = *mImpl;
    impl.lock.take(-1);

    if (Wait* callersWait = event->waitCondition()) {
        send(event, impl);
        impl.lock.give();
        callersWait->wait();
        return;
    }
    Wait wait;
    event->setWaitCondition(&wait);
    send(event, impl);
    wait.wait();
    impl.lock.give();
}

// The caller holds the lock.
void Widget::send(GuiRequestEvent* event, WidgetImpl& impl)
{
    event->countAsPosted(impl);
    postToApplication(event);
}

void Widget::postEvent(int type) const
{
    postEvent(GuiRequestEvent::forHandle(this, type));
}

void Widget::postEventAsync(GuiRequestEvent* event) const
{
    if (!event)
        event = GuiRequestEvent::forHandle(this, -1);
    // Behind the wait for the lock the handle itself may have gone.
    WidgetImpl& impl = *mImpl;
    impl.lock.take(-1);
    send(event, impl);
    impl.lock.give();
}

void Widget::postEventAsync(int type) const
{
    postEventAsync(GuiRequestEvent::forHandle(this, type));
}

void Widget::postEventHelper(bool async, GuiRequestEvent* event)
{
    if (!event)
        event = GuiRequestEvent::forHandle(this, -1);
    if (isGuiThread()) {
        std::unique_ptr<GuiRequestEvent> owned(event);
        event->freeOwned(false); // the handler takes the copies over
        processGuiRequest(*event);
    } else if (async) {
        postEventAsync(event);
    } else {
        postEvent(event);
    }
}

void Widget::signalComplete(GuiRequestEvent& event)
{
    event.signalComplete();
}

void Widget::purgeOwnMessage(int) { }

void Widget::purgeOwnMessage(std::set<int>*) { }

void Widget::retire()
{
    mImpl->retire();
}

}
