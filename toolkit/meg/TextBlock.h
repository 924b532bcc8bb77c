#pragma once

#include "Export.h"
#include "UString.h"

#include <string>
#include <string_view>

/// Writes the block that a widget gives to the screen text: one item a line, line feeds inside values as blanks.
class TOOLKIT_EXPORT TextBlock {
public:
    /// Begins an object.
    explicit TextBlock(std::string_view name);

    /// Writes a value, also an empty one.
    void field(std::string_view key, std::string_view value);

    void beginSubitem(std::string_view name);
    void endSubitem();

    /// Takes in whole blocks that another widget has written.
    void blocks(const UString& text);

    /// Ends the object and gives the whole block.
    UString finish();

    /// A text in one line.
    static std::string oneLine(std::string_view text);

private:
    std::string mText;
};
