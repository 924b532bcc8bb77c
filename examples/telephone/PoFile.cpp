#include "PoFile.h"

#include <sstream>

namespace {

/// The text between the first and the last quote of a line, without the escapes.
std::string quoted(const std::string& line)
{
    std::string text;
    const std::size_t begin = line.find('"') + 1;
    const std::size_t end = line.rfind('"');
    for (std::size_t i = begin; i < end; ++i) {
        if (line[i] == '\\' && i + 1 < end) {
            const char escaped = line[++i];
            text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
        } else {
            text += line[i];
        }
    }
    return text;
}

}

std::map<std::string, std::string, std::less<>> readPo(std::string_view file)
{
    std::map<std::string, std::string, std::less<>> catalog;
    std::string key;
    std::string text;
    bool isFuzzy = false;
    std::string* current = nullptr;
    const auto keep = [&] {
        if (!key.empty() && !text.empty() && !isFuzzy)
            catalog[key] = text;
        key.clear();
        text.clear();
        isFuzzy = false;
        current = nullptr;
    };
    std::istringstream lines{std::string(file)};
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("msgid ") || line.empty() || line.starts_with("#,")) {
            if (current == &text)
                keep();
            isFuzzy = isFuzzy || line.starts_with("#, fuzzy");
        }
        if (line.starts_with("msgid "))
            current = &key;
        else if (line.starts_with("msgstr "))
            current = &text;
        if (current && !line.empty() && line.front() != '#')
            *current += quoted(line);
    }
    keep();
    return catalog;
}
