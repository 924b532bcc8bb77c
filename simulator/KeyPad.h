#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Simulator {

class TextCanvas;
struct Area;

/// The drawn keys of the telephone. The one that is down is lit.
namespace KeyPad {

constexpr int Lines = 4;
constexpr int Columns = 46;
constexpr int FunctionLines = 1;
constexpr int LargeLines = 12;
constexpr int LargeColumns = 58;
constexpr int LargeFunctionLines = 3;

/// The dial keys, the arrows around OK, and clear, into an area of one of these sizes.
void draw(TextCanvas& canvas, const Area& area, std::optional<int> pressedKey);

/// The function keys with their labels, each as wide as its label if there is room.
void drawFunctionKeys(
    TextCanvas& canvas, const Area& area, const std::vector<std::string>& labels, std::optional<int> pressedKey);

}

}
