#pragma once

#include "Export.h"
#include "UString.h"

#include <functional>

/// Tells of the texts that have no room on the glass, for whoever writes and translates them.
///
/// Threads: GUI thread only.
class TOOLKIT_EXPORT TextCuts {
public:
    /// Gets the whole text, and how many cells of it are seen.
    using Watcher = std::function<void(const UString& text, int columns)>;

    /// Sets who is told, at each painting; empty for nobody, as at first.
    static void watch(Watcher watcher);

    /// A painter has drawn no more than this of a text.
    static void tell(const UString& text, int columns);
};
