#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// The code of a key: LEFT, RIGHT, UP, DOWN, OK, CLEAR, 0 to 9, *, #, F1 to F8. Case does not matter.
std::optional<int> keyCode(std::string_view name);

/// The name of a key that keyCode() has given.
std::string keyName(int code);

/// The names that keyCode() knows, for messages.
std::string keyNames();

}
