#pragma once

#include <climits>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// What a character on the canvas belongs to; how that looks is the terminal's matter.
enum class Style { Plain, Strong, Faint, Frame, Glass, Key, LitKey };

/// Lines and columns of characters, to draw on before a terminal has them.
class TextCanvas {
public:
    struct Cell {
        std::string text = " "; ///< One character, in UTF-8; empty for the right half of a wide one.
        Style style = Style::Plain;
    };

    TextCanvas(int columns, int lines);

    int columns() const { return mColumns; }
    int lines() const { return mLines; }
    const Cell& at(int line, int column) const;

    /// Writes a text from a place on, and answers the column behind it. What does not fit into `columns`, or lies
    /// outside the canvas, is cut off. What a terminal may not have becomes `?`.
    int put(int line, int column, std::string_view text, Style style = Style::Plain, int columns = INT_MAX);

    /// Puts characters that every terminal has in place of the others: lines and arrows of ASCII, and `?`.
    void makePlain();

    /// The lines as they are written, without blanks at their ends.
    std::vector<std::string> text() const;

private:
    Cell& cell(int line, int column);
    void combine(int line, int column, std::string_view mark);

    int mColumns;
    int mLines;
    std::vector<Cell> mCells;
};

/// How many columns a text takes.
int columnsOf(std::string_view text);

/// The text in lines of at most so many columns.
std::vector<std::string> wrapped(std::string_view text, int columns);

}
