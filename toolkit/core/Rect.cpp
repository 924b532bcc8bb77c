#include "Rect.h"

#include <array>
#include <cstddef>

// Both kinds of rectangles give their corners alike; they differ in how they are made.

namespace {

URect between(const URect&, int left, int top, int right, int bottom)
{
    return {left, top, right, bottom};
}

DisplayAPI::Rect between(const DisplayAPI::Rect&, int left, int top, int right, int bottom)
{
    return {left, top, right - left + 1, bottom - top + 1};
}

template <typename R>
bool holds(const R& outer, const R& inner)
{
    return !outer.isEmpty() && !inner.isEmpty() && outer.left() <= inner.left() && outer.top() <= inner.top()
        && outer.right() >= inner.right() && outer.bottom() >= inner.bottom();
}

template <typename R>
bool meet(const R& one, const R& other)
{
    return !one.isEmpty() && !other.isEmpty() && one.left() <= other.right() && other.left() <= one.right()
        && one.top() <= other.bottom() && other.top() <= one.bottom();
}

template <typename R>
R shared(const R& one, const R& other)
{
    if (!meet(one, other))
        return {};
    return between(one, std::max(one.left(), other.left()), std::max(one.top(), other.top()),
        std::min(one.right(), other.right()), std::min(one.bottom(), other.bottom()));
}

template <typename R>
struct Pieces {
    std::array<R, 4> rects;
    std::ptrdiff_t count = 0;

    void add(const R& rect) { rects[static_cast<std::size_t>(count++)] = rect; }
};

/// What stays of a rectangle when one that overlaps it is taken off.
template <typename R>
Pieces<R> cut(const R& whole, const R& taken)
{
    const R hole = shared(whole, taken);
    Pieces<R> pieces;
    if (hole.top() > whole.top())
        pieces.add(between(whole, whole.left(), whole.top(), whole.right(), hole.top() - 1));
    if (hole.bottom() < whole.bottom())
        pieces.add(between(whole, whole.left(), hole.bottom() + 1, whole.right(), whole.bottom()));
    if (hole.left() > whole.left())
        pieces.add(between(whole, whole.left(), hole.top(), hole.left() - 1, hole.bottom()));
    if (hole.right() < whole.right())
        pieces.add(between(whole, hole.right() + 1, hole.top(), whole.right(), hole.bottom()));
    return pieces;
}

template <typename R>
std::vector<R> rest(const R& whole, const std::vector<R>& others)
{
    std::vector<R> pieces;
    // A screen below another is mostly covered as a whole, and then nothing needs to be allocated.
    if (whole.isEmpty()
        || std::any_of(others.begin(), others.end(), [&](const R& other) { return holds(other, whole); }))
        return pieces;

    constexpr std::size_t piecesOfOneCut = 4;
    pieces.reserve(piecesOfOneCut);
    pieces.push_back(whole);
    for (const R& taken : others) {
        for (auto piece = pieces.begin(); piece != pieces.end();) {
            if (!meet(*piece, taken)) {
                ++piece;
                continue;
            }
            const Pieces<R> left = cut(*piece, taken);
            piece = pieces.erase(piece);
            piece = pieces.insert(piece, left.rects.begin(), left.rects.begin() + left.count) + left.count;
        }
    }
    return pieces;
}

}

bool URect::contain(const URect& other) const
{
    return holds(*this, other);
}

bool URect::Overlap(const URect& other) const
{
    return meet(*this, other);
}

URect URect::getIntersection(const URect& other) const
{
    return shared(*this, other);
}

std::vector<URect> URect::subtract(const std::vector<URect>& others) const
{
    return rest(*this, others);
}

namespace DisplayAPI {

bool Rect::contain(const Rect& other) const
{
    return holds(*this, other);
}

bool Rect::Overlap(const Rect& other) const
{
    return meet(*this, other);
}

Rect Rect::getIntersection(const Rect& other) const
{
    return shared(*this, other);
}

std::vector<Rect> Rect::subtract(const std::vector<Rect>& others) const
{
    return rest(*this, others);
}

}
