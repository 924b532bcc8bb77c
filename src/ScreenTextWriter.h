#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace DisplayAPI {

/// Writes the structured text of a screen, block by block. The text is a contract to the byte: each irregular
/// form has an operation of its own, so that the eye sees that it is meant.
class ScreenTextWriter {
public:
    ScreenTextWriter() { mText.reserve(256); }

    // Blocks

    void object(std::string_view name) { put("object:\nname:", name, "\n"); }
    void endObject() { mText += "end:\n"; }

    /// An object whose name line is written as a field, or not at all.
    void unnamedObject() { mText += "object:\n"; }
    void subitem(std::string_view name) { put("subitem:\nname:", name, "\n"); }
    void endSubitem() { mText += "endsubitem:\n"; }

    // Lines

    /// "key:value"
    void field(std::string_view key, std::string_view value)
    {
        startField(key);
        mText += value;
        endField();
    }

    /// "key: value", with a blank behind the colon
    void spacedField(std::string_view key, std::string_view value)
    {
        startField(key);
        mText += ' ';
        mText += value;
        endField();
    }

    // A line whose value comes in pieces

    void startField(std::string_view key)
    {
        mText += key;
        mText += ':';
    }
    void value(std::string_view text) { mText += text; }
    void endField() { mText += '\n'; }

    /// Whole blocks that somebody else has written.
    void blocks(std::string_view text) { mText += text; }

    std::string take() { return std::move(mText); }

    /// The text with a blank for each line feed, for the lines that may not split.
    static std::string flattened(std::string text)
    {
        for (char& byte : text) {
            if (byte == '\n')
                byte = ' ';
        }
        return text;
    }

private:
    void put(std::string_view before, std::string_view text, std::string_view behind)
    {
        mText += before;
        mText += text;
        mText += behind;
    }

    std::string mText;
};

}
