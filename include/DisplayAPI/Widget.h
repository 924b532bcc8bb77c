#pragma once

#include <DisplayAPI/Export.h>

#include <set>
#include <string>

namespace DisplayAPI {

class GuiRequestEvent;
class WidgetImpl;

/// The root of every handle: the one road by which a call reaches the GUI thread.
///
/// A handle's operation asks isGuiThread(). There it acts at once; elsewhere it posts a request, which runs the
/// same operation again on the GUI thread. All requests of a handle run in the order of posting.
///
/// Threads: a handle may be made, used and destroyed on any thread. While no display has named the GUI thread, every
/// thread counts as it. A call of another thread before Display::exec() lies in the queue until the loop runs: one
/// that waits for its answer waits so long, and the GUI thread must not wait for that thread meanwhile. A caller who
/// has waited five seconds says so in the log, and goes on waiting.
/// Ownership: a handle must outlive the calls on it; destroying it waits until what was posted before has run.
/// Errors: a call whose request can't run any more, since the event loop has ended, returns its default. An exception
/// that leaves a request, from an application's own class or inside a notice, comes out of Display::exec(), behind a
/// line in the log.
class DISPLAYAPI_EXPORT Widget {
public:
    virtual ~Widget();

    /// Runs a request of this class on the GUI thread; called by the event.
    virtual void processGuiRequest(GuiRequestEvent& event) = 0;

    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;

    /// True on the thread that made the display, and on every thread while there is none.
    static bool isGuiThread();

    /// Names the calling thread, or the one with this id, as the GUI thread.
    static void setGuiThreadId();
    static void setGuiThreadId(unsigned int id);

    /// The name of the concrete class, such as "PopupConfirm".
    const std::string& widgetName() const { return mName; }

protected:
    Widget();

    /// Hands the request over and returns after it has run. Null is a request without a number: it completes
    /// after all earlier ones. Never call it on the GUI thread.
    void postEvent(GuiRequestEvent* event) const;
    void postEvent(int type) const;

    /// Hands the request over and returns at once. What its pointers name must live until it has run.
    void postEventAsync(GuiRequestEvent* event) const;
    void postEventAsync(int type) const;

    /// Runs the request here on the GUI thread; elsewhere posts it, with or without waiting.
    void postEventHelper(bool async, GuiRequestEvent* event);

    /// Lets the caller of a request go. It is the last statement of every processGuiRequest(): neither the
    /// handle nor what the event points at may be read behind it.
    static void signalComplete(GuiRequestEvent& event);

    /// Without effect: a request once posted always runs.
    void purgeOwnMessage(int type);
    void purgeOwnMessage(std::set<int>* types);

    /// Marks the handle as going: later requests that name it run nothing. First step of its deletion on the
    /// GUI thread.
    void retire();

    std::string mName = "Widget";

private:
    friend class GuiRequestEvent;
    friend class Road;

    GuiRequestEvent* requestWithoutArguments(int type) const;

    WidgetImpl* mImpl; // counted: shared with the events that name this handle
};

}
