#pragma once

#include "ScreenWatch.h"
#include "TextCanvas.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Simulator {

struct TerminalLayout;

/// With which characters a terminal can draw the glass.
enum class GlassCharacters {
    Quarters, ///< Four pixels each.
    Halves,   ///< Two pixels each, as on a console whose font has no quarters.
    None,     ///< There is only ASCII.
};

/// A text that is looked at for a while, in place of the telephone or beside it.
struct TerminalPage {
    std::string title;
    std::vector<std::string> lines; ///< Those that are seen; no wider than the page.
    std::size_t firstLine = 0;      ///< Which of all lines the first of them is.
    std::size_t lineCount = 0;      ///< Of all lines.
};

/// All that a terminal shows.
struct TerminalState {
    Snapshot screen;
    Snapshot desktop;                      ///< The strip above the glass; number 0 while there is none.
    std::vector<std::string> functionKeys; ///< Their labels, from F1 on.
    std::optional<int> pressedKey;
    std::string status;
    std::optional<TerminalPage> page;
};

/// Where the parts stand in a terminal of this size.
TerminalLayout layOut(const TerminalState& state, int columns, int lines, GlassCharacters characters);

/// Draws the terminal's content. Threads: any.
TextCanvas drawTerminal(const TerminalState& state, int columns, int lines, GlassCharacters characters);

}
