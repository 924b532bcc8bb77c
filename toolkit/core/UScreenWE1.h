#pragma once

#include "Export.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// The one-bit screen of the telephone: 162 columns; 31 rows, 47 with a third line, 16 on the desktop
/// process.
class TOOLKIT_EXPORT UScreenWE1 {
public:
    static constexpr int Width = 162;
    static constexpr int MaximumHeight = 47;

    explicit UScreenWE1(int height = 31);

    int height() const { return mHeight; }
    bool pixel(int x, int y) const
    {
        return isInside(x, y) && (mRows[static_cast<std::size_t>(y)][wordOf(x)] & bitOf(x)) != 0;
    }
    void clear();

    // What lies outside the screen is cut off.

    void setPixel(int x, int y, bool on) { fill(y, x, x, on); }

    /// Sets `count` pixels of a row, 1 to 16, from `x` on; the highest of the `count` bits is the leftmost pixel.
    void setPixels(int x, int y, std::uint16_t bits, int count);

    /// Sets the pixels of a row from `left` to `right`, both included.
    void fill(int y, int left, int right, bool on);

    /// Swaps black and white of them.
    void invert(int y, int left, int right);

    bool operator==(const UScreenWE1&) const = default;

private:
    using Row = std::array<std::uint64_t, (Width + 63) / 64>; // the highest bit of a word is its leftmost pixel

    static std::size_t wordOf(int x) { return static_cast<std::size_t>(x) / 64; }
    static std::uint64_t bitOf(int x) { return std::uint64_t{1} << (63 - x % 64); }
    static std::uint64_t maskOf(std::size_t word, int left, int right);

    /// Calls a function with each word of a row that holds pixels of a range, its number, and the mask of those.
    template <typename Change>
    void changeRow(int y, int left, int right, Change change);

    bool isInside(int x, int y) const { return x >= 0 && x < Width && y >= 0 && y < mHeight; }

    int mHeight;
    std::array<Row, MaximumHeight> mRows = {};
};
