#include "ScreenTextWriter.h"

#include <algorithm>
#include <cstddef>

namespace DisplayAPI {

// Here and not in the header: sixty screens write their text with these, and none of them in a hurry.

namespace {

constexpr std::size_t UsualLength = 256;

}

ScreenTextWriter::ScreenTextWriter()
{
    mText.reserve(UsualLength);
}

// Blocks

void ScreenTextWriter::object(std::string_view name)
{
    unnamedObject();
    field("name", name);
}

void ScreenTextWriter::endObject()
{
    mText += "end:\n";
}

void ScreenTextWriter::unnamedObject()
{
    mText += "object:\n";
}

void ScreenTextWriter::subitem(std::string_view name)
{
    mText += "subitem:\n";
    field("name", name);
}

void ScreenTextWriter::endSubitem()
{
    mText += "endsubitem:\n";
}

// Lines

void ScreenTextWriter::field(std::string_view key, std::string_view value)
{
    startField(key);
    mText += value;
    endField();
}

void ScreenTextWriter::spacedField(std::string_view key, std::string_view value)
{
    startField(key);
    mText += ' ';
    mText += value;
    endField();
}

void ScreenTextWriter::startField(std::string_view key)
{
    mText += key;
    mText += ':';
}

void ScreenTextWriter::value(std::string_view text)
{
    mText += text;
}

void ScreenTextWriter::endField()
{
    mText += '\n';
}

void ScreenTextWriter::blocks(std::string_view text)
{
    mText += text;
}

std::string ScreenTextWriter::flattened(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

}
