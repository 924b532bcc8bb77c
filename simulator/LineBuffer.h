#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace Simulator {

/// Makes lines of bytes that come in pieces. Of a line that is too long nothing is kept but the fact.
class LineBuffer {
public:
    static constexpr std::size_t LongestLine = 65536;

    struct Line {
        std::string text; ///< Without its line feed, and without a carriage return before it.
        bool isTooLong = false;
    };

    void add(std::string_view bytes);

    /// Counts what is left without a line feed as a line: nothing will come any more.
    void finish();

    bool hasLine() const { return !mLines.empty(); }

    /// The next line; there must be one.
    Line take();

private:
    void endLine();

    Line mOpen;
    std::deque<Line> mLines;
};

}
