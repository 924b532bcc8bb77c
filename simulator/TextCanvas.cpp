#include "TextCanvas.h"

#include "Printable.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <utility>

namespace Simulator {

namespace {

/// Where a canvas of so many columns keeps a cell.
std::size_t placeOf(int line, int columns, int column)
{
    return static_cast<std::size_t>(line) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(column);
}

/// The bytes of the first character of a text that is printable.
std::string_view firstCharacter(std::string_view text)
{
    const auto isContinued = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    const auto end = std::find_if_not(text.begin() + 1, text.end(), isContinued);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/// How many columns a character takes; 0 for one that stands on the character before it.
int widthOf(std::string_view character)
{
    const auto lead = static_cast<unsigned char>(character[0]);
    if (lead < 0x80)
        return 1;
    wchar_t code = static_cast<wchar_t>(lead & (0xFF >> (character.size() + 1)));
    for (const char byte : character.substr(1))
        code = static_cast<wchar_t>(code << 6 | (byte & 0x3F));
    const int width = wcwidth(code);
    return width < 0 ? 1 : width;
}

/// Calls a function with each character of a text, made printable, and its width, until the function answers false.
template <typename Function>
void forEachCharacter(std::string_view text, Function function)
{
    const std::string safe = printable(text);
    for (std::string_view rest = safe; !rest.empty();) {
        const std::string_view character = firstCharacter(rest);
        rest.remove_prefix(character.size());
        if (!function(character, widthOf(character)))
            return;
    }
}

/// What stands for a character where there is only ASCII.
const char* plain(const std::string& character)
{
    constexpr std::pair<std::string_view, const char*> plainCharacters[] = {
        {"─", "-"},
        {"│", "|"},
        {"┌", "+"},
        {"┐", "+"},
        {"└", "+"},
        {"┘", "+"},
        {"├", "+"},
        {"┤", "+"},
        {"▲", "^"},
        {"▼", "v"},
        {"◄", "<"},
        {"►", ">"},
        {"▀", "\""},
        {"▄", "_"},
        {"█", "#"},
        {"…", "."},
    };
    for (const auto& [known, instead] : plainCharacters) {
        if (character == known)
            return instead;
    }
    return "?";
}

}

TextCanvas::TextCanvas(int columns, int lines)
    : mColumns(std::max(columns, 0))
    , mLines(std::max(lines, 0))
    , mCells(static_cast<std::size_t>(mColumns) * static_cast<std::size_t>(mLines))
{
}

const TextCanvas::Cell& TextCanvas::at(int line, int column) const
{
    return mCells[placeOf(line, mColumns, column)];
}

TextCanvas::Cell& TextCanvas::cell(int line, int column)
{
    return mCells[placeOf(line, mColumns, column)];
}

int TextCanvas::put(int line, int column, std::string_view text, Style style, int columns)
{
    if (line < 0 || line >= mLines || column < 0)
        return column;
    const int end = columns < mColumns - column ? column + columns : mColumns;
    forEachCharacter(text, [&](std::string_view character, int width) {
        if (column + width > end)
            return false;
        if (width == 0) {
            combine(line, column - 1, character);
            return true;
        }
        cell(line, column++) = {std::string(character), style};
        if (width == 2)
            cell(line, column++) = {"", style};
        return true;
    });
    return column;
}

void TextCanvas::combine(int line, int column, std::string_view mark)
{
    if (column > 0 && cell(line, column).text.empty())
        --column;
    if (column >= 0)
        cell(line, column).text += mark;
}

void TextCanvas::makePlain()
{
    for (Cell& cell : mCells) {
        if (cell.text.size() > 1)
            cell.text = plain(cell.text);
        else if (cell.text.empty())
            cell.text = "?";
    }
}

std::vector<std::string> TextCanvas::text() const
{
    std::vector<std::string> lines;
    for (int line = 0; line < mLines; ++line) {
        std::string text;
        for (int column = 0; column < mColumns; ++column)
            text += at(line, column).text;
        text.erase(text.find_last_not_of(' ') + 1);
        lines.push_back(text);
    }
    return lines;
}

int columnsOf(std::string_view text)
{
    int columns = 0;
    forEachCharacter(text, [&columns](std::string_view, int width) {
        columns += width;
        return true;
    });
    return columns;
}

std::vector<std::string> wrapped(std::string_view text, int columns)
{
    std::vector<std::string> lines(1);
    int used = 0;
    forEachCharacter(text, [&](std::string_view character, int width) {
        if (used + width > columns && used > 0) {
            lines.emplace_back();
            used = 0;
        }
        lines.back() += character;
        used += width;
        return true;
    });
    return lines;
}

}
