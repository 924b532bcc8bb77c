#pragma once

#include "Export.h"
#include "UString.h"

#include <climits>
#include <cstddef>
#include <vector>

/// How text fills the cells of a line: a character takes one cell.
///
/// A surrogate pair is one character, and combining marks belong to the character in front of them; at the head
/// of a text they are one of their own. Places are counted in units, as UString does. Threads: any.
namespace TextCells {

/// The place behind `count` characters from `start` on, or the end of the text. `start` is where a character begins.
TOOLKIT_EXPORT std::size_t forward(const UString& text, std::size_t start, int count = 1);

/// The place where the character in front of `end` begins, 0 without one.
TOOLKIT_EXPORT std::size_t backward(const UString& text, std::size_t end);

/// The cells that the text takes; counting stops at `most`.
TOOLKIT_EXPORT int count(const UString& text, int most = INT_MAX);

/// The text in lines of at most `columns` cells, broken between words where that is possible. The blanks at such
/// a break are dropped, all others stay; a word that is longer than a line is cut. A line feed ends a line and
/// begins another only if something follows. An empty text has no lines, and no columns give none.
TOOLKIT_EXPORT std::vector<UString> lines(const UString& text, int columns);

/// True for a unit that is drawn over the character in front of it.
TOOLKIT_EXPORT bool isCombining(unsigned short unit);

}
