#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Numbered.h>

namespace DisplayAPI {

class Command;
class Displayable;

/// Implemented by the application to hear of the user's actions.
///
/// Threads: commandAction() runs on a worker thread, one delivery after the other, in the order of posting; it
/// may call every handle. No lock of the library is held meanwhile.
/// Ownership: a listener stays the application's. Its destructor recalls what waits for it, but a delivery that
/// has begun is not held up: don't destroy a listener while it may be inside commandAction(). When Display::exec() has
/// returned, none is.
/// Errors: an exception that leaves commandAction() ends the process, behind a line in the log that names screen,
/// command and what().
class DISPLAYAPI_EXPORT CommandListener : public Numbered<CommandListener> {
public:
    CommandListener() = default;
    CommandListener(const CommandListener&) = default;
    CommandListener& operator=(const CommandListener&) = default;
    virtual ~CommandListener();

    /// The action: which command, and on which screen; null for a command without a screen.
    virtual void commandAction(Command* command, Displayable* displayable) = 0;

    /// Queues a delivery of the command.
    virtual void postCommandAction(Command* command, Displayable* displayable);

    /// Recalls the deliveries that match and have not begun; null matches everything.
    void retrievePendingCommandAction(Command* command, Displayable* displayable);
};

}
