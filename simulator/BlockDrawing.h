#pragma once

#include <string>
#include <vector>

class UScreenWE1;

namespace Simulator {

/// How many characters the drawing of a screen takes.
struct BlockSize {
    int columns;
    int lines;
};

/// What the whole screen takes.
BlockSize blockSize(const UScreenWE1& screen);

/// The screen as lines of UTF-8 text: each character stands for two by two pixels.
std::vector<std::string> drawBlocks(const UScreenWE1& screen);

/// The same for a room that may lack a column, a line, or both: a gap is drawn narrower then, where the screen has
/// one that repeats itself, so that nothing of what stands on it is lost.
std::vector<std::string> drawBlocksInto(const UScreenWE1& screen, BlockSize room);

/// The screen for terminals that have no quarter blocks: each character stands for one pixel and the one below it.
std::vector<std::string> drawHalfBlocks(const UScreenWE1& screen);

/// The same as drawBlocks() with a frame around it.
std::vector<std::string> drawFramedBlocks(const UScreenWE1& screen);

}
