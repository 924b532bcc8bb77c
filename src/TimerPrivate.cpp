#include "TimerPrivate.h"

#include "CommandExecutor.h"
#include "ExceptionLog.h"
#include "GuiThread.h"

namespace DisplayAPI {

TimerPrivate::TimerPrivate(int interval)
    : mTimer(std::make_unique<UTimer>(this, static_cast<unsigned long long>(interval)))
{
    assertGuiThread();
}

TimerPrivate::~TimerPrivate()
{
    assertGuiThread();
    mTimer.reset();
    // Straight from the queue: a listener may die on another thread meanwhile.
    if (Command* command = mCommand.get())
        mCommandListeners.forEach(
            [command](CommandListener* listener) { CommandExecutor::retrieveCommand(listener, command, nullptr); });
}

void TimerPrivate::start(int milliseconds)
{
    if (milliseconds <= 0) {
        timerEvent(nullptr);
        return;
    }
    mTimer->setInterval(static_cast<unsigned long long>(milliseconds));
    mTimer->start();
}

void TimerPrivate::timerEvent(UTimerEvent*)
{
    // Whoever is told may delete this timer.
    LifeNode life(this);
    tellEach(mCommandListeners, [this](CommandListener& listener) { post(listener); });
    if (life.isAlive())
        tellEach(mEventListeners, [](TimerEvent& listener) {
            runAndLogExceptions(
                "src/TimerPrivate", __LINE__, [&] { listener.timerEvent(); },
                [] { return "TimerEvent::timerEvent()"; });
        });
}

/// The list is walked as it was at first; who has left it since, or died, is not told.
template <typename Listener, typename Tell>
void TimerPrivate::tellEach(const ListenerList<Listener>& listeners, Tell tell)
{
    LifeNode life(this);
    listeners.forEach([&](Listener* listener) {
        if (life.isAlive() && listeners.contains(listener))
            tell(*listener);
    });
}

void TimerPrivate::post(CommandListener& listener)
{
    Command* command = mCommand.get();
    const bool hasDied = !command && mCommand.address();
    if (!hasDied)
        listener.postCommandAction(command, nullptr);
}

}
