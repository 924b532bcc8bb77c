#include "CellFont.h"

#include "Icons.h"
#include "UPainter.h"
#include "UScreenWE1.h"
#include "UString.h"

#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace {

using Glyph = UFont::Glyph;

constexpr std::uint8_t FullRow = 0x3F;
// The first and last row of every glyph. Neither is the other's inverse.
constexpr std::uint8_t FirstRow = 0b101101;
constexpr std::uint8_t LastRow = 0b110011;
constexpr std::size_t Nibbles = 4;

constexpr std::uint16_t UpDownArrow = 0x2195;
constexpr std::uint16_t Unreadable = 0x25A1;

/// Four rows hold the unit, four more hold its inverse; the columns at both sides stay free.
Glyph encode(std::uint16_t unit)
{
    Glyph glyph{};
    glyph.front() = FirstRow;
    glyph.back() = LastRow;
    for (std::size_t i = 0; i < Nibbles; ++i) {
        const unsigned nibble = unit >> 4 * i & 0xF;
        glyph[1 + i] = static_cast<std::uint8_t>(nibble << 1);
        glyph[1 + Nibbles + i] = static_cast<std::uint8_t>((~nibble & 0xF) << 1);
    }
    return glyph;
}

Glyph inverted(Glyph glyph)
{
    for (std::uint8_t& row : glyph)
        row ^= FullRow;
    return glyph;
}

std::optional<std::uint16_t> decodeFont(const Glyph& glyph)
{
    unsigned unit = 0;
    for (std::size_t i = 0; i < Nibbles; ++i)
        unit |= (glyph[1 + i] >> 1 & 0xFU) << 4 * i;
    const auto decoded = static_cast<std::uint16_t>(unit);
    if (glyph != encode(decoded))
        return std::nullopt;
    return decoded;
}

std::optional<std::uint16_t> decodeMark(const Glyph& glyph)
{
    constexpr std::array marks = {
        std::pair(Icons::Mark::MoreBelow, 'v'),
        std::pair(Icons::Mark::MoreAbove, '^'),
        std::pair(Icons::Mark::MoreBoth, '|'),
        std::pair(Icons::Mark::ContextArrow, '>'),
    };
    for (const auto& [mark, character] : marks) {
        if (const Glyph* picture = Icons::markGlyph(mark); picture && glyph == *picture)
            return static_cast<std::uint16_t>(character);
    }
    if (const Glyph* arrow = Icons::upDownArrowGlyph(); arrow && glyph == *arrow)
        return UpDownArrow;
    return std::nullopt;
}

std::optional<std::uint16_t> decode(const Glyph& glyph)
{
    if (glyph == Glyph{})
        return ' ';
    const auto unit = decodeFont(glyph);
    return unit ? unit : decodeMark(glyph);
}

std::uint8_t pixels(const UScreenWE1& screen, int column, int y)
{
    unsigned row = 0;
    for (int i = 0; i < UFont::CellWidth; ++i)
        row = row << 1 | (screen.pixel(column * UFont::CellWidth + i, y) ? 1U : 0U);
    return static_cast<std::uint8_t>(row);
}

Glyph cellAt(const UScreenWE1& screen, int line, int column)
{
    constexpr std::array firstRows = {1, 17, 33};
    Glyph glyph{};
    for (std::size_t i = 0; i < glyph.size(); ++i)
        glyph[i] = pixels(screen, column, firstRows.at(static_cast<std::size_t>(line)) + static_cast<int>(i));
    return glyph;
}

}

const UFont::Glyph* CellFont::glyph(std::uint16_t unit) const
{
    const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
    const bool isSurrogate = unit >= 0xD800 && unit <= 0xDFFF;
    constexpr std::uint16_t drawnByTheToolkit = 0xE000;
    if (isControl || isSurrogate || unit == drawnByTheToolkit)
        return nullptr;
    const auto [entry, isNew] = mGlyphs.try_emplace(unit);
    if (isNew && unit != ' ')
        entry->second = encode(unit);
    return &entry->second;
}

std::string lineText(const UScreenWE1& screen, int line)
{
    UString text;
    for (int column = 0; column < UPainter::Columns; ++column) {
        const Glyph cell = cellAt(screen, line, column);
        auto unit = decode(cell);
        if (!unit)
            unit = decode(inverted(cell));
        text.append(unit.value_or(Unreadable));
    }
    return text.toUTF8();
}

bool lineIsInverse(const UScreenWE1& screen, int line, int column)
{
    const Glyph cell = cellAt(screen, line, column);
    if (decode(cell))
        return false;
    if (decode(inverted(cell)))
        return true;
    // Icons leave the edge of their line free, so there the ground shows.
    return pixels(screen, column, UPainter::lineTop(line)) == FullRow;
}

bool screenHasIcon(const UScreenWE1& screen, int line, int column, std::uint16_t number)
{
    UScreenWE1 sample(screen.height());
    UPainter(sample, nullptr).icon(line, column, number);
    for (int y = UPainter::lineTop(line); y <= UPainter::lineBottom(line); ++y) {
        for (int x = 6 * column; x < 6 * column + 12; ++x) {
            if (screen.pixel(x, y) != sample.pixel(x, y))
                return false;
        }
    }
    return true;
}
