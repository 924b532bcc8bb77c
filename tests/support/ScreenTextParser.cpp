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
    if (document.find(Password) != std::string_view::npos)
        fail("a password in clear", Password);
    std::string_view line;
    bool mayCloseAgain = false;
    while (mFault.empty() && readLine(line)) {
        const bool isForm = !mObjects.empty() && mObjects.back().name == "FormWidget";
        if (line == "object:") {
            parseObject();
            mayCloseAgain = true;
        } else if (line == "end:" && isForm && mayCloseAgain) {
            mayCloseAgain = false;
        } else {
            fail("a line outside of an object", line);
        }
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
    if (!parseLines(subitem, "endsubitem:", false))
        return;
    if (subitem.name.empty())
        fail("a subitem without a name", "");
    object.subitems.push_back(std::move(subitem));
}

bool ScreenTextParser::parseLines(Block& block, std::string_view endLine, bool isObject)
{
    std::string_view line;
    for (bool isFirst = true; readLine(line); isFirst = false) {
        if (line == endLine)
            return true;
        const bool isTabsTitle = !block.fields.empty() && block.fields.back().value == "TabScreen Menu";
        if (line.empty() && isTabsTitle)
            continue;
        if (line == "subitem:" && isObject)
            parseSubitem(block);
        else
            parseField(block, line, isFirst, isObject);
        if (!mFault.empty())
            return false;
    }
    return mFault.empty() ? fail("the document ends inside a block", "") : false;
}

bool ScreenTextParser::parseField(Block& block, std::string_view line, bool isFirst, bool isObject)
{
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || !isKey(line.substr(0, colon)))
        return fail("no field of a block", line);
    const std::string key(line.substr(0, colon));
    const std::string value(line.substr(colon + 1));
    if (key == "name" ? !isFirst : isFirst && !isObject)
        return fail("the name is the first line of its block", line);
    if (!block.subitems.empty())
        return fail("a field behind a subitem", line);
    if (key == "name" && value.empty())
        return fail("an empty name", line);
    if (key == "name")
        block.name = value;
    else
        block.fields.push_back({key, value});
    return true;
}

bool ScreenTextParser::readLine(std::string_view& line)
{
    if (mRest.empty())
        return false;
    const std::size_t end = mRest.find('\n');
    if (end == std::string_view::npos)
        return fail("the last line has no line feed", mRest);
    line = mRest.substr(0, end);
    mRest.remove_prefix(end + 1);
    ++mLineNumber;
    return line.find('\r') == std::string_view::npos || fail("a carriage return", line);
}

bool ScreenTextParser::fail(std::string_view what, std::string_view line)
{
    mFault = "line " + std::to_string(mLineNumber) + ": " + std::string(what) + ": \"" + std::string(line) + "\"";
    return false;
}
