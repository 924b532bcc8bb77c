#include "BlockDrawing.h"

#include <UScreenWE1.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>

namespace Simulator {

namespace {

constexpr int PixelsPerBlock = 2;
constexpr int PixelsPerTextLine = 16; // the glass has lines of text one below the other

/// A column of pixels; bit n is the pixel of row n. A row that has been left out is a row less.
using Column = std::uint64_t;
using Columns = std::vector<Column>;

/// By upper left (8), upper right (4), lower left (2) and lower right (1).
constexpr const char* blocks[16] = {" ", "▗", "▖", "▄", "▝", "▐", "▞", "▟", "▘", "▚", "▌", "▙", "▀", "▜", "▛", "█"};

Columns columnsOf(const UScreenWE1& screen)
{
    Columns columns(UScreenWE1::Width);
    for (int x = 0; x < UScreenWE1::Width; ++x) {
        for (int y = 0; y < screen.height(); ++y)
            columns[static_cast<std::size_t>(x)] |= static_cast<Column>(screen.pixel(x, y)) << y;
    }
    return columns;
}

std::vector<std::string> draw(const Columns& columns, int height)
{
    std::vector<std::string> lines;
    for (int y = 0; y < height; y += PixelsPerBlock) {
        lines.emplace_back();
        for (std::size_t x = 0; x + 1 < columns.size(); x += PixelsPerBlock) {
            const auto left = static_cast<unsigned>(columns[x] >> y & 3);
            const auto right = static_cast<unsigned>(columns[x + 1] >> y & 3);
            lines.back() += blocks[(left & 1) * 8 + (right & 1) * 4 + (left & 2) + (right >> 1)];
        }
    }
    return lines;
}

/// Leaves out a row that is the same as the one above it, the lowest of them, or else the last row.
void leaveOutRow(Columns& columns, int height)
{
    const auto isRepeated = [&columns](int y) {
        return std::ranges::all_of(
            columns, [y](Column column) { return ((column >> y ^ column >> (y - 1)) & 1) == 0; });
    };
    int row = height - 1;
    while (row > 0 && !isRepeated(row))
        --row;
    if (row == 0)
        row = height - 1;
    for (Column& column : columns) {
        const Column above = column & ((Column{1} << row) - 1);
        column = above | (column >> (row + 1) << row);
    }
}

/// Where a gap that is at least as wide as a character and its neighbours' edges can be a block narrower, as far to
/// the right as there is one, so that the texts at the left keep their places; or else the widest gap. The end if
/// there is none: then no block is the same as the next one.
Columns::const_iterator findGap(const Columns& columns)
{
    constexpr int wide = 4;
    auto best = columns.end();
    int length = 0;
    int bestLength = 0;
    for (auto block = columns.begin(); std::distance(block, columns.end()) > PixelsPerBlock; block += PixelsPerBlock) {
        length = std::equal(block, block + PixelsPerBlock, block + PixelsPerBlock) ? length + 1 : 0;
        if (length > 0 && (length >= bestLength || length >= wide)) {
            best = block;
            bestLength = length;
        }
    }
    return best;
}

/// A line of text without any gap: its last columns of background go, which the letters of the screen's font have
/// between them, or else the edges.
void leaveOutBackground(Columns& columns)
{
    const Column background = columns.back();
    columns.pop_back();
    const auto last = std::find(columns.rbegin(), columns.rend(), background);
    columns.erase(last == columns.rend() ? columns.begin() : std::prev(last.base()));
}

Columns withoutBlock(Columns columns)
{
    const auto gap = findGap(columns);
    if (gap == columns.end())
        leaveOutBackground(columns);
    else
        columns.erase(gap, gap + PixelsPerBlock);
    return columns;
}

/// Leaves out a column of blocks: the same one in all lines of text if they have a gap in common, or else each its own.
Columns leaveOutBlock(const Columns& columns)
{
    if (findGap(columns) != columns.end())
        return withoutBlock(columns);
    Columns result(columns.size() - PixelsPerBlock);
    for (int top = 0; top < UScreenWE1::MaximumHeight; top += PixelsPerTextLine) {
        const Column rows = ((Column{1} << PixelsPerTextLine) - 1) << top;
        Columns line;
        std::ranges::transform(columns, std::back_inserter(line), [rows](Column column) { return column & rows; });
        line = withoutBlock(std::move(line));
        std::ranges::transform(result, line, result.begin(), std::bit_or());
    }
    return result;
}

}

BlockSize blockSize(const UScreenWE1& screen)
{
    return {UScreenWE1::Width / PixelsPerBlock, (screen.height() + 1) / PixelsPerBlock};
}

std::vector<std::string> drawBlocks(const UScreenWE1& screen)
{
    return drawBlocksInto(screen, blockSize(screen));
}

std::vector<std::string> drawBlocksInto(const UScreenWE1& screen, BlockSize room)
{
    Columns columns = columnsOf(screen);
    int height = screen.height();
    if (room.columns < blockSize(screen).columns)
        columns = leaveOutBlock(columns);
    for (; (height + 1) / PixelsPerBlock > std::max(room.lines, blockSize(screen).lines - 1); --height)
        leaveOutRow(columns, height);
    return draw(columns, height);
}

std::vector<std::string> drawHalfBlocks(const UScreenWE1& screen)
{
    constexpr const char* halves[4] = {" ", "▄", "▀", "█"};
    std::vector<std::string> lines;
    for (int y = 0; y < screen.height(); y += PixelsPerBlock) {
        lines.emplace_back();
        for (int x = 0; x < UScreenWE1::Width; ++x)
            lines.back() += halves[(screen.pixel(x, y) ? 2 : 0) + (screen.pixel(x, y + 1) ? 1 : 0)];
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
