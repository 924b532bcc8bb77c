#pragma once

#include <functional>
#include <string>

namespace Simulator {

/// A step that a phonelet adds to those of every script.
struct CustomStep {
    std::string name;
    std::function<void(const std::string& argument)> function; ///< Called off the GUI thread.
    int functionKey = 0;                                       ///< The number of the key that calls it too; 0 for none.
};

}
