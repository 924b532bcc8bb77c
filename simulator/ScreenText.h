#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// True when a line of the screen text is `wanted`: either the whole line, such as "caption:Speaker", or what
/// stands behind its key, such as "Speaker". Blanks around both do not count; `*` stands for any characters.
bool containsField(const std::string& screenText, std::string_view wanted);

/// The line of the screen text that is most like `wanted`; empty if none is alike at all.
std::string closestField(const std::string& screenText, std::string_view wanted);

/// The lines that hold a value; those of a subitem stand two blanks to the right.
std::vector<std::string> fieldLines(const std::string& screenText);

/// The block of the screen or popup that lies above the others.
std::string topmostBlock(const std::string& screenText);

/// The values of a text in one line, without what they are called, for a reader with little room.
std::string valuesInOneLine(const std::string& screenText);

/// The screen text in one line, for messages and scripts; without blanks at its end, which no script could have.
std::string inOneLine(const std::string& screenText);

}
