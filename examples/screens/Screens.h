#pragma once

#include "Stage.h"

#include <cstddef>
#include <string>

/// Screens in all their states, each by a name such as "call-ringing".
class Screens {
public:
    explicit Screens(DisplayAPI::Display& display);

    /// Shows the screen of this name, or the next one for an empty name. Throws std::invalid_argument for a name that
    /// none has. Threads: any but the GUI thread, one at a time.
    void show(const std::string& name);

private:
    Stage mStage;
    std::size_t mNext = 0;
};
