#pragma once

#include <string>
#include <vector>

class UScreenWE1;

namespace Simulator {

/// The screen as lines of UTF-8 text: each character stands for two by two pixels.
std::vector<std::string> drawBlocks(const UScreenWE1& screen);

/// The same with a frame around it.
std::vector<std::string> drawFramedBlocks(const UScreenWE1& screen);

}
