#include "FixedFont.h"

#include "UsageError.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <filesystem>
#include <memory>
#include <optional>
#include <type_traits>

namespace Simulator {

namespace {

/// Where the system keeps the font; the one with the whole of Unicode comes first.
constexpr const char* systemFonts[] = {
    "/usr/share/fonts/X11/misc/6x13.pcf.gz",
    "/usr/share/fonts/X11/misc/6x13-ISO8859-1.pcf.gz",
};

using Library = std::unique_ptr<std::remove_pointer_t<FT_Library>, decltype(&FT_Done_FreeType)>;
using Face = std::unique_ptr<std::remove_pointer_t<FT_Face>, decltype(&FT_Done_Face)>;

std::string systemFont()
{
    for (const char* file : systemFonts) {
        if (std::filesystem::exists(file))
            return file;
    }
    throw UsageError(std::string("no font at ") + systemFonts[0] + ": install xfonts-base, or name one with --font");
}

Library openLibrary()
{
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        throw UsageError("cannot start the font reader");
    return {library, FT_Done_FreeType};
}

Face openFace(FT_Library library, const std::string& file)
{
    FT_Face face = nullptr;
    if (FT_New_Face(library, file.c_str(), 0, &face) != 0)
        throw UsageError("cannot read the font " + file);
    return {face, FT_Done_Face};
}

bool hasCellSize(FT_Face face)
{
    return face->num_fixed_sizes > 0 && face->available_sizes[0].width == UFont::CellWidth
        && face->available_sizes[0].height == UFont::CellHeight && FT_Select_Size(face, 0) == 0
        && FT_Select_Charmap(face, FT_ENCODING_UNICODE) == 0;
}

bool isSet(const FT_Bitmap& bitmap, int x, int y)
{
    const unsigned char* row = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
    return (row[x / 8] >> (7 - x % 8) & 1) != 0;
}

/// The bitmap of the glyph in the face's slot, at its place in the cell.
std::optional<UFont::Glyph> cellOf(FT_Face face)
{
    const FT_GlyphSlot slot = face->glyph;
    if (slot->bitmap.pixel_mode != FT_PIXEL_MODE_MONO)
        return std::nullopt;
    const int top = static_cast<int>(face->size->metrics.ascender >> 6) - slot->bitmap_top;
    UFont::Glyph glyph{};
    for (int y = 0; y < static_cast<int>(slot->bitmap.rows); ++y) {
        for (int x = 0; x < static_cast<int>(slot->bitmap.width); ++x) {
            const int column = slot->bitmap_left + x;
            const int row = top + y;
            if (isSet(slot->bitmap, x, y) && column >= 0 && column < UFont::CellWidth && row >= 0
                && row < UFont::CellHeight)
                glyph[static_cast<std::size_t>(row)] |= static_cast<std::uint8_t>(1 << (UFont::CellWidth - 1 - column));
        }
    }
    return glyph;
}

}

FixedFont::FixedFont(const std::string& file)
{
    const std::string name = file.empty() ? systemFont() : file;
    const Library library = openLibrary();
    const Face face = openFace(library.get(), name);
    if (!hasCellSize(face.get()))
        throw UsageError(name + " is no bitmap font of 6x13 pixels");
    FT_UInt index = 0;
    for (FT_ULong unit = FT_Get_First_Char(face.get(), &index); index != 0;
         unit = FT_Get_Next_Char(face.get(), unit, &index)) {
        // Control characters have a box in this font, which no text should show.
        if (unit < ' ' || unit == 0x7F || unit > 0xFFFF || FT_Load_Glyph(face.get(), index, FT_LOAD_DEFAULT) != 0)
            continue;
        if (const std::optional<Glyph> glyph = cellOf(face.get()))
            mGlyphs.emplace(static_cast<std::uint16_t>(unit), *glyph);
    }
}

const UFont::Glyph* FixedFont::glyph(std::uint16_t unit) const
{
    const auto place = mGlyphs.find(unit);
    return place == mGlyphs.end() ? nullptr : &place->second;
}

}
