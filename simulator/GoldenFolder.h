#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Simulator {

struct Picture;

/// Screens as they should be: a folder with NAME.png, and NAME.txt for the screen text, for each picture that a script
/// takes.
class GoldenFolder {
public:
    enum class Mode {
        Compare,
        Update, ///< Takes over what the screens show.
    };

    /// Makes the folder for Mode::Update. Throws UsageError for one that can't be used.
    GoldenFolder(const std::string& folder, Mode mode);

    /// Compares a screen with its files, exactly, or writes them. Answers what differs, or nothing. `shot` is the file
    /// of the picture: its name is that of the screen, and beside it a picture of the difference is written. A widget
    /// that stands alone has no text. Throws std::runtime_error for a file that can't be read or written.
    std::string check(const std::string& shot, const Picture& picture, const std::optional<std::string>& text);

    /// True once something has differed.
    bool hasChanged() const { return mHasChanged; }

    /// The pictures and texts in the folder that nothing has been compared with.
    std::vector<std::string> unused() const;

private:
    std::string checkText(const std::filesystem::path& file, const std::string& text) const;
    std::string checkPicture(
        const std::filesystem::path& file, const Picture& picture, const std::filesystem::path& difference) const;

    std::filesystem::path mFolder;
    Mode mMode;
    std::set<std::string> mFiles; // that have been compared or written
    bool mHasChanged = false;
};

}
