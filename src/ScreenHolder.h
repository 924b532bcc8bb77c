#pragma once

namespace DisplayAPI {

class DisplayablePrivate;

/// A screen that shows others inside itself, as a tab screen does. A screen has one holder at most, which it tells of
/// its fate.
/// Threads: GUI thread only.
class ScreenHolder {
public:
    /// The holder's own half, which may be held in turn.
    virtual DisplayablePrivate& screen() = 0;

    /// A screen that is held dies. Of its half only the address may be used: it may be half destroyed.
    virtual void screenDies(DisplayablePrivate& half) = 0;

    /// A screen that has left the widgets by itself wants to be back, if it is still up.
    virtual void takeBack(DisplayablePrivate& half) = 0;

protected:
    ~ScreenHolder() = default;
};

}
