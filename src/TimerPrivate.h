#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ListenerList.h>
#include <DisplayAPI/TimerEvent.h>
#include <DisplayAPI/TimerPrivateIfc.h>

#include <UAgent.h>
#include <ULoop.h>

#include <memory>

namespace DisplayAPI {

/// The timer on the GUI thread: a UTimer and those it tells.
class TimerPrivate final : public TimerPrivateIfc, public UAgent {
public:
    explicit TimerPrivate(int interval);
    ~TimerPrivate() override;

    void start(int milliseconds) override;
    void stop() override { mTimer->stop(); }
    void enableSingleShot(bool singleShot) override { mTimer->setSingleShot(singleShot); }

    void addCommand(Command* command) override { mCommand = Living<Command>(command); }
    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void removeCommandListener(CommandListener* listener) override { mCommandListeners.remove(listener); }
    void addEventListener(TimerEvent* listener) override { mEventListeners.add(listener); }
    void removeEventListener(TimerEvent* listener) override { mEventListeners.remove(listener); }
    ListenerList<CommandListener>* getCommandListenerList() { return &mCommandListeners; }
    ListenerList<TimerEvent>* getTimerEventListenerList() { return &mEventListeners; }

    void timerEvent(UTimerEvent* event) override;

private:
    template <typename Listener, typename Tell>
    void tellEach(const ListenerList<Listener>& listeners, Tell tell);
    void post(CommandListener& listener);

    ListenerList<CommandListener> mCommandListeners;
    ListenerList<TimerEvent> mEventListeners;
    std::unique_ptr<UTimer> mTimer;
    Living<Command> mCommand;
};

}
