#include "GoldenFolder.h"

#include "Picture.h"
#include "UsageError.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace Simulator {

namespace fs = std::filesystem;

namespace {

std::string contentOf(const fs::path& file)
{
    std::ifstream input(file, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(input), {}};
    if (!input)
        throw std::runtime_error("cannot read " + file.string());
    return content;
}

void write(const fs::path& file, const std::string& content)
{
    std::ofstream output(file, std::ios::binary);
    output << content << std::flush;
    if (!output)
        throw std::runtime_error("cannot write " + file.string());
}

bool holds(const fs::path& file, const Picture& picture)
{
    try {
        return readPicture(file.string()) == picture;
    } catch (const std::runtime_error&) {
        return false; // there is none, or it is broken
    }
}

/// The next line in quotes, or that there is none.
std::string nextLine(std::istream& text)
{
    std::string line;
    return std::getline(text, line) ? "\"" + line + "\"" : "nothing";
}

std::string firstDifference(const std::string& golden, const std::string& shown)
{
    std::istringstream goldenLines(golden);
    std::istringstream shownLines(shown);
    for (int number = 1; goldenLines && shownLines; ++number) {
        const std::string wanted = nextLine(goldenLines);
        const std::string found = nextLine(shownLines);
        if (wanted != found)
            return "line " + std::to_string(number) + " is " + wanted + " there and " + found + " on the screen";
    }
    return "one of them has no line end";
}

}

GoldenFolder::GoldenFolder(const std::string& folder, Mode mode)
    : mFolder(folder)
    , mMode(mode)
{
    std::error_code error;
    if (mode == Mode::Update)
        fs::create_directories(mFolder, error);
    if (!fs::is_directory(mFolder, error))
        throw UsageError("there is no folder " + folder + (mode == Mode::Update ? "" : "; --update makes it"));
}

std::string GoldenFolder::check(const std::string& shot, const Picture& picture, const std::optional<std::string>& text)
{
    const std::string name = fs::path(shot).stem().string();
    if (!mFiles.insert(name + ".png").second)
        return "an earlier screen is called " + name + " too";
    const std::string ofPicture
        = checkPicture(mFolder / (name + ".png"), picture, fs::path(shot).replace_filename(name + "-difference.png"));
    std::string ofText;
    if (text) {
        mFiles.insert(name + ".txt");
        ofText = checkText(mFolder / (name + ".txt"), *text);
    }
    mHasChanged = mHasChanged || !ofText.empty() || !ofPicture.empty();
    return ofText + (ofText.empty() || ofPicture.empty() ? "" : "; ") + ofPicture;
}

std::string GoldenFolder::checkText(const fs::path& file, const std::string& text) const
{
    if (mMode == Mode::Update) {
        write(file, text);
        return "";
    }
    if (!fs::exists(file))
        return file.string() + " is missing";
    const std::string golden = contentOf(file);
    return golden == text ? "" : file.string() + " differs: " + firstDifference(golden, text);
}

std::string GoldenFolder::checkPicture(const fs::path& file, const Picture& picture, const fs::path& difference) const
{
    if (mMode == Mode::Update) {
        // Another libpng writes the same pixels with other bytes: only a screen that has changed makes a change.
        if (!holds(file, picture))
            writePicture(picture, file.string());
        return "";
    }
    if (!fs::exists(file))
        return file.string() + " is missing";
    const Picture golden = readPicture(file.string());
    if (golden == picture)
        return "";
    writePicture(drawDifference(golden, picture), difference.string());
    return file.string() + " differs, see " + difference.string();
}

std::vector<std::string> GoldenFolder::unused() const
{
    std::vector<std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(mFolder)) {
        const fs::path extension = entry.path().extension();
        if ((extension == ".png" || extension == ".txt") && !mFiles.contains(entry.path().filename().string()))
            files.push_back(entry.path().string());
    }
    std::ranges::sort(files);
    return files;
}

}
