#pragma once

#include "Export.h"

#include <string>

class UEvent;
class UKeyEvent;

/// The keys of the telephone, as a key event carries them.
namespace UGlobal {

/// A key code. Dial keys stand by their character: '0' to '9', '*' and '#'.
enum Key : int {
    KeyLeft = 1,
    KeyRight = 2,
    KeyUp = 3,
    KeyDown = 4,
    KeyOk = 5,
    KeyClear = 8,
    KeyHash = 35,
    KeyStar = 42,
    Key0 = 48,
    Key9 = 57,
    KeyFunction1 = 0x101, ///< Function key n is KeyFunction1 + n - 1.
};

/// What happened to the key.
enum KeyState : int {
    KeyReleased = 0,
    KeyPressed = 1,
    KeyHeld = 2,
};

/// True for the keys that dial: digits, star and hash.
constexpr bool isDialKey(int code)
{
    return (code >= Key0 && code <= Key9) || code == KeyStar || code == KeyHash;
}

}

/// Physical definitions of the telephone's hardware.
namespace PhysDefs {

/// The number of a key of the housing; 0 is none.
enum keyCode : int {};

/// The sub-variant of the hardware, as its maker counts them.
enum hardwareSubVariant : int {};

}

class GUIEventIfc;

/// The end of a display that has a handler for its keys. Display and handler know of each other as long as both
/// live: whoever dies first tells the other. Threads: GUI thread.
class TOOLKIT_EXPORT GUIEventLink {
public:
    GUIEventLink() = default;
    GUIEventLink(const GUIEventLink&) = delete;
    GUIEventLink& operator=(const GUIEventLink&) = delete;
    ~GUIEventLink() { attach(nullptr); }

    /// Makes this the handler, in place of an earlier one; it leaves the display that it served before. Null
    /// leaves the display without a handler.
    void attach(GUIEventIfc* handler);

    /// The handler, or null.
    GUIEventIfc* handler() const { return mHandler; }

private:
    GUIEventIfc* mHandler = nullptr;
};

/// The receiver of a display's keys that works on lines and not on widgets.
///
/// A key operation answers true when the key was used. Threads: GUI thread. Nobody deletes through this
/// interface; its destructor detaches it from the display that has it as handler.
class TOOLKIT_EXPORT GUIEventIfc {
public:
    virtual bool onLeft(const UKeyEvent* key) = 0;
    virtual bool onRight(const UKeyEvent* key) = 0;
    virtual bool onUp(const UKeyEvent* key) = 0;
    virtual bool onDown(const UKeyEvent* key) = 0;
    virtual bool onOK(const UKeyEvent* key) = 0;
    virtual bool onChange(const UEvent* event, std::string text);
    virtual bool setEventHandler(GUIEventIfc* handler) = 0;

protected:
    GUIEventIfc() = default;
    GUIEventIfc(const GUIEventIfc&) = delete;
    GUIEventIfc& operator=(const GUIEventIfc&) = delete;
    ~GUIEventIfc();

private:
    friend class GUIEventLink;

    GUIEventLink* mDisplay = nullptr;
};

/// Small helpers that every layer uses.
class TOOLKIT_EXPORT ClientUtils {
public:
    /// The number in decimal.
    static std::string itos(int number);
};
