#include "TerminalPicture.h"

#include "BlockDrawing.h"
#include "KeyPad.h"
#include "ScreenText.h"
#include "TerminalLayout.h"

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {

constexpr const char* MoreMark = " … t: all ";

/// A wide terminal has room for half blocks, which are square and so show the glass in its true proportions.
GlassCharacters charactersFor(int columns, GlassCharacters characters)
{
    const bool isWide = columns >= columnsForTextBeside(UScreenWE1::Width);
    return characters == GlassCharacters::Quarters && isWide ? GlassCharacters::Halves : characters;
}

/// The text in no more columns than there are, with a mark if some of it is missing.
std::string fitted(const std::string& text, int columns)
{
    if (columnsOf(text) <= columns)
        return text;
    return wrapped(text, std::max(columns - 1, 1)).front() + "…";
}

/// The fields of a screen text, one in a line, or several of an object if there is no room for that.
std::vector<std::string> fittingLines(const std::string& screenText, const Area& area)
{
    std::vector<std::string> fields = fieldLines(screenText);
    if (fields.size() <= static_cast<std::size_t>(area.lines))
        return fields;
    std::vector<std::string> lines;
    for (const std::string& field : fields) {
        const std::string text = field.substr(std::min(field.find_first_not_of(' '), field.size()));
        const bool isSameObject = !lines.empty() && !text.starts_with("name:");
        if (isSameObject && columnsOf(lines.back() + "  " + text) <= area.columns)
            lines.back() += "  " + text;
        else
            lines.push_back(field);
    }
    return lines;
}

/// Draws the parts of one terminal.
class Painter {
public:
    Painter(const TerminalState& state, int columns, int lines, GlassCharacters characters)
        : mState(state)
        , mCharacters(charactersFor(columns, characters))
        , mLayout(layOut(state, columns, lines, characters))
        , mCanvas(columns, lines)
    {
    }

    TextCanvas paint()
    {
        if (mLayout.isTooSmall)
            paintTooSmall();
        else
            paintParts();
        if (mCharacters == GlassCharacters::None)
            mCanvas.makePlain();
        return std::move(mCanvas);
    }

private:
    void paintParts()
    {
        if (!mState.page || mLayout.isPageApart)
            paintTelephone();
        if (mState.page)
            paintPage(*mState.page);
        else if (!mLayout.text.isEmpty())
            paintText();
        mCanvas.put(mLayout.statusLine, 1, fitted(mState.status, mCanvas.columns() - 2), Style::Faint);
    }

    void paintTelephone()
    {
        paintEdges();
        if (!mLayout.strip.isEmpty()) {
            paintGlass(mState.desktop.screen, mLayout.strip);
            paintEdge(mLayout.strip.line + mLayout.strip.lines, "├", "┤");
        }
        if (!mLayout.glass.isEmpty())
            paintGlass(mState.screen.screen, mLayout.glass);
        if (!mLayout.functionKeys.isEmpty())
            KeyPad::drawFunctionKeys(mCanvas, mLayout.functionKeys, mState.functionKeys, mState.pressedKey);
        if (!mLayout.keys.isEmpty())
            KeyPad::draw(mCanvas, mLayout.keys, mState.pressedKey);
    }

    void paintEdges()
    {
        const Area& frame = mLayout.frame;
        for (int line = frame.line + 1; line < frame.line + frame.lines - 1; ++line) {
            mCanvas.put(line, 0, "│", Style::Frame);
            mCanvas.put(line, frame.columns - 1, "│", Style::Frame);
        }
        if (mLayout.topEdge >= 0) {
            paintEdge(mLayout.topEdge, "┌", "┐");
            const std::string status = stripText();
            const int left = mCanvas.put(mLayout.topEdge, 2, " Telephone ", Style::Frame);
            const int room = mLayout.glass.columns - left - 4;
            if (!status.empty() && room > 0)
                mCanvas.put(mLayout.topEdge, left + 1, " " + fitted(status, room) + " ", Style::Frame);
        }
        if (mLayout.middleEdge >= 0)
            paintEdge(mLayout.middleEdge, "├", "┤");
        if (!frame.isEmpty())
            paintEdge(frame.line + frame.lines - 1, "└", "┘");
    }

    /// A line across the telephone; with corners if it has a frame.
    void paintEdge(int line, const char* leftCorner, const char* rightCorner)
    {
        const int columns = mLayout.frame.isEmpty() ? mLayout.glass.columns : mLayout.frame.columns;
        for (int column = 0; column < columns; ++column)
            mCanvas.put(line, column, "─", Style::Frame);
        if (mLayout.frame.isEmpty())
            return;
        mCanvas.put(line, 0, leftCorner, Style::Frame);
        mCanvas.put(line, columns - 1, rightCorner, Style::Frame);
    }

    /// What the desktop says, where its strip has no room.
    std::string stripText() const
    {
        return mState.desktop.number != 0 && mLayout.strip.isEmpty() ? valuesInOneLine(mState.desktop.text) : "";
    }

    void paintGlass(const UScreenWE1& screen, const Area& area)
    {
        const std::vector<std::string> lines = mCharacters == GlassCharacters::Halves
            ? drawHalfBlocks(screen)
            : drawBlocksInto(screen, {area.columns, area.lines});
        for (int line = 0; line < area.lines; ++line)
            mCanvas.put(area.line + line, area.column, lines[static_cast<std::size_t>(line)], Style::Glass);
    }

    /// The whole text if there is room, else what its topmost screen says.
    void paintText()
    {
        const Area& area = mLayout.text;
        const auto room = static_cast<std::size_t>(area.lines);
        const std::string& whole = mState.screen.text;
        std::vector<std::string> lines = fittingLines(whole, area);
        const bool isWhole = lines.size() <= room;
        if (!isWhole)
            lines = fittingLines(topmostBlock(whole), area);
        int line = area.line;
        if (lines.size() < room)
            mCanvas.put(line++, area.column, "Screen text", Style::Strong);
        lines.resize(std::min(lines.size(), room));
        for (const std::string& fields : lines) {
            const Style style = fields.starts_with("name:") ? Style::Strong : Style::Plain;
            mCanvas.put(line++, area.column, fitted(fields, area.columns), style);
        }
        if (!isWhole)
            mCanvas.put(area.line, area.column + area.columns - columnsOf(MoreMark), MoreMark, Style::LitKey);
    }

    void paintPage(const TerminalPage& page)
    {
        const Area& area = mLayout.page;
        std::string place;
        if (page.lines.size() < page.lineCount)
            place = "  " + std::to_string(page.firstLine + 1) + "-" + std::to_string(page.firstLine + page.lines.size())
                + " of " + std::to_string(page.lineCount);
        int line = area.line;
        mCanvas.put(line, area.column, fitted(page.title + place, area.columns), Style::Strong);
        for (const std::string& row : page.lines)
            mCanvas.put(++line, area.column, row, Style::Plain, area.columns);
    }

    void paintTooSmall()
    {
        const std::string text = "The telephone needs " + std::to_string(TerminalLayout::LeastColumns) + " columns and "
            + std::to_string(TerminalLayout::LeastLines) + " lines; q leaves.";
        int line = 0;
        for (const std::string& row : wrapped(text, std::max(mCanvas.columns(), 1)))
            mCanvas.put(line++, 0, row);
    }

    const TerminalState& mState;
    GlassCharacters mCharacters;
    TerminalLayout mLayout;
    TextCanvas mCanvas;
};

}

TerminalLayout layOut(const TerminalState& state, int columns, int lines, GlassCharacters characters)
{
    const BlockSize glass = blockSize(state.screen.screen);
    TerminalNeeds needs;
    needs.columns = columns;
    needs.lines = lines;
    needs.glassLines = glass.lines;
    needs.stripLines = state.desktop.number != 0 ? blockSize(state.desktop.screen).lines : 0;
    switch (charactersFor(columns, characters)) {
    case GlassCharacters::Quarters:
        needs.glassColumns = glass.columns;
        needs.leastGlassColumns = glass.columns - 1;
        break;
    case GlassCharacters::Halves: needs.glassColumns = needs.leastGlassColumns = UScreenWE1::Width; break;
    case GlassCharacters::None: needs.glassColumns = 0; break;
    }
    return layOut(needs);
}

TextCanvas drawTerminal(const TerminalState& state, int columns, int lines, GlassCharacters characters)
{
    return Painter(state, columns, lines, characters).paint();
}

}
