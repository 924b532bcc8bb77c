#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/DisplayablePrivateIfc.h>
#include <DisplayAPI/Export.h>
#include <DisplayAPI/ListenerList.h>
#include <DisplayAPI/Living.h>

#include <atomic>

class TranslatorIfc;

namespace DisplayAPI {

class Command;
class Displayable;
class ScreenHolder;

/// What the GUI-thread halves of all screens share: the display that they stand on, and the command listeners.
/// Threads: GUI thread only, but for the listeners.
class DISPLAYAPI_EXPORT DisplayablePrivate : public DisplayablePrivateIfc {
public:
    DisplayablePrivate() = default;

    /// Leaves the holder.
    ~DisplayablePrivate() override;
    DisplayablePrivate(const DisplayablePrivate&) = delete;
    DisplayablePrivate& operator=(const DisplayablePrivate&) = delete;

    bool hideOldWidgetOnFocusGained() override { return true; }
    int widgetPosition() override { return 0; }
    void connectDisplayChangedSignal(DisplayPrivateIfc* display) override;

    /// The text of a screen that has none of its own.
    std::string serialise() override;

    /// The whole text, whatever the rectangles are.
    std::string serialise(const std::vector<Rect>& rects) override;

    /// Takes a screen off the display, and tells the subscriber once, if it was there. It may be the end of this one.
    void widgetDismissed(DisplayablePrivate* displayable) override;
    void enable(bool) override { }
    void addCommandListener(CommandListener* listener) override { mCommandListeners.addOnce(listener); }
    void removeCommandListener(CommandListener* listener) override { mCommandListeners.remove(listener); }
    void clearCommandListeners() override { mCommandListeners.clear(); }
    void join(DisplayablePrivate* other) override;
    void disjoin() override { connectDisplayChangedSignal(nullptr); }
    bool hasCaption() override { return false; }
    void setSysWindowSize(int) override { }
    void setSysWindowText(std::string, int) override { }
    bool hasSystemWindow() override { return false; }

    /// Tells the display that something visible has changed; without effect on a screen that stands on none.
    void generateDisplayChangedEvent();

    /// Queues the command for every listener, in order.
    void postCommand(Command* command, Displayable* displayable);

    // Inside another screen, as in a tab

    /// Who shows this screen inside its own; null for one that stands by itself.
    ScreenHolder* holder() const { return mHolder; }
    void setHolder(ScreenHolder* holder) { mHolder = holder; }

    /// Tells the holder, if there is one, that this screen dies. The display may tell of it.
    void leaveHolder();

    /// True for this screen itself, and for one that holds it at any depth.
    bool standsIn(const DisplayablePrivate& other) const;

    /// The display that the screen was last put on; null before, and after that display's end.
    DisplayPrivateIfc* display() const;

    /// The application's translator, set by Display::setTranslator(); null until then. Threads: any.
    static std::atomic<TranslatorIfc*> commonTranslator;

protected:
    /// The same for listeners that the screen keeps in another list.
    static void postCommandTo(
        const ListenerList<CommandListener>& listeners, Command* command, Displayable* displayable);

    ListenerList<CommandListener> mCommandListeners;

private:
    Living<DisplayPrivateIfc> mDisplay;
    ScreenHolder* mHolder = nullptr;
};

}
