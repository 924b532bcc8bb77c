#include "Script.h"

#include "KeyNames.h"
#include "UsageError.h"

#include <Types.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>

namespace Simulator {

namespace {

constexpr int LongestAdvanceInSeconds = 7 * 24 * 3600;
constexpr int MostPresses = 1000;

std::string trimmed(const std::string& text)
{
    const auto start = text.find_first_not_of(" \t\r");
    if (start == std::string::npos)
        return "";
    return text.substr(start, text.find_last_not_of(" \t\r") - start + 1);
}

std::optional<int> number(std::string_view text)
{
    int result = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    if (error != std::errc() || end != text.data() + text.size() || result < 0)
        return std::nullopt;
    return result;
}

// A key, and for several presses their number behind it.
void parsePress(Step& step, const std::string& argument)
{
    const auto blank = argument.find_first_of(" \t");
    step.keys = {parseKey(argument.substr(0, blank))};
    if (blank == std::string::npos)
        return;
    const std::optional<int> count = number(trimmed(argument.substr(blank)));
    if (!count || *count == 0 || *count > MostPresses)
        throw UsageError("how often to press is a number from 1 to " + std::to_string(MostPresses));
    step.count = *count;
}

void parseSingleKey(Step& step, const std::string& argument)
{
    step.keys = {parseKey(argument)};
}

void takeDialKeys(Step& step, const std::string& argument)
{
    step.keys = parseDialKeys(argument);
}

void takeTime(Step& step, const std::string& argument)
{
    step.time = parseTime(argument);
}

void takeText(Step& step, const std::string& argument)
{
    step.text = argument;
}

struct Word {
    Step::Kind kind;
    bool hasArgument;
    std::function<void(Step&, const std::string&)> parse;
};

const std::map<std::string, Word>& words()
{
    static const std::map<std::string, Word> table = {
        {"press", {Step::Kind::Press, true, parsePress}},
        {"type", {Step::Kind::Press, true, takeDialKeys}},
        {"hold", {Step::Kind::Hold, true, parseSingleKey}},
        {"release", {Step::Kind::Release, true, parseSingleKey}},
        {"expect", {Step::Kind::Expect, true, takeText}},
        {"expect-not", {Step::Kind::ExpectNot, true, takeText}},
        {"expect-desktop", {Step::Kind::ExpectDesktop, true, takeText}},
        {"expect-screen", {Step::Kind::ExpectScreen, true, takeText}},
        {"advance", {Step::Kind::Advance, true, takeTime}},
        {"shot", {Step::Kind::Shot, true, takeText}},
        {"say", {Step::Kind::Say, true, takeText}},
        {"text", {Step::Kind::Text, false, takeText}},
        {"show", {Step::Kind::Show, false, takeText}},
    };
    return table;
}

std::string wordList(const std::vector<std::string>& customSteps)
{
    std::string list;
    for (const auto& entry : words())
        list += (list.empty() ? "" : ", ") + entry.first;
    for (const std::string& name : customSteps)
        list += ", " + name;
    return list;
}

Step parseStep(const std::string& line, const std::vector<std::string>& customSteps)
{
    const auto end = std::min(line.find_first_of(" \t"), line.size());
    const std::string name = line.substr(0, end);
    const std::string argument = trimmed(line.substr(end));
    Step step;
    step.source = line;
    if (std::ranges::find(customSteps, name) != customSteps.end()) {
        step.kind = Step::Kind::Custom;
        step.name = name;
        step.text = argument;
        return step;
    }
    const auto word = words().find(name);
    if (word == words().end())
        throw UsageError("no step is called \"" + name + "\"; the steps are " + wordList(customSteps));
    if (word->second.hasArgument && argument.empty())
        throw UsageError(name + " needs something behind it");
    if (!word->second.hasArgument && !argument.empty())
        throw UsageError(name + " takes nothing behind it");
    step.kind = word->second.kind;
    word->second.parse(step, argument);
    return step;
}

}

int parseKey(const std::string& name)
{
    if (const std::optional<int> code = keyCode(name))
        return *code;
    throw UsageError("no key is called \"" + name + "\"; the keys are " + keyNames());
}

std::vector<int> parseDialKeys(const std::string& text)
{
    if (!std::ranges::all_of(text, [](char key) { return UGlobal::isDialKey(key); }))
        throw UsageError("type takes digits, * and #");
    return {text.begin(), text.end()};
}

std::chrono::milliseconds parseTime(const std::string& text)
{
    const auto unitStart = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::optional<int> count = number(text.substr(0, unitStart));
    const std::string unit = trimmed(text.substr(unitStart));
    if (count && unit == "ms" && *count / 1000 <= LongestAdvanceInSeconds)
        return std::chrono::milliseconds(*count);
    if (count && unit == "s" && *count <= LongestAdvanceInSeconds)
        return std::chrono::seconds(*count);
    throw UsageError("a time is a number with its unit, such as 300ms or 5s, up to a week");
}

std::string inSeconds(std::chrono::milliseconds time)
{
    std::ostringstream text;
    text << static_cast<double>(time.count()) / 1000 << " s";
    return text.str();
}

bool canNameStep(const std::string& word)
{
    return !word.empty() && word[0] != '#' && word.find_first_of(" \t\r\n") == std::string::npos
        && !words().contains(word);
}

Script parseScript(std::istream& input, const std::string& name, const std::vector<std::string>& customSteps)
{
    Script script{name, {}};
    std::string line;
    for (int lineNumber = 1; std::getline(input, line); ++lineNumber) {
        line = trimmed(line);
        if (line.empty() || line[0] == '#')
            continue;
        try {
            script.steps.push_back(parseStep(line, customSteps));
            script.steps.back().line = lineNumber;
        } catch (const UsageError& error) {
            throw UsageError(name + ":" + std::to_string(lineNumber) + ": " + error.what());
        }
    }
    return script;
}

Script readScript(const std::string& file, const std::vector<std::string>& customSteps)
{
    std::ifstream input(file);
    if (!input || std::filesystem::is_directory(file))
        throw UsageError("cannot read the script " + file);
    return parseScript(input, file, customSteps);
}

}
