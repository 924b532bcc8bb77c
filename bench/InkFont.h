#pragma once

#include <UFont.h>

#include <array>
#include <cstddef>
#include <cstdint>

/// A font whose glyphs are all ink and no two alike, so that every cell is drawn.
class InkFont : public UFont {
public:
    InkFont()
    {
        for (std::size_t unit = 0; unit < mGlyphs.size(); ++unit)
            mGlyphs[unit].fill(static_cast<std::uint8_t>(unit & 0x3F));
    }

    const Glyph* glyph(std::uint16_t unit) const override { return &mGlyphs[unit % mGlyphs.size()]; }

private:
    std::array<Glyph, 128> mGlyphs;
};
