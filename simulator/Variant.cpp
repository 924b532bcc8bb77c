#include "Variant.h"

#include "UsageError.h"

#include <algorithm>

namespace Simulator {

namespace {

std::string shown(int number)
{
    return std::to_string(number);
}

std::string shown(const std::string& name)
{
    return name;
}

template <typename T>
void checkChoice(const char* what, const T& wanted, const std::vector<T>& choices)
{
    if (std::ranges::find(choices, wanted) != choices.end())
        return;
    std::string all;
    for (const T& choice : choices)
        all += (all.empty() ? "" : ", ") + shown(choice);
    throw UsageError(std::string("\"") + what + "\" must be one of " + all);
}

/// Gives an option a value, in the place of those that it had, as "--lines 3", "--lines=3", or nothing at all.
void setOption(std::vector<std::string>& arguments, const std::string& name, const std::string& value)
{
    for (auto place = arguments.begin(); place != arguments.end();) {
        if (*place == name) {
            place = arguments.erase(place);
            if (place != arguments.end() && !place->starts_with("-"))
                place = arguments.erase(place);
        } else if (place->starts_with(name + "=")) {
            place = arguments.erase(place);
        } else {
            ++place;
        }
    }
    arguments.insert(arguments.end(), {name, value});
}

}

const std::vector<int>& VariantChoices::displayLines()
{
    static const std::vector<int> choices{2, 3};
    return choices;
}

const std::vector<std::string>& VariantChoices::models()
{
    static const std::vector<std::string> choices{"plain", "rx40", "rx70"};
    return choices;
}

const std::vector<std::string>& VariantChoices::software()
{
    static const std::vector<std::string> choices{"other", "sip", "qvt"};
    return choices;
}

void check(const Variant& variant)
{
    checkChoice("lines", variant.displayLines, VariantChoices::displayLines());
    checkChoice("model", variant.model, VariantChoices::models());
    checkChoice("software", variant.software, VariantChoices::software());
}

std::vector<std::string> argumentsFor(const Variant& variant, int port, std::vector<std::string> arguments)
{
    setOption(arguments, "--lines", std::to_string(variant.displayLines));
    setOption(arguments, "--model", variant.model);
    setOption(arguments, "--software", variant.software);
    setOption(arguments, "--serve", std::to_string(port));
    return arguments;
}

}
