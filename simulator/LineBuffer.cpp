#include "LineBuffer.h"

#include <utility>

namespace Simulator {

void LineBuffer::add(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view piece = bytes.substr(0, end);
        if (mOpen.text.size() + piece.size() > LongestLine) {
            mOpen.isTooLong = true;
            mOpen.text.clear();
        }
        if (!mOpen.isTooLong)
            mOpen.text += piece;
        if (end == std::string_view::npos)
            return;
        endLine();
        bytes.remove_prefix(end + 1);
    }
}

void LineBuffer::finish()
{
    if (!mOpen.text.empty() || mOpen.isTooLong)
        endLine();
}

LineBuffer::Line LineBuffer::take()
{
    Line line = std::move(mLines.front());
    mLines.pop_front();
    return line;
}

void LineBuffer::endLine()
{
    if (mOpen.text.ends_with('\r'))
        mOpen.text.pop_back();
    const bool isBlank = !mOpen.isTooLong && mOpen.text.find_first_not_of(" \t") == std::string::npos;
    if (!isBlank)
        mLines.push_back(std::move(mOpen));
    mOpen = {};
}

}
