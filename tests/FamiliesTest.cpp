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

/// All matches of a pattern in a text.
std::vector<std::smatch> allOf(const std::string& text, const std::string& pattern)
{
    const std::regex regex(pattern);
    return {std::sregex_iterator(text.begin(), text.end(), regex), {}};
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

/// The handles: every public class that is one of these, but for the bases.
std::set<std::string> handlesOf(const std::set<std::string>& bases)
{
    const std::string headers = sourcesIn("include");
    const auto classes = allOf(headers, "EXPORT (\\w+)(?: final)? : public (\\w+)");
    std::set<std::string> widgets = bases;
    for (std::size_t before = 0; before != widgets.size();) {
        before = widgets.size();
        for (const std::smatch& each : classes) {
            if (widgets.contains(each[2]))
                widgets.insert(each[1]);
        }
    }
    for (const char* base : {"Widget", "Displayable", "Dialog", "Item"})
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
    const std::string table = contentOf(Root / "src/README.md");
    const std::string tests = sourcesIn("tests");
    int families = 0;
    const std::set<std::string> screensAndRows = handlesOf({"Displayable", "Dialog", "Item", "ListItem"});
    for (const std::string& handle : handlesOf({"Widget"})) {
        SCOPED_TRACE(handle);
        expectFile("src/" + handle + ".cpp");
        std::smatch row;
        const std::regex pattern("\n\\| [^|]* \\|[^|]*`" + handle + "`[^|]*\\|([^|]*)\\|[^|]*\\|([^|]*)\\|");
        if (!std::regex_search(table, row, pattern)) {
            ADD_FAILURE() << "has no row in src/README.md";
            continue;
        }
        ++families;
        const std::string privates = row[1];
        const std::string testColumn = row[2];
        for (const std::smatch& test : allOf(testColumn, "`([^`]*)`"))
            expectFile("tests/" + test.str(1) + ".cpp");
        for (const std::smatch& found : allOf(privates, "`(\\w+Private)`")) {
            const std::string half = found[1];
            expectFile("src/" + half + ".h");
            expectFile("src/" + half + ".cpp");
            // One that only adds to another half has the interface of that.
            const std::string header = contentOf(Root / "src" / (half + ".h"));
            const auto bases = allOf(header, "class " + half + "(?: final)? : public (\\w+Private) ");
            expectFile("include/DisplayAPI/" + (bases.empty() ? half : bases[0].str(1)) + "Ifc.h");
            EXPECT_TRUE(!screensAndRows.contains(handle)
                || tests.find("TEST_SUITE_P(" + handle + ", Every") != std::string::npos)
                << "makes no promise";
        }
    }
    EXPECT_GT(families, 3);
}

TEST(Families, EveryWordOfTheScreenTextIsSeenInTheGallery)
{
    std::string screens;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Root / "docs/gallery")) {
        if (entry.path().extension() == ".txt")
            screens += contentOf(entry.path());
    }
    const std::string page = contentOf(Root / "docs/screen-text.md");
    const std::size_t icons = page.find("## Icon words");
    std::set<std::string> words;
    const auto collect = [&words](const std::string& tables, const std::string& row, const std::string& key) {
        for (const std::smatch& found : allOf(tables, row)) {
            const std::string cell = found[1];
            for (const std::smatch& word : allOf(cell, "`([\\w -]+)`"))
                words.insert(key + word.str(1));
        }
    };
    collect(page.substr(0, icons), "\n\\| (`[ A-Z][^|]+)\\|", "name:");
    collect(page.substr(icons), "\n\\| `[^|]+\\|[^|]*`icon[^|]*\\|([^|]+)\\|", ":");
    EXPECT_GT(words.size(), 100U);
    std::erase_if(words, [&](const std::string& word) { return screens.find(word + "\n") != std::string::npos; });
    const std::set<std::string> unseen = {"name:Not Implemented", "name:DetailsWithCommands", // in the short form alone
        "name:CallBackListItem", ":CallBackNoReply-Active", ":CallBackNoReply-Paused", // no handle makes such a row
        ":CallBackBusy-Active", ":CallBackBusy-Paused", ":NoIcon", ":Unknown", "name:ContextMenu20Line1",
        ":Emergency"}; // no handle asks for it
    EXPECT_EQ(words, unseen);
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
            for (const std::smatch& word : allOf(source, pattern)) {
                ++words;
                EXPECT_NE(page.find("`" + word.str(1)), std::string::npos)
                    << entry.path().filename() << ": " << word[1];
            }
        }
    }
    EXPECT_GT(words, 30);
}
