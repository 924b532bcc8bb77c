#pragma once

#include <Rect.h>

#include <vector>

class UWidget;

namespace DisplayAPI {

class Displayable;

/// Where screens lie on the glass: their full rectangles, in the order of updating. That they cover each other is
/// for the reader to see. Threads: GUI thread only.
class VisibleRectMonitor {
public:
    void clear();

    /// Appends a screen; one without a private or a widget is left out.
    void update(Displayable& displayable);

    /// Takes the first entry of a screen out; no entry is no error.
    void remove(Displayable& displayable);

    /// The rectangles, in absolute coordinates. They change with the next operation.
    std::vector<Rect>* getVisibleRects() const { return &mRects; }

    /// A widget's rectangle, moved by the corner of each of its ancestors.
    Rect findTopLevelGeometry(const UWidget& widget) const;

private:
    mutable std::vector<Rect> mRects; // handed out for writing, as the display's interface has it
    std::vector<const Displayable*> mDisplayables;
};

}
