#pragma once

#include "Export.h"
#include "Icons.h"
#include "UString.h"

#include <cstdint>

class UFont;
class UScreenWE1;

/// Draws on the screen in the telephone's own measure: lines of 27 cells.
///
/// Line 0 is the rows 0 to 14 (cells in 1 to 13), line 1 the rows 15 to 30 (cells in 17 to 29), line 2 the
/// rows 32 to 46 (cells in 33 to 45). What lies outside a line or the screen is cut off.
class TOOLKIT_EXPORT UPainter {
public:
    static constexpr int Columns = 27;

    UPainter(UScreenWE1& screen, const UFont* font);

    /// Blanks a line, or all lines from `first` to `last`.
    void clearLine(int line);
    void clearLines(int first, int last);

    /// Draws text from a column on, at most `columns` cells; more is cut. A character takes one cell (see
    /// TextCells), also one that the font lacks. Returns the cells that it took.
    int text(int line, int column, const UString& text, int columns = Columns);

    /// Draws text so that its last cell is `lastColumn`; a longer one loses its end.
    void textRight(int line, int lastColumn, const UString& text, int columns = Columns);

    /// Draws a row's text in `columns` cells: a run of three or more blanks splits it, and what stands behind
    /// the run goes to the right edge.
    void rowText(int line, int column, const UString& text, int columns);

    /// Draws an icon, which takes two cells. Returns 2, or 0 for the number 0.
    int icon(int line, int column, std::uint16_t number);

    /// Draws a mark, in the last column unless another mark stands there.
    void mark(int line, Icons::Mark mark, int column = Columns - 1);

    /// Draws a bar of `columns` cells, filled for `value` of the range from `minimum` to `maximum`.
    void bar(int line, int column, int columns, int minimum, int maximum, int value);

    /// Draws a bar in which a block stands, a quarter long: at the left end for position 0, at the right end for
    /// position `positions`.
    void blockBar(int line, int column, int columns, int positions, int position);

    /// Draws a rule along the upper edge of a line.
    void rule(int line);

    /// Swaps black and white of a line between two columns, both included.
    void invert(int line, int firstColumn = 0, int lastColumn = Columns - 1);

    /// Thickens what stands between two columns, both included, by one pixel to the right,
    /// but closes no gap of one pixel, such as the one between two letters.
    void embolden(int line, int firstColumn, int lastColumn);

    /// The first and last row of pixels of a line.
    static int lineTop(int line);
    static int lineBottom(int line);

private:
    void cell(int line, int column, const std::uint8_t* rows);
    void barPart(int line, int column, int columns, int from, int to);
    void character(int line, int column, const UString& character);

    UScreenWE1& mScreen;
    const UFont* mFont;
};
