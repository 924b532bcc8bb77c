#pragma once

#include <string_view>
#include <utility>
#include <vector>

/// The catalogs of the folder `po`, by language, as the build has found them.
const std::vector<std::pair<std::string_view, std::string_view>>& poFiles();
