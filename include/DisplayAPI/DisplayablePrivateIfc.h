#pragma once

#include <Rect.h>

#include <string>
#include <vector>

class UWidget;

namespace DisplayAPI {

class CommandListener;
class DisplayablePrivate;
class DisplayPrivateIfc;

/// A screen as the display's stack sees it. Threads: GUI thread only.
class DisplayablePrivateIfc {
public:
    virtual ~DisplayablePrivateIfc() = default;

    virtual UWidget* getWidget() = 0;
    virtual void releaseOwnership() = 0;
    virtual void gainOwnership() = 0;
    virtual void show() = 0;
    virtual void lostFocus() = 0;

    /// True for an ordinary screen, which replaces the stack; false for a popup, which lies on top of it.
    virtual bool hideOldWidgetOnFocusGained() = 0;
    virtual int widgetPosition() = 0;
    virtual void connectDisplayChangedSignal(DisplayPrivateIfc* display) = 0;

    // Screen text

    virtual std::string serialise() = 0;
    virtual std::string serialise(const std::vector<Rect>& rects) = 0;

    virtual void widgetDismissed(DisplayablePrivate* displayable) = 0;
    virtual void enable(bool enabled) = 0;
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
    virtual void clearCommandListeners() = 0;

    /// Shares the display of another screen, as a tab does with its list.
    virtual void join(DisplayablePrivate* other) = 0;
    virtual void disjoin() = 0;
    virtual bool hasCaption() = 0;
    virtual void setSysWindowSize(int lines) = 0;
    virtual void setSysWindowText(std::string text, int line) = 0;
    virtual bool hasSystemWindow() = 0;
};

}
