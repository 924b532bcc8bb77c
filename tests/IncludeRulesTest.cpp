#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

// Each layer is compiled with the folders of those below it, so the build knows most of the rules. What is left: which
// headers of the toolkit stand in public headers, that a phonelet needs no more than public headers, and what the
// telephone needs of its system.

namespace {

namespace fs = std::filesystem;

struct Rule {
    const char* folder;
    std::regex allowed;
    std::set<std::string> also;
};

const Rule Rules[] = {
    // Since a signature or a base class needs the whole type; for anything else a forward declaration does.
    {"include", std::regex("DisplayAPI/.*|[a-z_]+"),
        {"Rect.h", "TranslationInfo.h", "Types.h", "UAgent.h", "UEvent.h", "UWidget.h"}},
    {"examples", std::regex("DisplayAPI/.*|PhoneSimulator/.*|[a-z_]+|\"[A-Za-z]+\\.h"), {}},
    {"src", std::regex("DisplayAPI/.*|[a-z_]+|\"?[A-Z][A-Za-z0-9]+\\.h"), {"cxxabi.h", "pthread.h"}},
    {"toolkit", std::regex("[a-z_]+|\"?[A-Z][A-Za-z0-9]+\\.h"),
        {"linux/futex.h", "pthread.h", "sched.h", "sys/syscall.h", "unistd.h"}},
};

/// A line for each include of a file that breaks a rule; a name in quotes keeps the first of them.
std::string faultsOf(const Rule& rule, const fs::path& file)
{
    static const std::regex include("\\s*#\\s*include\\s*(?:<|(?=\"))([^>]*?\\.?[a-z_]+)[>\"].*");
    std::string faults;
    std::ifstream source(file);
    std::smatch found;
    for (std::string line; std::getline(source, line);) {
        if (std::regex_match(line, found, include) && !std::regex_match(found.str(1), rule.allowed)
            && !rule.also.contains(found[1]))
            faults += file.filename().string() + ": " + line + "\n";
    }
    return faults;
}

}

TEST(IncludeRules, WhatTheBuildCannotHold)
{
    int files = 0;
    for (const Rule& rule : Rules) {
        for (const fs::directory_entry& entry :
            fs::recursive_directory_iterator(fs::path(PROJECT_SOURCE_DIR) / rule.folder)) {
            if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp") {
                EXPECT_EQ(faultsOf(rule, entry.path()), "");
                ++files;
            }
        }
    }
    EXPECT_GT(files, 100) << "the folders have moved";
}
