#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include "AnswerWait.h"
#include "GuiThread.h"
#include "WidgetImpl.h"

#include <Threadable.h>

#include <memory>

namespace DisplayAPI {

std::atomic<unsigned int> WidgetImpl::m_GuiThreadId = 0;

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
    // Behind the wait for the lock the handle itself may have gone: nothing of it is read from there on.
    if (!event)
        event = requestWithoutArguments(-1);
    WaitingRequest waiting(event->numbers(), event->getType());
    WidgetImpl& impl = *mImpl;
    const WidgetImpl::User user(impl);
    awaitAnswer(impl.lock, waiting);

    if (Wait* callersWait = event->waitCondition()) {
        postToApplication(event);
        impl.lock.give();
        awaitAnswer(*callersWait, waiting);
        return;
    }
    Wait wait;
    event->setWaitCondition(&wait);
    postToApplication(event);
    awaitAnswer(wait, waiting);
    impl.lock.give();
}

void Widget::postEvent(int type) const
{
    postEvent(requestWithoutArguments(type));
}

void Widget::postEventAsync(GuiRequestEvent* event) const
{
    if (!event)
        event = requestWithoutArguments(-1);
    WidgetImpl& impl = *mImpl;
    const WidgetImpl::User user(impl);
    impl.lock.take(-1);
    postToApplication(event);
    impl.lock.give();
}

void Widget::postEventAsync(int type) const
{
    postEventAsync(requestWithoutArguments(type));
}

GuiRequestEvent* Widget::requestWithoutArguments(int type) const
{
    return new GuiRequestEvent(const_cast<Widget*>(this), type);
}

void Widget::postEventHelper(bool async, GuiRequestEvent* event)
{
    if (!event)
        event = new GuiRequestEvent(this, -1);
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
