#pragma once

#include "TerminalPicture.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Simulator {

class OutputKeeper;
struct Area;

/// The page that lies open beside the telephone or over it: the whole screen text, what the phonelet has written, or
/// the keys; and how far it is scrolled.
class TerminalPages {
public:
    enum class Kind { None, Text, Output, Keys };

    /// The output must outlive this.
    explicit TerminalPages(const OutputKeeper& output);

    bool isOpen() const { return mKind != Kind::None; }

    /// Opens a page, or closes it if it is open.
    void toggle(Kind kind);
    void close();

    // How far it is scrolled; the end of the page is the end.

    void scrollBy(int lines);
    void scrollPage(int pages);
    void scrollToStart();
    void scrollToEnd();

    /// The open page for a place of this size. Ask for it at each drawing.
    std::optional<TerminalPage> page(const Area& area, const Snapshot& screen);

    /// How many lines the phonelet has written since its output was last looked at.
    std::uint64_t newLines() const;

private:
    /// From what the lines of the page were made.
    struct Source {
        Kind kind = Kind::None;
        int columns = 0;
        std::uint64_t version = 0;
        bool operator==(const Source&) const = default;
    };

    std::vector<std::string> pageLines(const Snapshot& screen) const;
    std::vector<std::string> outputLines() const;
    std::vector<std::string> keyLines() const;
    std::string title() const;

    const OutputKeeper& mOutput;
    Kind mKind = Kind::None;
    Source mSource;
    std::vector<std::string> mLines; // of the open page
    std::size_t mFirst = 0;
    std::size_t mRoom = 1;
    bool mIsAtEnd = false; // and stays there
    std::uint64_t mSeenLines = 0;
    std::uint64_t mSeenBytes = 0;
};

}
