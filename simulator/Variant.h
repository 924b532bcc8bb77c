#pragma once

#include <string>
#include <vector>

namespace Simulator {

/// Which telephone the phonelet runs on. It is one for the whole life of a process.
struct Variant {
    int displayLines = 2;
    std::string model = "plain";
    std::string software = "other";

    bool operator==(const Variant&) const = default;
};

/// What there is of each.
struct VariantChoices {
    static const std::vector<int>& displayLines();
    static const std::vector<std::string>& models();
    static const std::vector<std::string>& software();
};

/// Throws UsageError for a variant that there is not; the message names those that there are.
void check(const Variant& variant);

/// A command line, with the name of the program in front, for the same program in another variant and with its page
/// at a port.
std::vector<std::string> argumentsFor(const Variant& variant, int port, std::vector<std::string> arguments);

}
