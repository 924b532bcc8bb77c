#pragma once

#include "UFont.h"

#include <cstdint>
#include <string>
#include <unordered_map>

class UScreenWE1;

/// A font for tests: the glyph of a UTF-16 unit is its number, written in pixels, so that what was painted can
/// be read back without doubt. It spells each bit twice, and a stray pixel makes the cell unreadable.
///
/// The blank is blank, as in any font. Control characters, surrogates and the up-and-down arrow U+E000 are
/// lacking: a font of this size has none of them.
///
/// Threads: GUI thread.
class CellFont : public UFont {
public:
    const Glyph* glyph(std::uint16_t unit) const override;

private:
    mutable std::unordered_map<std::uint16_t, Glyph> mGlyphs;
};

/// Reads a line of the screen, painted with CellFont: always 27 characters of UTF-8, blanks at the end too.
///
/// An inverted cell reads as if it were not. The marks of the last column are 'v' more below, '^' more above,
/// '|' both and '>' the context arrow; they read alike in any column. The up-and-down arrow is U+2195. A cell
/// with anything else in it, half of an icon for instance, is U+25A1.
std::string lineText(const UScreenWE1& screen, int line);

/// True when the icon with this number stands on the line from this column on.
bool screenHasIcon(const UScreenWE1& screen, int line, int column, std::uint16_t number);

/// True when the cell is painted white on black.
bool lineIsInverse(const UScreenWE1& screen, int line, int column = 0);
