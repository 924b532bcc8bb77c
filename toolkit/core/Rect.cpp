#include "Rect.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

bool URect::contains(const URect& other) const
{
    return !isEmpty() && !other.isEmpty() && mLeft <= other.mLeft && mTop <= other.mTop && mRight >= other.mRight
        && mBottom >= other.mBottom;
}

namespace DisplayAPI {

namespace {

/// The last pixel of a range. What lies above the greatest int cannot be named by a corner and is cut off,
/// so that no sum overflows.
int lastPixel(int first, int size)
{
    const auto last = static_cast<long long>(first) + size - 1;
    return static_cast<int>(std::min<long long>(last, std::numeric_limits<int>::max()));
}

/// The corners of a rectangle, all of them inside.
struct Corners {
    int left;
    int top;
    int right;
    int bottom;

    explicit Corners(const Rect& rect)
        : left(rect.left())
        , top(rect.top())
        , right(lastPixel(rect.left(), rect.width()))
        , bottom(lastPixel(rect.top(), rect.height()))
    {
    }

    void cutTo(const Corners& other)
    {
        left = std::max(left, other.left);
        top = std::max(top, other.top);
        right = std::min(right, other.right);
        bottom = std::min(bottom, other.bottom);
    }
};

Rect between(int left, int top, int right, int bottom)
{
    return {left, top, right - left + 1, bottom - top + 1};
}

struct Pieces {
    std::array<Rect, 4> rects;
    std::ptrdiff_t count = 0;

    void add(const Rect& rect) { rects[static_cast<std::size_t>(count++)] = rect; }
};

/// What stays of a rectangle when one that overlaps it is taken off.
Pieces cut(const Rect& rect, const Rect& taken)
{
    const Corners whole(rect);
    Corners hole(taken);
    hole.cutTo(whole);
    Pieces pieces;
    if (hole.top > whole.top)
        pieces.add(between(whole.left, whole.top, whole.right, hole.top - 1));
    if (hole.bottom < whole.bottom)
        pieces.add(between(whole.left, hole.bottom + 1, whole.right, whole.bottom));
    if (hole.left > whole.left)
        pieces.add(between(whole.left, hole.top, hole.left - 1, hole.bottom));
    if (hole.right < whole.right)
        pieces.add(between(hole.right + 1, hole.top, whole.right, hole.bottom));
    return pieces;
}

}

bool Rect::contain(const Rect& other) const
{
    if (isEmpty() || other.isEmpty())
        return false;
    const Corners outer(*this);
    const Corners inner(other);
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right
        && outer.bottom >= inner.bottom;
}

bool Rect::Overlap(const Rect& other) const
{
    if (isEmpty() || other.isEmpty())
        return false;
    const Corners mine(*this);
    const Corners others(other);
    return mine.left <= others.right && others.left <= mine.right && mine.top <= others.bottom
        && others.top <= mine.bottom;
}

Rect Rect::getIntersection(const Rect& other) const
{
    if (!Overlap(other))
        return {};
    Corners shared(*this);
    shared.cutTo(Corners(other));
    return between(shared.left, shared.top, shared.right, shared.bottom);
}

std::vector<Rect> Rect::subtract(const std::vector<Rect>& others) const
{
    std::vector<Rect> pieces;
    // A screen below another is mostly covered as a whole, and then nothing needs to be allocated.
    if (isEmpty() || std::any_of(others.begin(), others.end(), [this](const Rect& r) { return r.contain(*this); }))
        return pieces;

    constexpr std::size_t piecesOfOneCut = 4;
    pieces.reserve(piecesOfOneCut);
    pieces.push_back(*this);
    for (const Rect& taken : others) {
        for (auto piece = pieces.begin(); piece != pieces.end();) {
            if (!piece->Overlap(taken)) {
                ++piece;
                continue;
            }
            const Pieces rest = cut(*piece, taken);
            piece = pieces.erase(piece);
            piece = pieces.insert(piece, rest.rects.begin(), rest.rects.begin() + rest.count) + rest.count;
        }
    }
    return pieces;
}

}
