#pragma once

#include <Rect.h>

#include <optional>
#include <string>
#include <vector>

namespace Simulator {

/// What the tree of widgets tells of one that can be seen.
struct WidgetInfo {
    std::string kind; ///< The name of its class.
    URect rect;       ///< On the glass.
    /// The lines that it paints by itself, cut as on the glass; icons and marks are blanks. Of a row its text.
    std::vector<std::string> text;
    bool hasFocus = false;
    std::optional<int> rows;       ///< Of a list: how many there are,
    std::optional<int> currentRow; ///< and which is current, from 0 on.
    bool isCurrent = false;        ///< Of a row.
    std::vector<WidgetInfo> children;
};

/// The widgets on the glass, the lowest first; rows of a list that are out of view are left out.
/// Threads: GUI thread.
std::vector<WidgetInfo> readWidgetTree();

/// The widgets at a pixel, from the one that is painted last inwards: the last is the innermost. Empty where there
/// are none.
std::vector<WidgetInfo> widgetsAt(const std::vector<WidgetInfo>& tree, int x, int y);

}
