#include "ScreenText.h"

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
    std::istringstream lines(screenText);
    for (std::string line; std::getline(lines, line);) {
        const std::string_view whole = trimmed(line);
        const std::string_view value = trimmed(whole.substr(whole.find(':') + 1));
        if (matches(whole, wanted) || (whole.size() != value.size() && !value.empty() && matches(value, wanted)))
            return true;
    }
    return false;
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
