#pragma once

#include "Export.h"

#include <array>
#include <bitset>
#include <cstddef>

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
        return isInside(x, y) && mRows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    }
    void setPixel(int x, int y, bool on);
    void clear();

    bool operator==(const UScreenWE1&) const = default;

private:
    bool isInside(int x, int y) const { return x >= 0 && x < Width && y >= 0 && y < mHeight; }

    int mHeight;
    std::array<std::bitset<Width>, MaximumHeight> mRows;
};
