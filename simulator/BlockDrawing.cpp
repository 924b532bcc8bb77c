#include "BlockDrawing.h"

#include <UScreenWE1.h>

namespace Simulator {

namespace {

constexpr int PixelsPerBlock = 2;

/// By upper left (8), upper right (4), lower left (2) and lower right (1).
constexpr const char* blocks[16] = {" ", "▗", "▖", "▄", "▝", "▐", "▞", "▟", "▘", "▚", "▌", "▙", "▀", "▜", "▛", "█"};

const char* blockAt(const UScreenWE1& screen, int x, int y)
{
    const int index = (screen.pixel(x, y) ? 8 : 0) + (screen.pixel(x + 1, y) ? 4 : 0) + (screen.pixel(x, y + 1) ? 2 : 0)
        + (screen.pixel(x + 1, y + 1) ? 1 : 0);
    return blocks[index];
}

}

std::vector<std::string> drawBlocks(const UScreenWE1& screen)
{
    std::vector<std::string> lines;
    for (int y = 0; y < screen.height(); y += PixelsPerBlock) {
        lines.emplace_back();
        for (int x = 0; x < UScreenWE1::Width; x += PixelsPerBlock)
            lines.back() += blockAt(screen, x, y);
    }
    return lines;
}

std::vector<std::string> drawFramedBlocks(const UScreenWE1& screen)
{
    std::string edge;
    for (int x = 0; x < UScreenWE1::Width; x += PixelsPerBlock)
        edge += "─";
    std::vector<std::string> lines = {"┌" + edge + "┐"};
    for (const std::string& line : drawBlocks(screen))
        lines.push_back("│" + line + "│");
    lines.push_back("└" + edge + "┘");
    return lines;
}

}
