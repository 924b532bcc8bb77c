#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// What a folder may include: files of these folders, and these headers of the system beside the standard
/// library's. "*" is every header of the system.
struct Layer {
    const char* folder;
    std::vector<std::string> folders;
    std::vector<std::string> systemHeaders;
};

// A file belongs to the first layer whose folder it lies in. Files below `examples` reach the telephone by public
// headers alone; what runs on the telephone needs nothing but the standard library and POSIX threads.
const std::vector<Layer> Layers = {
    {"toolkit/core", {"toolkit/core"}, {"linux/futex.h", "pthread.h", "sched.h", "sys/syscall.h", "unistd.h"}},
    {"toolkit/meg", {"toolkit/core", "toolkit/meg"}, {}},
    {"include/DisplayAPI", {"include/DisplayAPI"}, {}},
    {"src", {"src", "include/DisplayAPI", "toolkit/core", "toolkit/meg"}, {"pthread.h"}},
    {"simulator/include", {"simulator/include", "include/DisplayAPI"}, {}},
    {"simulator", {"simulator", "simulator/include", "include/DisplayAPI", "toolkit/core", "toolkit/meg"}, {"*"}},
    {"examples", {"examples", "include/DisplayAPI", "simulator/include"}, {}},
};

// The toolkit's headers that a public header may include, each since a signature or a base class needs the whole
// type. For anything else a forward declaration does.
const std::vector<std::string> ToolkitInPublicHeaders = {
    "Rect.h",    // rectangles by value
    "Types.h",   // enumerations by value
    "UAgent.h",  // base of the screens' implementations
    "UEvent.h",  // base of the requests
    "UWidget.h", // base of the dialer's implementation
};

// Where the compiler looks for a header, after the folder of the file that asks.
const std::vector<std::string> IncludePath
    = {"include", "toolkit/core", "toolkit/meg", "src", "simulator", "simulator/include"};

bool contains(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool liesIn(const fs::path& file, const std::string& folder)
{
    return file.generic_string().rfind(folder + "/", 0) == 0;
}

/// The include rules over the files below a root.
class IncludeRules {
public:
    explicit IncludeRules(fs::path root)
        : mRoot(std::move(root))
    {
    }

    /// Checks every file of every layer; gives a line for each include that breaks a rule.
    std::vector<std::string> violations()
    {
        for (const Layer& layer : Layers) {
            if (fs::exists(mRoot / layer.folder))
                checkFolder(layer);
        }
        std::sort(mViolations.begin(), mViolations.end());
        return mViolations;
    }

    int filesChecked() const { return mFilesChecked; }

private:
    static const Layer* layerOf(const fs::path& file)
    {
        for (const Layer& layer : Layers) {
            if (liesIn(file, layer.folder))
                return &layer;
        }
        return nullptr;
    }

    void checkFolder(const Layer& layer)
    {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(mRoot / layer.folder)) {
            const fs::path file = fs::relative(entry.path(), mRoot);
            const bool isSource = file.extension() == ".h" || file.extension() == ".cpp";
            if (isSource && layerOf(file) == &layer)
                check(layer, file);
        }
    }

    void check(const Layer& layer, const fs::path& file)
    {
        ++mFilesChecked;
        std::ifstream source(mRoot / file);
        std::string line;
        for (int number = 1; std::getline(source, line); ++number) {
            const auto [name, isQuoted] = includeOf(line);
            if (name.empty())
                continue;
            const std::string fault = faultOf(layer, file, name, isQuoted);
            if (!fault.empty())
                mViolations.push_back(
                    file.generic_string() + ":" + std::to_string(number) + ": <" + name + "> " + fault);
        }
    }

    /// The name that a line includes, and whether it stands in quotes; empty for any other line.
    static std::pair<std::string, bool> includeOf(const std::string& line)
    {
        const std::size_t hash = line.find_first_not_of(" \t");
        if (hash == std::string::npos || line[hash] != '#')
            return {};
        const std::size_t word = line.find_first_not_of(" \t", hash + 1);
        if (word == std::string::npos || line.compare(word, 7, "include") != 0)
            return {};
        const std::size_t open = line.find_first_of("<\"", word + 7);
        if (open == std::string::npos)
            return {};
        const bool isQuoted = line[open] == '"';
        const std::size_t close = line.find(isQuoted ? '"' : '>', open + 1);
        return {line.substr(open + 1, close - open - 1), isQuoted};
    }

    /// What is wrong with an include; empty if it is allowed.
    std::string faultOf(const Layer& layer, const fs::path& file, const std::string& name, bool quoted) const
    {
        const fs::path found = find(file, name, quoted);
        if (found.empty()) {
            const bool isStandard = name.find('.') == std::string::npos;
            if (isStandard || contains(layer.systemHeaders, "*") || contains(layer.systemHeaders, name))
                return {};
            return std::string("is no header that ") + layer.folder + " may use";
        }
        const Layer* owner = layerOf(found);
        if (owner && contains(layer.folders, owner->folder))
            return {};
        const bool isPublic = std::string(layer.folder) == "include/DisplayAPI";
        if (isPublic && owner && liesIn(found, "toolkit") && contains(ToolkitInPublicHeaders, name))
            return {};
        return "is " + found.generic_string() + ", which " + layer.folder + " must not know";
    }

    /// The file of the project that an include names, as the compiler finds it; empty for the system's.
    fs::path find(const fs::path& file, const std::string& name, bool quoted) const
    {
        if (quoted && fs::exists(mRoot / file.parent_path() / name))
            return (file.parent_path() / name).lexically_normal();
        for (const std::string& folder : IncludePath) {
            if (fs::exists(mRoot / folder / name))
                return (fs::path(folder) / name).lexically_normal();
        }
        return {};
    }

    fs::path mRoot;
    std::vector<std::string> mViolations;
    int mFilesChecked = 0;
};

std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += text + "\n";
    return all;
}

/// A project of a few files in a folder that goes with the test.
class SmallProject {
public:
    SmallProject()
        : root(fs::path(PROJECT_BINARY_DIR) / ("include-rules-" + std::to_string(getpid())))
    {
    }
    ~SmallProject() { fs::remove_all(root); }
    SmallProject(const SmallProject&) = delete;
    SmallProject& operator=(const SmallProject&) = delete;

    void add(const std::string& file, const std::string& text) const
    {
        fs::create_directories((root / file).parent_path());
        std::ofstream(root / file) << text;
    }

    const fs::path root;
};

}

TEST(IncludeRules, EachLayerKnowsOnlyThoseBelowIt)
{
    IncludeRules rules(PROJECT_SOURCE_DIR);
    EXPECT_EQ(joined(rules.violations()), "");
    EXPECT_GT(rules.filesChecked(), 100) << "the folders of the layers have moved";
}

TEST(IncludeRules, AForbiddenIncludeIsNamedWithFileAndLine)
{
    const SmallProject project;
    project.add("toolkit/core/ULoop.h", "#pragma once\n#include <vector>\n#include \"Row.h\"\n");
    project.add("toolkit/core/Rect.h", "#pragma once\n#include <png.h>\n");
    project.add("toolkit/meg/Row.h", "#include <Rect.h>\n  #  include <DisplayAPI/List.h> // the handle\n");
    project.add("include/DisplayAPI/List.h", "#include <Rect.h>\n#include <ULoop.h>\n#include <ListPrivate.h>\n");
    project.add("src/ListPrivate.h", "#include <DisplayAPI/List.h>\n#include <Row.h>\n#include <pthread.h>\n");
    project.add("simulator/Phone.cpp", "#include <png.h>\n#include <Rect.h>\n#include \"../src/ListPrivate.h\"\n");
    project.add("examples/list.cpp", "#include <DisplayAPI/List.h>\n#include <Rect.h>\n#include <unistd.h>\n");
    project.add("examples/telephone/main.cpp", "#include \"Tour.h\"\n#include \"../list.cpp\"\n");
    project.add("examples/telephone/Tour.h", "// #include <Rect.h>\n");

    EXPECT_EQ(joined(IncludeRules(project.root).violations()),
        "examples/list.cpp:2: <Rect.h> is toolkit/core/Rect.h, which examples must not know\n"
        "examples/list.cpp:3: <unistd.h> is no header that examples may use\n"
        "include/DisplayAPI/List.h:2: <ULoop.h> is toolkit/core/ULoop.h, which include/DisplayAPI must not know\n"
        "include/DisplayAPI/List.h:3: <ListPrivate.h> is src/ListPrivate.h, which include/DisplayAPI must not know\n"
        "simulator/Phone.cpp:3: <../src/ListPrivate.h> is src/ListPrivate.h, which simulator must not know\n"
        "toolkit/core/Rect.h:2: <png.h> is no header that toolkit/core may use\n"
        "toolkit/core/ULoop.h:3: <Row.h> is toolkit/meg/Row.h, which toolkit/core must not know\n"
        "toolkit/meg/Row.h:2: <DisplayAPI/List.h> is include/DisplayAPI/List.h, which toolkit/meg must not know\n");
}
