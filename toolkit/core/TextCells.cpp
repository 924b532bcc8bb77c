#include "TextCells.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct Range {
    unsigned short first;
    unsigned short last;
};

/// The blocks of marks that have no cell of their own, with the joiner and the variation selectors.
constexpr std::array<Range, 12> combining = {{
    {0x0300, 0x036F},
    {0x0483, 0x0489},
    {0x0591, 0x05BD},
    {0x0610, 0x061A},
    {0x064B, 0x065F},
    {0x1AB0, 0x1AFF},
    {0x1DC0, 0x1DFF},
    {0x200D, 0x200D},
    {0x20D0, 0x20FF},
    {0x3099, 0x309A},
    {0xFE00, 0xFE0F},
    {0xFE20, 0xFE2F},
}};

constexpr unsigned short LineFeed = '\n';
constexpr unsigned short CarriageReturn = '\r';

bool isHighSurrogate(unsigned short unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(unsigned short unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool isBlank(unsigned short unit)
{
    return unit == ' ' || unit == '\t';
}

/// The place behind the character at `start`, no farther than `end`.
std::size_t next(const UString& text, std::size_t start, std::size_t end)
{
    if (start >= end)
        return end;
    std::size_t place = start + 1;
    if (isHighSurrogate(text[start]) && place < end && isLowSurrogate(text[place]))
        ++place;
    while (place < end && TextCells::isCombining(text[place]))
        ++place;
    return place;
}

std::size_t forwardTo(const UString& text, std::size_t start, int count, std::size_t end)
{
    std::size_t place = start;
    for (int character = 0; character < count && place < end; ++character)
        place = next(text, place, end);
    return place;
}

/// A piece of text that becomes a line, and where the next one begins.
struct Piece {
    std::size_t end;
    std::size_t next;
};

/// The blanks that end at `end`, but not those at the head of the line.
std::size_t withoutBlanks(const UString& text, std::size_t start, std::size_t end)
{
    std::size_t place = end;
    while (place > start && isBlank(text[place - 1]))
        --place;
    return place > start ? place : end;
}

/// The last break between words in a stretch, if it has one behind its first word.
std::optional<Piece> wordBreak(const UString& text, std::size_t start, std::size_t end)
{
    for (std::size_t place = end; place > start + 1; --place) {
        if (!isBlank(text[place - 1]))
            continue;
        const std::size_t wordEnd = withoutBlanks(text, start, place);
        if (wordEnd == place)
            break; // only blanks in front
        return Piece{wordEnd, place};
    }
    return std::nullopt;
}

/// The line that begins at `start` in a paragraph that ends at `end`.
Piece takeLine(const UString& text, std::size_t start, std::size_t end, int columns)
{
    const std::size_t stop = forwardTo(text, start, columns, end);
    if (stop == end)
        return {end, end};
    const std::size_t wordEnd = withoutBlanks(text, start, stop);
    if (isBlank(text[stop]) && !isBlank(text[wordEnd - 1])) {
        std::size_t following = stop;
        while (following < end && isBlank(text[following]))
            ++following;
        return {wordEnd, following};
    }
    return wordBreak(text, start, stop).value_or(Piece{stop, stop});
}

}

bool TextCells::isCombining(unsigned short unit)
{
    return unit >= combining.front().first
        && std::any_of(combining.begin(), combining.end(),
            [unit](const Range& range) { return unit >= range.first && unit <= range.last; });
}

std::size_t TextCells::forward(const UString& text, std::size_t start, int count)
{
    return forwardTo(text, std::min(start, text.length()), count, text.length());
}

std::size_t TextCells::backward(const UString& text, std::size_t end)
{
    std::size_t place = std::min(end, text.length());
    while (place > 0 && isCombining(text[place - 1]))
        --place;
    if (place == 0)
        return 0;
    --place;
    return place > 0 && isLowSurrogate(text[place]) && isHighSurrogate(text[place - 1]) ? place - 1 : place;
}

int TextCells::count(const UString& text, int most)
{
    int cells = 0;
    for (std::size_t place = 0; place < text.length() && cells < most; ++cells)
        place = next(text, place, text.length());
    return cells;
}

std::vector<UString> TextCells::lines(const UString& text, int columns)
{
    std::vector<UString> result;
    if (columns <= 0)
        return result;
    for (std::size_t start = 0; start < text.length();) {
        std::size_t end = start;
        while (end < text.length() && text[end] != LineFeed)
            ++end;
        const std::size_t following = end + 1;
        if (end < text.length() && end > start && text[end - 1] == CarriageReturn)
            --end;
        do {
            const Piece piece = takeLine(text, start, end, columns);
            result.push_back(text.mid(start, piece.end - start));
            start = piece.next;
        } while (start < end);
        start = following;
    }
    return result;
}
