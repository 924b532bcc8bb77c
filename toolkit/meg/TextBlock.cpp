#include "TextBlock.h"

#include <algorithm>

TextBlock::TextBlock(std::string_view name)
    : mText("object:\n")
{
    field("name", name);
}

void TextBlock::field(std::string_view key, std::string_view value)
{
    mText.append(key).append(":").append(oneLine(value)).append("\n");
}

void TextBlock::beginSubitem(std::string_view name)
{
    mText += "subitem:\n";
    field("name", name);
}

void TextBlock::endSubitem()
{
    mText += "endsubitem:\n";
}

void TextBlock::blocks(const UString& text)
{
    mText += text.toUTF8();
}

UString TextBlock::finish()
{
    mText += "end:\n";
    return UString(mText);
}

std::string TextBlock::oneLine(std::string_view text)
{
    std::string line(text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}
