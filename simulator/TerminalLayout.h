#pragma once

namespace Simulator {

/// A rectangle of characters; empty if there was no room for what stands there.
struct Area {
    int line = 0;
    int column = 0;
    int lines = 0;
    int columns = 0;

    bool isEmpty() const { return lines == 0 || columns == 0; }
    bool operator==(const Area&) const = default;
};

/// What has to find its place in a terminal.
struct TerminalNeeds {
    int columns = 80; ///< Of the terminal.
    int lines = 24;
    int glassColumns = 81;      ///< Of the whole glass; 0 if this terminal can't draw it.
    int leastGlassColumns = 80; ///< With which it can still be drawn.
    int glassLines = 16;        ///< With a line less it can still be drawn.
    int stripLines = 0;         ///< Of the desktop's glass; 0 while there is none.
};

/// Where the parts of the telephone stand in a terminal of some size: the whole telephone in its frame, or what is
/// wanted most of it.
struct TerminalLayout {
    static constexpr int LeastColumns = 20;
    static constexpr int LeastLines = 4;

    bool isTooSmall = false;
    Area frame;          ///< Around strip, glass and keys.
    int topEdge = -1;    ///< The line with the name; -1 for none.
    int middleEdge = -1; ///< The line between glass and keys.
    Area strip;
    Area glass;
    Area functionKeys;
    Area keys;
    bool hasLargeKeys = false;
    Area text;
    Area page;                ///< Where whole texts are shown for a while.
    bool isPageApart = false; ///< So that the glass and its keys are seen beside it.
    int statusLine = 0;
};

/// From so many columns on there is room for a text beside a telephone with a glass of so many.
int columnsForTextBeside(int glassColumns);

/// Places the parts.
TerminalLayout layOut(const TerminalNeeds& needs);

}
