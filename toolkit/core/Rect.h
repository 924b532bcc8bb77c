#pragma once

#include "Export.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

/// A rectangle of widgets: signed 16-bit corners, all of them inside. Right below left, or bottom above
/// top, is an empty rectangle.
class TOOLKIT_EXPORT URect {
public:
    URect() = default;
    URect(int left, int top, int right, int bottom)
        : mLeft(static_cast<std::int16_t>(left))
        , mTop(static_cast<std::int16_t>(top))
        , mRight(static_cast<std::int16_t>(right))
        , mBottom(static_cast<std::int16_t>(bottom))
    {
    }

    int left() const { return mLeft; }
    int top() const { return mTop; }
    int right() const { return mRight; }
    int bottom() const { return mBottom; }
    int width() const { return mRight - mLeft + 1; }
    int height() const { return mBottom - mTop + 1; }
    bool isEmpty() const { return mRight < mLeft || mBottom < mTop; }

    /// True when the other rectangle lies wholly inside this one. An empty one lies in none.
    bool contain(const URect& other) const;
    bool contains(const URect& other) const { return contain(other); }

    /// True when the two share at least one pixel.
    bool Overlap(const URect& other) const;

    /// What the two share; empty when they don't overlap.
    URect getIntersection(const URect& other) const;

    /// What stays of this rectangle when the others are taken off it: at most four pieces for each, in the
    /// order above, below, left, right.
    std::vector<URect> subtract(const std::vector<URect>& others) const;

    bool operator==(const URect&) const = default;

private:
    std::int16_t mLeft = 0;
    std::int16_t mTop = 0;
    std::int16_t mRight = -1;
    std::int16_t mBottom = -1;
};

namespace DisplayAPI {

/// A rectangle of the library: corner and size. right() and bottom() are the last column and row inside, the
/// greatest int where they lie beyond it; a width or height of 0 or less makes it empty.
class TOOLKIT_EXPORT Rect {
public:
    Rect() = default;
    Rect(int left, int top, int width, int height)
        : mLeft(left)
        , mTop(top)
        , mWidth(width)
        , mHeight(height)
    {
    }

    int left() const { return mLeft; }
    int top() const { return mTop; }
    int right() const { return last(mLeft, mWidth); }
    int bottom() const { return last(mTop, mHeight); }
    int width() const { return mWidth; }
    int height() const { return mHeight; }
    bool isEmpty() const { return mWidth <= 0 || mHeight <= 0; }

    /// True when the other rectangle lies wholly inside this one. An empty one lies in none.
    bool contain(const Rect& other) const;
    bool contains(const Rect& other) const { return contain(other); }

    /// True when the two share at least one pixel.
    bool Overlap(const Rect& other) const;

    /// What the two share; empty when they don't overlap.
    Rect getIntersection(const Rect& other) const;

    /// What stays of this rectangle when the others are taken off it: at most four pieces for each, in the
    /// order above, below, left, right.
    std::vector<Rect> subtract(const std::vector<Rect>& others) const;

    bool operator==(const Rect&) const = default;

private:
    /// The last pixel of a range. What no int can name is cut off, so that no sum overflows.
    static int last(int first, int size)
    {
        const auto place = static_cast<long long>(first) + size - 1;
        return static_cast<int>(
            std::clamp<long long>(place, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    }

    int mLeft = 0;
    int mTop = 0;
    int mWidth = 0;
    int mHeight = 0;
};

}
