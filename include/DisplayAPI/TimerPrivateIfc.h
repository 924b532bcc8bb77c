#pragma once

#include <DisplayAPI/Export.h>

class UTimerEvent;

namespace DisplayAPI {

class Command;
class CommandListener;
class TimerEvent;

/// The timer on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT TimerPrivateIfc {
public:
    virtual ~TimerPrivateIfc() = default;

    virtual void start(int milliseconds) = 0;
    virtual void stop() = 0;
    virtual void enableSingleShot(bool singleShot) = 0;
    virtual void addCommand(Command* command) = 0;
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
    virtual void addEventListener(TimerEvent* listener) = 0;
    virtual void removeEventListener(TimerEvent* listener) = 0;
    virtual void timerEvent(UTimerEvent* event) = 0;
};

}
