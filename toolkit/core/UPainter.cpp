#include "UPainter.h"

#include "TextCells.h"
#include "TextCuts.h"
#include "UFont.h"
#include "UScreenWE1.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int Lines = 3;
constexpr std::uint16_t UpDownArrow = 0xE000;
constexpr std::uint16_t Blank = ' ';
constexpr int ShortestSplit = 3;

/// The rows of pixels of a line, and the first row of its cells.
struct LineRows {
    int top;
    int bottom;
    int cellTop;
};
constexpr LineRows lineRows[Lines] = {{0, 14, 1}, {15, 30, 17}, {32, 46, 33}};

bool isLine(int line)
{
    return line >= 0 && line < Lines;
}

const LineRows& rowsOf(int line)
{
    return lineRows[std::clamp(line, 0, Lines - 1)];
}

/// The pixels inside the frame of a bar that can be filled.
int barRoom(int columns)
{
    constexpr int frameAndGaps = 6;
    return std::clamp(columns, 1, UPainter::Columns) * UFont::CellWidth - frameAndGaps;
}

/// Where a row's text splits: its head ends before `headEnd`, its tail starts at `tailStart`.
struct Split {
    std::size_t headEnd;
    std::size_t tailStart;
};

/// The last run of three or more blanks between two pieces of text. Blanks at the start indent the row.
std::optional<Split> findSplit(const UString& text)
{
    std::optional<Split> split;
    std::size_t wordEnd = 0;
    for (std::size_t index = 0; index < text.length(); ++index) {
        if (text[index] == Blank)
            continue;
        if (wordEnd != 0 && index - wordEnd >= ShortestSplit)
            split = Split{wordEnd, index};
        wordEnd = index + 1;
    }
    if (split)
        return split;
    return std::nullopt;
}

UString withoutBlanksAtEnd(const UString& text)
{
    std::size_t end = text.length();
    while (end > 0 && text[end - 1] == Blank)
        --end;
    return text.mid(0, end);
}

}

UPainter::UPainter(UScreenWE1& screen, const UFont* font)
    : mScreen(screen)
    , mFont(font)
{
}

int UPainter::lineTop(int line)
{
    return rowsOf(line).top;
}

int UPainter::lineBottom(int line)
{
    return rowsOf(line).bottom;
}

void UPainter::clearLine(int line)
{
    if (!isLine(line))
        return;
    for (int y = lineTop(line); y <= lineBottom(line); ++y)
        mScreen.fill(y, 0, UScreenWE1::Width - 1, false);
}

void UPainter::clearLines(int first, int last)
{
    for (int line = std::max(first, 0); line <= std::min(last, Lines - 1); ++line)
        clearLine(line);
}

void UPainter::cell(int line, int column, const std::uint8_t* rows)
{
    if (!isLine(line) || column < 0 || column >= Columns)
        return;
    const int left = column * UFont::CellWidth;
    const int top = rowsOf(line).cellTop;
    for (int y = 0; y < UFont::CellHeight; ++y)
        mScreen.setPixels(left, top + y, rows[y], UFont::CellWidth);
}

int UPainter::text(int line, int column, const UString& text, int columns)
{
    int count = 0;
    std::size_t place = 0;
    for (; place < text.length() && count < std::min(columns, Columns); ++count) {
        const std::size_t following = TextCells::forward(text, place);
        character(line, column + count, text.mid(place, following - place));
        place = following;
    }
    if (place < text.length() || column + count > Columns)
        TextCuts::tell(text, std::min(count, std::max(Columns - column, 0)));
    return count;
}

void UPainter::character(int line, int column, const UString& character)
{
    if (!isLine(line) || column < 0 || column >= Columns)
        return;
    UFont::Glyph rows = {};
    bool isDrawn = false;
    for (std::size_t index = 0; index < character.length(); ++index) {
        const std::uint16_t unit = character[index];
        const UFont::Glyph* glyph = unit == UpDownArrow ? Icons::upDownArrowGlyph()
            : mFont                                     ? mFont->glyph(unit)
                                                        : nullptr;
        if (!glyph)
            continue;
        isDrawn = true;
        for (std::size_t row = 0; row < rows.size(); ++row)
            rows[row] |= (*glyph)[row];
    }
    if (isDrawn)
        cell(line, column, rows.data());
}

void UPainter::textRight(int line, int lastColumn, const UString& text, int columns)
{
    const int count = TextCells::count(text, std::min(columns, Columns));
    this->text(line, lastColumn - count + 1, text, count);
}

void UPainter::rowText(int line, int column, const UString& text, int columns)
{
    const std::optional<Split> split = findSplit(text);
    if (!split) {
        this->text(line, column, text, columns);
        return;
    }
    const UString tail = withoutBlanksAtEnd(text.mid(split->tailStart));
    const int tailColumns = TextCells::count(tail, columns);
    // The tail keeps its place, since it says what the row stands at; the head gives way.
    this->text(line, column, text.mid(0, split->headEnd), columns - tailColumns - 1);
    textRight(line, column + columns - 1, tail, tailColumns);
}

int UPainter::icon(int line, int column, std::uint16_t number)
{
    if (number == 0)
        return 0;
    const Icons::Picture* picture = Icons::picture(number);
    if (!picture || !isLine(line))
        return 2;
    constexpr int size = static_cast<int>(std::tuple_size_v<Icons::Picture>);
    const int left = column * UFont::CellWidth + 1;
    const int top = rowsOf(line).cellTop + 1;
    for (int y = 0; y < size; ++y)
        mScreen.setPixels(left, top + y, (*picture)[static_cast<std::size_t>(y)], size);
    return 2;
}

void UPainter::mark(int line, Icons::Mark mark, int column)
{
    if (const auto* glyph = Icons::markGlyph(mark))
        cell(line, column, glyph->data());
}

void UPainter::bar(int line, int column, int columns, int minimum, int maximum, int value)
{
    const long long range = static_cast<long long>(maximum) - minimum;
    const long long part = std::clamp<long long>(static_cast<long long>(value) - minimum, 0, std::max(range, 0LL));
    barPart(line, column, columns, 0, static_cast<int>(range > 0 ? barRoom(columns) * part / range : 0));
}

void UPainter::blockBar(int line, int column, int columns, int positions, int position)
{
    const int room = barRoom(columns);
    const int block = room / 4;
    const long long way = static_cast<long long>(room - block) * std::clamp(position, 0, std::max(positions, 0));
    const int from = positions > 0 ? static_cast<int>(way / positions) : 0;
    barPart(line, column, columns, from, from + block);
}

void UPainter::barPart(int line, int column, int columns, int from, int to)
{
    columns = std::min(columns, Columns - column);
    if (!isLine(line) || columns <= 0)
        return;
    // A frame two pixels inside the cells, filled behind a gap of one pixel.
    const int left = column * UFont::CellWidth + 1;
    const int right = (column + columns) * UFont::CellWidth - 2;
    const int top = rowsOf(line).cellTop + 2;
    const int bottom = rowsOf(line).cellTop + 10;
    for (int y = top; y <= bottom; ++y) {
        mScreen.fill(y, left, right, true);
        if (y == top || y == bottom)
            continue;
        mScreen.fill(y, left + 1, right - 1, false);
        if (y > top + 1 && y < bottom - 1)
            mScreen.fill(y, left + 2 + from, std::min(left + 2 + to, right - 1) - 1, true);
    }
}

void UPainter::rule(int line)
{
    if (!isLine(line))
        return;
    mScreen.fill(lineTop(line), 0, UScreenWE1::Width - 1, true);
}

void UPainter::invert(int line, int firstColumn, int lastColumn)
{
    if (!isLine(line))
        return;
    const int left = std::max(firstColumn, 0) * UFont::CellWidth;
    const int right = std::min(lastColumn, Columns - 1) * UFont::CellWidth + UFont::CellWidth - 1;
    for (int y = lineTop(line); y <= lineBottom(line); ++y)
        mScreen.invert(y, left, right);
}

void UPainter::embolden(int line, int firstColumn, int lastColumn)
{
    if (!isLine(line))
        return;
    const int left = std::max(firstColumn, 0) * UFont::CellWidth;
    const int right = std::min(lastColumn, Columns - 1) * UFont::CellWidth + UFont::CellWidth - 1;
    for (int y = lineTop(line); y <= lineBottom(line); ++y) {
        // From the right, so that each pixel is doubled once. A gap of one pixel stays open: it keeps letters apart.
        for (int x = right; x > left; --x) {
            const bool isGap = x < right && mScreen.pixel(x + 1, y);
            if (mScreen.pixel(x - 1, y) && !isGap)
                mScreen.setPixel(x, y, true);
        }
    }
}
