#pragma once

#include <stdexcept>

namespace Simulator {

/// Something the user asked for that can't be used: an option, a script, a font. The program ends with exit
/// code 2 and the message as one line.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}
