#pragma once

#include <string>
#include <string_view>

namespace Simulator {

/// The text as a terminal may have it: control characters and what is no UTF-8 become `?`.
std::string printable(std::string_view text);

}
