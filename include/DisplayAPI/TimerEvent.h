#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Numbered.h>

namespace DisplayAPI {

/// Implemented by the application to hear of a Timer on the GUI thread itself.
///
/// Threads: called on the GUI thread, where it must not block. It may call every handle, take itself or others off the
/// timer, and delete the timer. Nobody deletes through this interface.
/// Ownership: the application's. One that dies is forgotten; but it must not die on another thread while it may be
/// inside timerEvent(): behind the destructor of the timer, or a Timer::addCommand() that came behind
/// Timer::removeEventListener(), it is not.
/// Errors: an exception that leaves timerEvent() passes through Timer::start() or comes out of Display::exec(), behind
/// a line in the log that tells what().
class DISPLAYAPI_EXPORT TimerEvent : public Numbered<TimerEvent> {
public:
    /// The timer has fired.
    virtual void timerEvent() = 0;

protected:
    ~TimerEvent() = default;
};

}
