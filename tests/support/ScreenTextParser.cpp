#include "ScreenTextParser.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view Keys[]
    = {"name", "caption", "icon", "icon0", "icon1", "icon3", "string0", "string1", "string2", "string3"};

bool isKey(std::string_view key)
{
    if (std::find(std::begin(Keys), std::end(Keys), key) != std::end(Keys))
        return true;
    // The dialer numbers its lines by row, so that its numbers may be higher.
    return key.starts_with("string") && key.size() > 6
        && std::all_of(key.begin() + 6, key.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}

ScreenTextParser::ScreenTextParser(std::string_view document)
    : mRest(document)
{
    std::string_view line;
    while (mFault.empty() && !mRest.empty()) {
        if (!readLine(line))
            return;
        if (line == "object:")
            parseObject();
        else
            fail("a line outside of an object", line);
    }
}

void ScreenTextParser::parseObject()
{
    Block object;
    if (parseLines(object, "end:", true))
        mObjects.push_back(std::move(object));
}

void ScreenTextParser::parseSubitem(Block& object)
{
    Block subitem;
    if (parseLines(subitem, "endsubitem:", false))
        object.subitems.push_back(std::move(subitem));
}

bool ScreenTextParser::parseLines(Block& block, std::string_view endLine, bool isObject)
{
    std::string_view line;
    for (bool isFirst = true; readLine(line); isFirst = false) {
        if (line == endLine)
            return true;
        if (line == "subitem:" && isObject) {
            parseSubitem(block);
            if (!mFault.empty())
                return false;
            continue;
        }
        const std::size_t colon = line.find(':');
        if (colon == std::string_view::npos || !isKey(line.substr(0, colon))) {
            fail("no field of a block", line);
            return false;
        }
        const std::string key(line.substr(0, colon));
        const std::string value(line.substr(colon + 1));
        if ((key == "name") != isFirst && (key == "name" || !isObject)) {
            fail("the name line is the first of its block", line);
            return false;
        }
        if (key == "name")
            block.name = value;
        else
            block.fields.push_back({key, value});
    }
    if (mFault.empty())
        fail("the document ends inside a block", "");
    return false;
}

bool ScreenTextParser::readLine(std::string_view& line)
{
    const std::size_t end = mRest.find('\n');
    if (end == std::string_view::npos) {
        if (!mRest.empty())
            fail("the last line has no line feed", mRest);
        return false;
    }
    line = mRest.substr(0, end);
    mRest.remove_prefix(end + 1);
    ++mLineNumber;
    if (line.find('\r') != std::string_view::npos) {
        fail("a carriage return", line);
        return false;
    }
    return true;
}

void ScreenTextParser::fail(std::string_view what, std::string_view line)
{
    mFault = "line " + std::to_string(mLineNumber) + ": " + std::string(what) + ": \"" + std::string(line) + "\"";
}
