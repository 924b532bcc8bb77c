#include "TerminalLayout.h"

#include "KeyPad.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr int NarrowestText = 26;
constexpr int GapBesideText = 2;
constexpr int KeysMargin = 1;
constexpr int GapBesideKeys = 1;
constexpr int FewestTextLines = 5; // most screens say no more

/// Hands out the lines of a terminal.
class Lines {
public:
    explicit Lines(int free)
        : mFree(free)
    {
    }

    /// How many of the lines that are wanted there are: all or none.
    int take(int wanted)
    {
        const int taken = wanted <= mFree ? wanted : 0;
        mFree -= taken;
        return taken;
    }
    int free() const { return std::max(mFree, 0); }

private:
    int mFree;
};

void placeKeys(TerminalLayout& layout, int line, int column, int columns)
{
    const int functionLines = layout.hasLargeKeys ? KeyPad::LargeFunctionLines : KeyPad::FunctionLines;
    layout.functionKeys = {line, column + KeysMargin, functionLines, columns - 2 * KeysMargin};
    layout.keys = {line + functionLines, column + KeysMargin, layout.hasLargeKeys ? KeyPad::LargeLines : KeyPad::Lines,
        layout.hasLargeKeys ? KeyPad::LargeColumns : KeyPad::Columns};
}

/// The text, and keys below it if there is room.
TerminalLayout textAlone(const TerminalNeeds& needs)
{
    TerminalLayout layout;
    layout.statusLine = needs.lines - 1;
    const bool hasKeys = needs.columns >= KeyPad::Columns + 2 * KeysMargin
        && needs.lines > FewestTextLines + KeyPad::Lines + KeyPad::FunctionLines;
    const int keyLines = hasKeys ? KeyPad::Lines + KeyPad::FunctionLines : 0;
    layout.page = {0, 0, needs.lines - 1, needs.columns};
    layout.text = {0, 0, needs.lines - 1 - keyLines, needs.columns};
    if (hasKeys)
        placeKeys(layout, layout.text.lines, 0, needs.columns);
    return layout;
}

/// The heights of the parts, the most wanted ones first.
struct Heights {
    int edges = 0; // of a frame: above, between glass and keys, and below
    int top = 0;   // a line with the name, where there is no frame
    int keys = 0;  // function keys and others
    int text = 0;  // below all
    int strip = 0;
    int larger = 0; // what large keys take more

    Heights(const TerminalNeeds& needs, bool canHaveFrame, bool isTextBeside)
    {
        constexpr int keyLines = KeyPad::Lines + KeyPad::FunctionLines;
        constexpr int frameLines = 3;
        Lines lines(needs.lines - 1 - needs.glassLines);
        if (canHaveFrame && lines.free() >= frameLines + keyLines)
            edges = lines.take(frameLines);
        else
            top = lines.take(1);
        keys = lines.take(keyLines);
        if (keys > 0 && !isTextBeside)
            text = lines.take(FewestTextLines);
        strip = needs.stripLines > 0 ? lines.take(needs.stripLines + 1) : 0;
        if (keys > 0)
            larger = lines.take(KeyPad::LargeLines + KeyPad::LargeFunctionLines - keyLines);
        if (!isTextBeside && (text > 0 || keys == 0))
            text += lines.free();
    }
};

/// The text at the right of the keys, down to the end of the telephone.
Area besideKeys(const TerminalLayout& layout, int right, int bottom)
{
    const Area& keys = layout.keys;
    const int column = keys.column + keys.columns + GapBesideKeys;
    return {keys.line, column, bottom - keys.line, right - column};
}

TerminalLayout telephone(const TerminalNeeds& needs)
{
    const int frameColumns = needs.glassColumns + 2;
    const bool isTextBeside = needs.columns >= columnsForTextBeside(needs.glassColumns);
    const Heights heights(needs, needs.columns >= frameColumns, isTextBeside);
    const bool hasFrame = heights.edges > 0;
    const int left = hasFrame ? 1 : 0;
    const int width = std::min(needs.glassColumns, needs.columns);

    TerminalLayout layout;
    layout.statusLine = needs.lines - 1;
    layout.hasLargeKeys = heights.larger > 0;
    layout.topEdge = hasFrame || heights.top > 0 ? 0 : -1;
    int line = layout.topEdge + 1;
    if (heights.strip > 0) {
        layout.strip = {line, left, needs.stripLines, width};
        line += heights.strip; // with a line between
    }
    layout.glass = {line, left, std::min(needs.glassLines, needs.lines - 1), width};
    line += layout.glass.lines;
    if (hasFrame)
        layout.middleEdge = line++;
    if (heights.keys > 0)
        placeKeys(layout, line, left, width);
    line += heights.keys + heights.larger;
    if (hasFrame)
        layout.frame = {0, 0, ++line, frameColumns};

    const int besideColumn = frameColumns + GapBesideText;
    layout.isPageApart = isTextBeside;
    layout.page = isTextBeside ? Area{0, besideColumn, needs.lines - 1, needs.columns - besideColumn}
                               : Area{0, 0, needs.lines - 1, needs.columns};
    if (isTextBeside)
        layout.text = layout.page;
    else if (heights.text > 0)
        layout.text = {line, left, heights.text, needs.columns - 2 * left};
    else if (heights.keys > 0)
        layout.text = besideKeys(layout, width, hasFrame ? line - 1 : layout.statusLine);
    return layout;
}

}

int columnsForTextBeside(int glassColumns)
{
    return glassColumns + 2 + GapBesideText + NarrowestText;
}

TerminalLayout layOut(const TerminalNeeds& needs)
{
    if (needs.columns < TerminalLayout::LeastColumns || needs.lines < TerminalLayout::LeastLines) {
        TerminalLayout layout;
        layout.isTooSmall = true;
        return layout;
    }
    const bool hasGlass
        = needs.glassColumns > 0 && needs.columns >= needs.leastGlassColumns && needs.lines >= needs.glassLines;
    return hasGlass ? telephone(needs) : textAlone(needs);
}

}
