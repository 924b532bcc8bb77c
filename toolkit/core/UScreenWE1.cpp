#include "UScreenWE1.h"

#include <algorithm>

UScreenWE1::UScreenWE1(int height)
    : mHeight(std::clamp(height, 0, MaximumHeight))
{
}

void UScreenWE1::clear()
{
    mRows = {};
}

std::uint64_t UScreenWE1::maskOf(std::size_t word, int left, int right)
{
    const int origin = static_cast<int>(word) * 64;
    const int first = std::max(left - origin, 0);
    const int last = std::min(right - origin, 63);
    return ~std::uint64_t{0} >> first & ~std::uint64_t{0} << (63 - last);
}

template <typename Change>
void UScreenWE1::changeRow(int y, int left, int right, Change change)
{
    left = std::max(left, 0);
    right = std::min(right, Width - 1);
    if (y < 0 || y >= mHeight || left > right)
        return;
    Row& row = mRows[static_cast<std::size_t>(y)];
    for (std::size_t word = wordOf(left); word <= wordOf(right); ++word)
        change(row[word], word, maskOf(word, left, right));
}

void UScreenWE1::setPixels(int x, int y, std::uint16_t bits, int count)
{
    changeRow(y, x, x + count - 1, [&](std::uint64_t& pixels, std::size_t word, std::uint64_t mask) {
        const int shift = static_cast<int>(word + 1) * 64 - (x + count);
        const std::uint64_t placed = shift >= 0 ? std::uint64_t{bits} << shift : std::uint64_t{bits} >> -shift;
        pixels = (pixels & ~mask) | (placed & mask);
    });
}

void UScreenWE1::fill(int y, int left, int right, bool on)
{
    changeRow(y, left, right,
        [on](std::uint64_t& pixels, std::size_t, std::uint64_t mask) { pixels = on ? pixels | mask : pixels & ~mask; });
}

void UScreenWE1::invert(int y, int left, int right)
{
    changeRow(y, left, right, [](std::uint64_t& pixels, std::size_t, std::uint64_t mask) { pixels ^= mask; });
}
