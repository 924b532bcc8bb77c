#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

/// Reads a catalog of gettext: pairs of `msgid` and `msgstr`. Entries without a translation and those marked fuzzy are
/// left out, as is the header. Plurals and contexts are not for a telephone's few words.
std::map<std::string, std::string, std::less<>> readPo(std::string_view file);
