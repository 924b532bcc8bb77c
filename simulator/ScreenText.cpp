#include "ScreenText.h"

#include <algorithm>
#include <sstream>

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

std::string inOneLine(const std::string& screenText)
{
    std::istringstream lines(screenText);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty())
            result += (result.empty() ? "" : " | ") + line;
    }
    return result.empty() ? "no text" : result;
}

}
