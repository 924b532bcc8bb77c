#include "GlassReader.h"

#include <UFont.h>
#include <UPainter.h>
#include <UScreenWE1.h>
#include <UString.h>
#include <UWidget.h>
#include <UWindowManager.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

namespace Simulator {

namespace {

constexpr unsigned FirstRow = 0b101101; // of every glyph; upside down it is another one
constexpr unsigned FullRow = 0b111111;
constexpr std::size_t RowsOfUnit = 4; // a nibble in each, and its inverse in as many behind
constexpr int LineCount = 3;

UFont::Glyph glyphOf(unsigned unit)
{
    UFont::Glyph glyph{};
    glyph[0] = FirstRow;
    for (std::size_t row = 0; row < RowsOfUnit; ++row) {
        const unsigned nibble = unit >> (4 * row) & 0xF;
        glyph[1 + row] = static_cast<std::uint8_t>(nibble << 1);
        glyph[1 + RowsOfUnit + row] = static_cast<std::uint8_t>((~nibble & 0xF) << 1);
    }
    return glyph;
}

class NumberFont : public UFont {
public:
    const Glyph* glyph(std::uint16_t unit) const override
    {
        constexpr std::uint16_t drawnByTheToolkit = 0xE000;
        if (unit <= ' ' || unit == drawnByTheToolkit)
            return nullptr;
        return &mGlyphs.try_emplace(unit, glyphOf(unit)).first->second;
    }

private:
    mutable std::map<std::uint16_t, Glyph> mGlyphs;
};

/// The unit in a cell, upright or inverted; nothing for a picture and for bare ground.
std::optional<char16_t> unitAt(const UScreenWE1& screen, int line, int column)
{
    // The cells of a line begin one pixel below it; the line in the middle has one more.
    const int top = UPainter::lineBottom(line) - UFont::CellHeight;
    UFont::Glyph cell{};
    for (std::size_t row = 0; row < cell.size(); ++row) {
        unsigned bits = 0;
        for (int x = 0; x < UFont::CellWidth; ++x)
            bits = bits << 1 | (screen.pixel(column * UFont::CellWidth + x, top + static_cast<int>(row)) ? 1U : 0U);
        cell[row] = static_cast<std::uint8_t>(bits);
    }
    if (cell[0] == (FirstRow ^ FullRow)) {
        for (std::uint8_t& row : cell)
            row ^= FullRow;
    }
    unsigned unit = 0;
    for (std::size_t row = 0; row < RowsOfUnit; ++row)
        unit |= (cell[1 + row] >> 1 & 0xFU) << (4 * row);
    if (cell != glyphOf(unit))
        return std::nullopt;
    return static_cast<char16_t>(unit);
}

std::string lineOf(const UScreenWE1& screen, int line)
{
    UString text;
    for (int column = 0; column < UPainter::Columns; ++column)
        text.append(unitAt(screen, line, column).value_or(u' '));
    std::string utf8 = text.toUTF8();
    utf8.erase(utf8.find_last_not_of(' ') + 1);
    utf8.erase(0, utf8.find_first_not_of(' '));
    return utf8;
}

}

std::vector<std::string> paintedText(UWidget& widget)
{
    static const NumberFont font;
    UScreenWE1 screen(UScreenWE1::MaximumHeight);
    UPainter painter(screen, &font);
    widget.paint(painter);
    std::vector<std::string> lines;
    lines.reserve(LineCount);
    for (int line = 0; line < LineCount; ++line)
        lines.push_back(lineOf(screen, line));
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

}
