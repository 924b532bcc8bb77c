#include "UString.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr char32_t Replacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// What the first byte of a sequence says of the rest. The range of the second byte keeps out overlong
/// forms, surrogates and what lies above U+10FFFF; all bytes behind it are 0x80 to 0xBF.
struct Lead {
    int following = 0;
    std::uint8_t secondFirst = 0x80;
    std::uint8_t secondLast = 0xBF;
    char32_t bits = 0;
};

/// A lead with nothing following is no lead at all.
constexpr Lead leadOf(std::uint8_t byte)
{
    const char32_t low = byte;
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, 0x80, 0xBF, low & 0x1F};
    if (byte >= 0xE0 && byte <= 0xEF) {
        const std::uint8_t first = byte == 0xE0 ? 0xA0 : 0x80;
        const std::uint8_t last = byte == 0xED ? 0x9F : 0xBF;
        return {2, first, last, low & 0x0F};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        const std::uint8_t first = byte == 0xF0 ? 0x90 : 0x80;
        const std::uint8_t last = byte == 0xF4 ? 0x8F : 0xBF;
        return {3, first, last, low & 0x07};
    }
    return {};
}

/// Reads one character of more than a byte and moves `next` behind it. Of a bad sequence it takes the longest
/// part that could have begun a good one, so that the byte that breaks it is read anew.
char32_t decodeSequence(const std::string& utf8, std::size_t& next)
{
    const Lead lead = leadOf(static_cast<std::uint8_t>(utf8[next++]));
    if (lead.following == 0)
        return Replacement;
    char32_t character = lead.bits;
    for (int i = 0; i < lead.following; ++i, ++next) {
        const std::uint8_t first = i == 0 ? lead.secondFirst : 0x80;
        const std::uint8_t last = i == 0 ? lead.secondLast : 0xBF;
        const std::uint8_t byte = next < utf8.size() ? static_cast<std::uint8_t>(utf8[next]) : 0;
        if (byte < first || byte > last)
            return Replacement;
        character = character << 6 | (byte & 0x3F);
    }
    return character;
}

void appendUnits(std::u16string& units, char32_t character)
{
    if (character < 0x10000) {
        units.push_back(static_cast<char16_t>(character));
        return;
    }
    units.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
    units.push_back(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
}

std::u16string decode(const std::string& utf8)
{
    std::u16string units;
    units.reserve(utf8.size());
    for (std::size_t next = 0; next < utf8.size();) {
        const auto byte = static_cast<std::uint8_t>(utf8[next]);
        if (byte < 0x80) {
            units.push_back(byte);
            ++next;
        } else {
            appendUnits(units, decodeSequence(utf8, next));
        }
    }
    return units;
}

/// Reads one character and moves `next` behind it.
char32_t characterAt(const std::u16string& units, std::size_t& next)
{
    const char32_t unit = units[next++];
    if (isHighSurrogate(unit) && next < units.size() && isLowSurrogate(units[next]))
        return 0x10000 + ((unit - 0xD800) << 10) + (units[next++] - 0xDC00U);
    return isHighSurrogate(unit) || isLowSurrogate(unit) ? Replacement : unit;
}

/// Writes a character of more than a byte.
void appendBytes(std::string& utf8, char32_t character)
{
    const auto push = [&utf8](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
    if (character < 0x800) {
        push(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            push(0xE0 | character >> 12);
        } else {
            push(0xF0 | character >> 18);
            push(0x80 | (character >> 12 & 0x3F));
        }
        push(0x80 | (character >> 6 & 0x3F));
    }
    push(0x80 | (character & 0x3F));
}

}

template <typename C>
_template_UString<C>::_template_UString(const std::string& utf8)
    : mUnits(decode(utf8))
{
}

template <typename C>
_template_UString<C> _template_UString<C>::fromUTF8(const std::string& utf8)
{
    return _template_UString(utf8);
}

template <typename C>
std::string _template_UString<C>::toUTF8() const
{
    std::string utf8;
    utf8.reserve(mUnits.size());
    for (std::size_t next = 0; next < mUnits.size();) {
        if (mUnits[next] < 0x80)
            utf8.push_back(static_cast<char>(mUnits[next++]));
        else
            appendBytes(utf8, characterAt(mUnits, next));
    }
    return utf8;
}

template <typename C>
_template_UString<C> _template_UString<C>::mid(std::size_t start, std::size_t count) const
{
    _template_UString part;
    if (start < mUnits.size())
        part.mUnits = mUnits.substr(start, count);
    return part;
}

template <typename C>
int _template_UString<C>::find(const _template_UString& text, std::size_t start) const
{
    const std::size_t index = mUnits.find(text.mUnits, start);
    return index == std::u16string::npos ? -1 : static_cast<int>(index);
}

template <typename C>
void _template_UString<C>::replace(std::size_t start, std::size_t count, const _template_UString& text)
{
    mUnits.replace(std::min(start, mUnits.size()), count, text.mUnits);
}

template <typename C>
void _template_UString<C>::removeLast()
{
    if (mUnits.empty())
        return;
    const bool isLow = isLowSurrogate(mUnits.back());
    mUnits.pop_back();
    if (isLow && !mUnits.empty() && isHighSurrogate(mUnits.back()))
        mUnits.pop_back();
}

template <typename C>
_template_UString<C>& _template_UString<C>::operator+=(const _template_UString& other)
{
    mUnits += other.mUnits;
    return *this;
}

template class _template_UString<unsigned short>;
