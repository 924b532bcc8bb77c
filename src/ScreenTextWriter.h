#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace DisplayAPI {

/// Writes the structured text of a screen, block by block. The text is a contract to the byte: each irregular
/// form has an operation of its own, so that the eye sees that it is meant.
class ScreenTextWriter {
public:
    ScreenTextWriter();

    // Blocks

    void object(std::string_view name);
    void endObject();

    /// An object whose name line is written as a field, or not at all.
    void unnamedObject();
    void subitem(std::string_view name);
    void endSubitem();

    // Lines

    /// "key:value"
    void field(std::string_view key, std::string_view value);

    /// "key: value", with a blank behind the colon
    void spacedField(std::string_view key, std::string_view value);

    // A line whose value comes in pieces

    void startField(std::string_view key);
    void value(std::string_view text);
    void endField();

    /// Whole blocks that somebody else has written.
    void blocks(std::string_view text);

    std::string take() { return std::move(mText); }

    /// The text with a blank for each line feed, for the lines that may not split.
    static std::string flattened(std::string text);

private:
    std::string mText;
};

}
