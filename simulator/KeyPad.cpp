#include "KeyPad.h"

#include "TerminalLayout.h"
#include "TextCanvas.h"

#include <Types.h>

#include <algorithm>
#include <utility>

namespace Simulator::KeyPad {

namespace {

constexpr int DialKeyWidth = 6; // of the label
constexpr int ArrowKeyWidth = 3;

struct KeyPlace {
    int code;
    const char* label;
    int line;   // of keys
    int column; // of keys; from 3 on those around OK
};

constexpr KeyPlace keys[] = {
    {'1', "1", 0, 0},
    {'2', "2 abc", 0, 1},
    {'3', "3 def", 0, 2},
    {'4', "4 ghi", 1, 0},
    {'5', "5 jkl", 1, 1},
    {'6', "6 mno", 1, 2},
    {'7', "7 pqrs", 2, 0},
    {'8', "8 tuv", 2, 1},
    {'9', "9 wxyz", 2, 2},
    {'*', "*", 3, 0},
    {'0', "0 +", 3, 1},
    {'#', "#", 3, 2},
    {UGlobal::KeyUp, " ▲", 0, 4},
    {UGlobal::KeyLeft, " ◄", 1, 3},
    {UGlobal::KeyOk, "OK", 1, 4},
    {UGlobal::KeyRight, " ►", 1, 5},
    {UGlobal::KeyDown, " ▼", 2, 4},
    {UGlobal::KeyClear, " C", 3, 4},
};

bool isLarge(const Area& area, int lines)
{
    return area.lines > lines;
}

std::string repeated(const char* character, int count)
{
    std::string text;
    for (int index = 0; index < count; ++index)
        text += character;
    return text;
}

struct KeyShape {
    int line;
    int column;
    int width;   // of the label
    int padding; // at both sides of it
    bool isBox;  // of three lines
};

void drawKey(TextCanvas& canvas, const KeyShape& shape, const std::string& label, bool isLit)
{
    const auto blanks = [](int count) { return std::string(static_cast<std::size_t>(std::max(count, 0)), ' '); };
    const std::string inside = blanks(shape.padding) + label + blanks(shape.width - columnsOf(label) + shape.padding);
    const auto [line, column] = std::pair(shape.line, shape.column);
    if (!shape.isBox) {
        canvas.put(line, column, "[" + inside + "]", isLit ? Style::LitKey : Style::Key);
        return;
    }
    const Style edgeStyle = isLit ? Style::LitKey : Style::Frame;
    const std::string edge = repeated("─", columnsOf(inside));
    canvas.put(line, column, "┌" + edge + "┐", edgeStyle);
    const int behind = canvas.put(line + 1, column, "│", edgeStyle);
    canvas.put(line + 1, canvas.put(line + 1, behind, inside, isLit ? Style::LitKey : Style::Plain), "│", edgeStyle);
    canvas.put(line + 2, column, "└" + edge + "┘", edgeStyle);
}

/// The text at no more than so many columns.
std::string cut(const std::string& text, int columns)
{
    return wrapped(text, columns).front();
}

}

void draw(TextCanvas& canvas, const Area& area, std::optional<int> pressedKey)
{
    const bool isBox = isLarge(area, Lines);
    const int heightOfKey = isBox ? 3 : 1;
    const int padding = isBox ? 1 : 0;
    const int frame = 2 * padding + 2;
    const int gap = isBox ? 0 : 1;
    const int arrows = area.columns - 3 * (ArrowKeyWidth + frame) - 2 * gap;
    for (const KeyPlace& key : keys) {
        const bool isArrow = key.column >= 3;
        const int width = isArrow ? ArrowKeyWidth : DialKeyWidth;
        const int column = (isArrow ? arrows : 0) + (isArrow ? key.column - 3 : key.column) * (width + frame + gap);
        drawKey(canvas, {area.line + key.line * heightOfKey, area.column + column, width, padding, isBox}, key.label,
            pressedKey == key.code);
    }
}

void drawFunctionKeys(
    TextCanvas& canvas, const Area& area, const std::vector<std::string>& labels, std::optional<int> pressedKey)
{
    const bool isBox = isLarge(area, FunctionLines);
    const auto columnsWith = [&labels](int longest, int frame) {
        int columns = 0;
        for (const std::string& label : labels)
            columns += std::min(columnsOf(label), longest) + frame;
        return columns;
    };
    int padding = isBox ? 1 : 0;
    if (columnsWith(area.columns, 2 * padding + 2) > area.columns)
        padding = 0;
    const int frame = 2 * padding + 2;
    const int gap = isBox || columnsWith(area.columns, frame + 1) > area.columns + 1 ? 0 : 1;
    int longest = area.columns;
    while (longest > 1 && columnsWith(longest, frame + gap) > area.columns + gap)
        --longest;
    int column = area.column;
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const std::string label = cut(labels[index], longest);
        const bool isLit = pressedKey == UGlobal::KeyFunction1 + static_cast<int>(index);
        drawKey(canvas, {area.line, column, columnsOf(label), isBox ? padding : 0, isBox}, label, isLit);
        column += columnsOf(label) + frame + gap;
    }
}

}
