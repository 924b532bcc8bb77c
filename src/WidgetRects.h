#pragma once

#include <Rect.h>

#include <algorithm>
#include <vector>

namespace DisplayAPI {

/// The display's rectangles as the toolkit has them.
inline std::vector<URect> widgetRects(const std::vector<Rect>& rects)
{
    std::vector<URect> corners;
    corners.reserve(rects.size());
    for (const Rect& rect : rects)
        corners.emplace_back(rect.left(), rect.top(), rect.right(), rect.bottom());
    return corners;
}

/// True if one of the rectangles holds the whole of another one.
inline bool isWhollyIn(const URect& part, const std::vector<URect>& rects)
{
    return std::any_of(rects.begin(), rects.end(), [&part](const URect& rect) { return rect.contains(part); });
}

}
