#pragma once

#include "Descriptor.h"

namespace Simulator {

/// Wakes a thread that waits in poll(). Threads: any.
class WakeSignal {
public:
    WakeSignal();

    /// Readable while there is something to wake for.
    int descriptor() const { return mDescriptor.number(); }
    void set() const;
    void clear() const;

private:
    Descriptor mDescriptor;
};

}
