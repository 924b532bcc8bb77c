#pragma once

#include <DisplayAPI/Widget.h>

#include <memory>

namespace DisplayAPI {

class Command;
class CommandListener;
class TimerEvent;
class TimerPrivateIfc;

/// A timer on the telephone's clock, which tells its listeners each time it fires.
///
/// It is made stopped. Started, it fires again and again until stop(), or once if it is single shot. The command
/// listeners get its command on a worker thread, with no screen; the event listeners are called on the GUI thread
/// behind that. Within each kind they are told in the order of joining. Who is taken off meanwhile is not told.
///
/// Threads: any. Every call returns at once but addCommand() and the destructor, which return when they have run on
/// the GUI thread.
/// Ownership: command and listeners stay the application's, and a listener must live until the call has run. The
/// destructor recalls the deliveries of the command that have not begun.
/// Errors: a listener that is null or has died is ignored, and a command that has died is not delivered.
class DISPLAYAPI_EXPORT Timer : public Widget {
public:
    /// The interval, in milliseconds, is that of each start(), which gives its own.
    explicit Timer(int interval);
    ~Timer() override;

    // Clock

    /// Fires after so many milliseconds; a running timer starts anew. With 0 or less it fires at once, and whatever
    /// runs goes on as it was.
    void start(int milliseconds);
    void stop();

    /// False, as at first, repeats.
    void enableSingleShot(bool singleShot);

    // Whom it tells

    /// Replaces the command to deliver; at first, and with null, a null command is delivered.
    void addCommand(Command* command);

    /// Adds at the end. A listener that is added twice is told twice.
    void addCommandListener(CommandListener* listener);
    void addEventListener(TimerEvent* listener);

    /// Takes the first match off; no match is no error.
    void removeCommandListener(CommandListener* listener);
    void removeEventListener(TimerEvent* listener);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    TimerPrivateIfc* getPrivateImpl() const { return mPrivate.get(); }

private:
    enum class Request : int;

    void create(int interval);
    void cleanUp();

    std::unique_ptr<TimerPrivateIfc> mPrivate;
};

}
