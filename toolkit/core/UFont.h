#pragma once

#include "Export.h"

#include <array>
#include <cstdint>

/// The source of glyphs, installed by the program with UWindowManager::setFont(). The toolkit has none of
/// its own: without one, texts take their space and paint nothing.
class TOOLKIT_EXPORT UFont {
public:
    static constexpr int CellWidth = 6;
    static constexpr int CellHeight = 13;

    /// The rows of a cell, top first. Bit 5 of a row is its leftmost pixel, bit 0 its rightmost.
    using Glyph = std::array<std::uint8_t, CellHeight>;

    virtual ~UFont();

    /// The glyph of a UTF-16 unit, or null if the font lacks it.
    virtual const Glyph* glyph(std::uint16_t unit) const = 0;
};
