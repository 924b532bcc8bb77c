#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path Root = PROJECT_SOURCE_DIR;

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// All first groups of a pattern in a text.
std::vector<std::string> allOf(const std::string& text, const std::string& pattern)
{
    const std::regex regex(pattern);
    std::vector<std::string> all;
    for (std::sregex_iterator found(text.begin(), text.end(), regex), end; found != end; ++found)
        all.push_back((*found)[1]);
    return all;
}

/// The contents of the sources in a folder, one behind the other.
std::string sourcesIn(const char* folder)
{
    std::string all;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Root / folder)) {
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp")
            all += contentOf(entry.path());
    }
    return all;
}

/// The handles: every public class that is a Widget, but for the bases.
std::set<std::string> handles()
{
    const std::string headers = sourcesIn("include");
    const std::set<std::string> bases{"Widget", "Displayable", "Dialog", "Item"};
    std::set<std::string> widgets = bases;
    for (std::size_t before = 0; before != widgets.size();) {
        before = widgets.size();
        const std::set<std::string> known = widgets;
        for (const std::string& base : known) {
            for (const std::string& derived : allOf(headers, "EXPORT (\\w+)(?: final)? : public " + base + "\\b"))
                widgets.insert(derived);
        }
    }
    for (const std::string& base : bases)
        widgets.erase(base);
    return widgets;
}

void expectFile(const std::string& file)
{
    EXPECT_TRUE(fs::exists(Root / file)) << file << " is missing";
}

}

TEST(Families, EachHasItsFilesItsRowAndItsPromises)
{
    // Others call these by pointer; they have no source yet.
    const std::set<std::string> declared{"PopupDialer"};
    const std::string table = contentOf(Root / "src/README.md");
    const std::string tests = sourcesIn("tests");
    int families = 0;
    for (const std::string& handle : handles()) {
        SCOPED_TRACE(handle);
        EXPECT_NE(declared.contains(handle), fs::exists(Root / ("src/" + handle + ".cpp")));
        if (declared.contains(handle))
            continue;
        std::smatch row;
        const std::regex pattern("\n\\| [^|]* \\|[^|]*`" + handle + "`[^|]*\\|([^|]*)\\|[^|]*\\|([^|]*)\\|");
        if (!std::regex_search(table, row, pattern)) {
            ADD_FAILURE() << "has no row in src/README.md";
            continue;
        }
        ++families;
        for (const std::string& test : allOf(row[2], "`([^`]*)`"))
            expectFile("tests/" + test + ".cpp");
        for (const std::string& half : allOf(row[1], "`(\\w+Private)`")) {
            expectFile("src/" + half + ".h");
            expectFile("src/" + half + ".cpp");
            expectFile("include/DisplayAPI/" + half + "Ifc.h");
            EXPECT_TRUE(std::regex_search(tests, std::regex("TEST_SUITE_P\\(" + handle + ", Every(Screen|Row)Test")))
                << "makes no promise";
        }
    }
    EXPECT_GT(families, 3);
}

TEST(Families, TheWordsOfTheScreenTextAreWrittenDown)
{
    const std::string page = contentOf(Root / "docs/screen-text.md");
    int words = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(Root / "src")) {
        const std::string source = contentOf(entry.path());
        if (source.find("ScreenTextWriter.h\"") == std::string::npos)
            continue;
        // Names, keys and whole values, and the words of the tables.
        for (const char* pattern : {"(?:object|subitem|[fF]ield)\\(\"([^\"]+)\"",
                 "[fF]ield\\(\"[^\"]+\", \"(\\w+)\"\\)", "\\{.*, \"([^\":]+)\"\\},"}) {
            for (const std::string& word : allOf(source, pattern)) {
                ++words;
                EXPECT_NE(page.find("`" + word), std::string::npos) << entry.path().filename() << ": " << word;
            }
        }
    }
    EXPECT_GT(words, 30);
}
