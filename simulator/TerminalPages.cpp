#include "TerminalPages.h"

#include "OutputKeeper.h"
#include "ScreenText.h"
#include "TerminalLayout.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace Simulator {

TerminalPages::TerminalPages(const OutputKeeper& output)
    : mOutput(output)
{
}

void TerminalPages::toggle(Kind kind)
{
    mKind = mKind == kind ? Kind::None : kind;
    mFirst = 0;
    mIsAtEnd = mKind == Kind::Output;
}

void TerminalPages::close()
{
    mKind = Kind::None;
}

void TerminalPages::scrollBy(int lines)
{
    mIsAtEnd = false;
    const auto distance = static_cast<std::size_t>(std::abs(lines));
    mFirst = lines < 0 ? mFirst - std::min(mFirst, distance) : mFirst + distance;
}

void TerminalPages::scrollPage(int pages)
{
    scrollBy(pages * static_cast<int>(std::max<std::size_t>(mRoom, 2) - 1));
}

void TerminalPages::scrollToStart()
{
    mIsAtEnd = false;
    mFirst = 0;
}

void TerminalPages::scrollToEnd()
{
    mIsAtEnd = true;
}

std::optional<TerminalPage> TerminalPages::page(const Area& area, const Snapshot& screen)
{
    if (mKind == Kind::None)
        return std::nullopt;
    if (mKind == Kind::Output) {
        mSeenLines = mOutput.lineCount();
        mSeenBytes = mOutput.byteCount();
    }
    const Source source{mKind, area.columns, mKind == Kind::Output ? mOutput.byteCount() : screen.number};
    if (std::exchange(mSource, source) != source) {
        mLines.clear();
        for (const std::string& line : pageLines(screen)) {
            const std::vector<std::string> rows = wrapped(line, area.columns);
            mLines.insert(mLines.end(), rows.begin(), rows.end());
        }
    }
    mRoom = static_cast<std::size_t>(std::max(area.lines - 1, 0)); // below the title
    const std::size_t last = mLines.size() - std::min(mRoom, mLines.size());
    mFirst = mIsAtEnd ? last : std::min(mFirst, last);
    mIsAtEnd = mIsAtEnd || (mKind == Kind::Output && mFirst == last);
    const auto shown = mLines.begin() + static_cast<std::ptrdiff_t>(mFirst);
    return TerminalPage{title(), {shown, shown + static_cast<std::ptrdiff_t>(std::min(mRoom, mLines.size() - mFirst))},
        mFirst, mLines.size()};
}

std::uint64_t TerminalPages::newLines() const
{
    if (mOutput.byteCount() == mSeenBytes)
        return 0;
    return std::max<std::uint64_t>(mOutput.lineCount() - mSeenLines, 1);
}

std::vector<std::string> TerminalPages::pageLines(const Snapshot& screen) const
{
    switch (mKind) {
    case Kind::Text: return fieldLines(screen.text);
    case Kind::Output: return outputLines();
    case Kind::Keys: return keyLines();
    case Kind::None: break;
    }
    return {};
}

std::string TerminalPages::title() const
{
    switch (mKind) {
    case Kind::Text: return "Screen text";
    case Kind::Output: return "What the phonelet has written";
    case Kind::Keys: return "Keys";
    case Kind::None: break;
    }
    return "";
}

std::vector<std::string> TerminalPages::outputLines() const
{
    const std::string text = mOutput.text();
    std::vector<std::string> lines;
    const std::uint64_t missing = mOutput.byteCount() - std::min<std::uint64_t>(text.size(), mOutput.byteCount());
    if (missing > 0)
        lines.push_back("(" + std::to_string(missing) + " bytes before this are left out)");
    std::istringstream input(text);
    for (std::string line; std::getline(input, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        for (auto tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t')) {
            constexpr std::size_t step = 8;
            line.replace(tab, 1, step - tab % step, ' ');
        }
        lines.push_back(line);
    }
    if (lines.empty())
        lines.emplace_back("Nothing yet. It is printed again when you leave.");
    return lines;
}

std::vector<std::string> TerminalPages::keyLines() const
{
    return {
        "Of the telephone:",
        "  arrows          the arrows",
        "  Enter           OK",
        "  0-9 * #         the keys to dial with",
        "  Backspace       left",
        "  Delete          C, which clears",
        "  F1 to F8        the function keys",
        "",
        "Of this program:",
        "  t               the whole screen text",
        "  o               what the phonelet has written",
        "  PgUp PgDn       scroll such a page, and so",
        "  Home End        do these",
        "  Esc             closes it",
        "  Ctrl-L          draws everything anew",
        "  Ctrl-Z          back to the shell, until fg",
        "  q Ctrl-C        leave; twice, if need be",
        "",
        "A terminal tells of no release. A key is down until it",
        "has not come again for a moment, and held when it repeats.",
    };
}

}
