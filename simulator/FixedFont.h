#pragma once

#include <UFont.h>

#include <string>
#include <unordered_map>

namespace Simulator {

/// The telephone's font: a bitmap font of 6x13 pixels, read from a file.
class FixedFont : public UFont {
public:
    /// Reads every glyph. An empty name stands for the system's own file. Throws UsageError when there is no
    /// file, or its font has another size.
    explicit FixedFont(const std::string& file);

    const Glyph* glyph(std::uint16_t unit) const override;

private:
    std::unordered_map<std::uint16_t, Glyph> mGlyphs;
};

}
