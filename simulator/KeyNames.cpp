#include "KeyNames.h"

#include <Types.h>

#include <algorithm>
#include <cctype>
#include <utility>

namespace Simulator {

namespace {

constexpr std::pair<std::string_view, int> namedKeys[] = {
    {"LEFT", UGlobal::KeyLeft},
    {"RIGHT", UGlobal::KeyRight},
    {"UP", UGlobal::KeyUp},
    {"DOWN", UGlobal::KeyDown},
    {"OK", UGlobal::KeyOk},
    {"CLEAR", UGlobal::KeyClear},
};

}

std::optional<int> keyCode(std::string_view name)
{
    std::string upper(name);
    std::ranges::transform(upper, upper.begin(), [](unsigned char letter) { return std::toupper(letter); });
    for (const auto& [known, code] : namedKeys) {
        if (upper == known)
            return code;
    }
    if (upper.size() == 1 && UGlobal::isDialKey(upper[0]))
        return upper[0];
    if (upper.size() == 2 && upper[0] == 'F' && upper[1] >= '1' && upper[1] <= '8')
        return UGlobal::KeyFunction1 + (upper[1] - '1');
    return std::nullopt;
}

std::string keyName(int code)
{
    for (const auto& [name, known] : namedKeys) {
        if (known == code)
            return std::string(name);
    }
    if (UGlobal::isDialKey(code))
        return {static_cast<char>(code)};
    return "F" + std::to_string(code - UGlobal::KeyFunction1 + 1);
}

std::string keyNames()
{
    std::string names;
    for (const auto& named : namedKeys)
        names += std::string(named.first) + ", ";
    return names + "0 to 9, *, #, F1 to F8";
}

}
