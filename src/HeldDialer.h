#pragma once

#include <DisplayAPI/PopupDialer.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include "ExistingDisplayables.h"

#include <UAgent.h>

namespace DisplayAPI {

/// The dialer of a screen, which its application may delete. Its half tells it from a later one at its address.
/// Threads: GUI thread.
class HeldDialer {
public:
    HeldDialer() = default;
    explicit HeldDialer(PopupDialer* dialer)
        : mHandle(dialer)
        , mHalf(dialer ? dynamic_cast<PopupDialerPrivateIfc*>(dialer->getPrivateImpl()) : nullptr)
    {
    }

    /// Null once it has gone.
    PopupDialer* get() const { return mHalf && displayableExists(mHandle) ? mHandle : nullptr; }

    /// Null once it has gone.
    PopupDialerPrivateIfc* half() const { return get() ? mHalf.get() : nullptr; }

private:
    PopupDialer* mHandle = nullptr;
    UPointer<PopupDialerPrivateIfc> mHalf;
};

}
