#pragma once

#include "Export.h"

#include <cstddef>
#include <string>
#include <string_view>

/// A text of 16-bit units (UTF-16), the one text type of the widgets.
///
/// Decoding takes UTF-8; characters above U+FFFF become a surrogate pair, and length() counts units. An
/// invalid byte or a lone surrogate becomes U+FFFD, one for each maximal bad sequence. NUL is an ordinary
/// unit. Values are independent of each other, so a text may be copied to any thread.
template <typename C>
class _template_UString {
public:
    _template_UString() = default;

    /// The same text as fromUTF8() gives.
    explicit _template_UString(const std::string& utf8);

    static _template_UString fromUTF8(const std::string& utf8);
    std::string toUTF8() const;

    std::size_t length() const { return mUnits.size(); }
    bool isEmpty() const { return mUnits.empty(); }
    C operator[](std::size_t index) const { return static_cast<C>(mUnits[index]); }

    /// The units from `start` on, `count` at most; empty when `start` lies behind the end.
    _template_UString mid(std::size_t start, std::size_t count = std::u16string::npos) const;

    /// The index of the first occurrence at or after `start`, or -1.
    int find(const _template_UString& text, std::size_t start = 0) const;

    void append(C unit) { mUnits.push_back(static_cast<char16_t>(unit)); }

    /// Puts a text in the place of `count` units from `start` on. What lies behind the end is its end.
    void replace(std::size_t start, std::size_t count, const _template_UString& text);

    /// Takes off the last character: a surrogate pair goes as one.
    void removeLast();

    void clear() { mUnits.clear(); }

    _template_UString& operator+=(const _template_UString& other);
    friend _template_UString operator+(_template_UString left, const _template_UString& right)
    {
        left += right;
        return left;
    }
    friend bool operator==(const _template_UString& left, const _template_UString& right)
    {
        return left.mUnits == right.mUnits;
    }

private:
    std::u16string mUnits;
};

extern template class TOOLKIT_EXPORT _template_UString<unsigned short>;

using UString = _template_UString<unsigned short>;
