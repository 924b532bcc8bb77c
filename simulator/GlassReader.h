#pragma once

#include <string>
#include <vector>

class UWidget;

namespace Simulator {

/// The lines that a widget paints, without blanks at their ends; trailing empty lines are left out. It paints on a
/// glass of its own, with a font whose glyphs are numbers that can be read back. Threads: GUI thread.
std::vector<std::string> paintedText(UWidget& widget);

}
