#include "ScreenText.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <utility>

namespace Simulator {

namespace {

std::string_view trimmed(std::string_view text)
{
    const auto start = text.find_first_not_of(' ');
    if (start == std::string_view::npos)
        return {};
    return text.substr(start, text.find_last_not_of(' ') - start + 1);
}

/// The line without blanks around it and behind its key; some writers of screen text put one there.
std::string normalised(std::string_view line)
{
    line = trimmed(line);
    const auto valueStart = std::min(line.find(':'), line.size() - 1) + 1;
    return std::string(line.substr(0, valueStart)) + std::string(trimmed(line.substr(valueStart)));
}

/// How many characters have to be put in, taken out or changed to make one text of the other.
std::size_t changesBetween(std::string_view one, std::string_view other)
{
    // A screen shows few characters; what is longer is a text of somebody who tests the tests.
    constexpr std::size_t most = 500;
    one = one.substr(0, most);
    other = other.substr(0, most);
    std::vector<std::size_t> changes(other.size() + 1);
    std::iota(changes.begin(), changes.end(), std::size_t{0});
    for (std::size_t row = 0; row < one.size(); ++row) {
        std::size_t diagonal = std::exchange(changes[0], row + 1);
        for (std::size_t column = 0; column < other.size(); ++column) {
            const std::size_t replaced = diagonal + (one[row] == other[column] ? 0 : 1);
            diagonal = changes[column + 1];
            changes[column + 1] = std::min({replaced, changes[column] + 1, diagonal + 1});
        }
    }
    return changes.back();
}

bool matches(std::string_view text, std::string_view wanted)
{
    std::size_t textPlace = 0;
    std::size_t wantedPlace = 0;
    std::size_t star = std::string_view::npos;
    std::size_t starText = 0;
    while (textPlace < text.size()) {
        if (wantedPlace < wanted.size() && wanted[wantedPlace] == '*') {
            star = wantedPlace++;
            starText = textPlace;
        } else if (wantedPlace < wanted.size() && wanted[wantedPlace] == text[textPlace]) {
            ++wantedPlace;
            ++textPlace;
        } else if (star != std::string_view::npos) {
            // The last star takes one character more.
            wantedPlace = star + 1;
            textPlace = ++starText;
        } else {
            return false;
        }
    }
    return wanted.find_first_not_of('*', wantedPlace) == std::string_view::npos;
}

}

bool containsField(const std::string& screenText, std::string_view wanted)
{
    wanted = trimmed(wanted);
    const std::string wantedLine = normalised(wanted);
    std::istringstream lines(screenText);
    for (std::string line; std::getline(lines, line);) {
        const std::string whole = normalised(line);
        const auto valueStart = whole.find(':') + 1;
        const bool hasValue = valueStart > 0 && valueStart < whole.size();
        if (matches(whole, wantedLine) || (hasValue && matches(std::string_view(whole).substr(valueStart), wanted)))
            return true;
    }
    return false;
}

std::string closestField(const std::string& screenText, std::string_view wanted)
{
    const std::string wantedLine = normalised(trimmed(wanted));
    std::string closest;
    std::size_t leastChanges = wantedLine.size() / 2; // with half of it changed, nothing is alike
    for (const std::string& line : fieldLines(screenText)) {
        const std::string whole = normalised(line);
        const std::string_view value = std::string_view(whole).substr(whole.find(':') + 1);
        const std::size_t changes = std::min(changesBetween(whole, wantedLine), changesBetween(value, wantedLine));
        if (changes < leastChanges) {
            leastChanges = changes;
            closest = trimmed(line);
        }
    }
    return closest;
}

std::vector<std::string> fieldLines(const std::string& screenText)
{
    std::istringstream lines(screenText);
    std::vector<std::string> result;
    bool isInSubitem = false;
    for (std::string line; std::getline(lines, line);) {
        if (line == "subitem:")
            isInSubitem = true;
        else if (line == "endsubitem:")
            isInSubitem = false;
        else if (!line.empty() && line != "object:" && line != "end:")
            result.push_back((isInSubitem ? "  " : "") + line);
    }
    return result;
}

std::string topmostBlock(const std::string& screenText)
{
    std::istringstream lines(screenText);
    std::string topmost;
    std::string block;
    const auto endBlock = [&] {
        // Volume and function keys stand behind the screens and lie over none of them.
        const bool isScreen = !block.empty() && !block.starts_with("object:\nname:VolumeIndicator\n")
            && !block.starts_with("object:\nname:FPKBar\n");
        if (isScreen || topmost.empty())
            topmost = block;
        block.clear();
    };
    for (std::string line; std::getline(lines, line);) {
        if (line == "object:")
            endBlock();
        if (!line.empty() || !block.empty())
            block += line + "\n";
    }
    endBlock();
    return topmost;
}

std::string valuesInOneLine(const std::string& screenText)
{
    std::string result;
    for (const std::string& line : fieldLines(screenText)) {
        const std::string_view field = trimmed(line);
        const std::string_view value = trimmed(field.substr(field.find(':') + 1));
        if (!value.empty() && !field.starts_with("name:"))
            result += (result.empty() ? "" : "  ") + std::string(value);
    }
    return result;
}

std::string inOneLine(const std::string& screenText)
{
    std::istringstream lines(screenText);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty())
            result += (result.empty() ? "" : " | ") + line;
    }
    result.erase(result.find_last_not_of(" \t\r") + 1);
    return result.empty() ? "no text" : result;
}

}
