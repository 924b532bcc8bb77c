#include "UScreenWE1.h"

#include <algorithm>

UScreenWE1::UScreenWE1(int height)
    : mHeight(std::clamp(height, 0, MaximumHeight))
{
}

void UScreenWE1::setPixel(int x, int y, bool on)
{
    if (isInside(x, y))
        mRows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = on;
}

void UScreenWE1::clear()
{
    for (auto& row : mRows)
        row.reset();
}
