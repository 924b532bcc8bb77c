#include "ControlRequest.h"

#include "Printable.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Simulator {

namespace {

constexpr const char* BadRequest = "bad-request";
constexpr const char* Hint = R"(; a command is an object in one line, such as {"do": "key", "key": "OK"})";

std::string quoted(const std::string& name)
{
    return '"' + printable(name) + '"';
}

/// Refuses what is nested so deeply that whoever copies or writes it would run out of stack.
bool isWithinDepth(int depth, Json::parse_event_t, Json&)
{
    constexpr int deepest = 100;
    if (depth > deepest)
        throw ControlError(BadRequest, "the line has brackets in more than " + std::to_string(deepest) + " levels");
    return true;
}

}

ControlError::ControlError(std::string code, const std::string& reason, Json details)
    : std::runtime_error(reason)
    , mCode(std::move(code))
    , mDetails(std::move(details))
{
}

ControlRequest::ControlRequest(const std::string& line)
{
    try {
        mObject = Json::parse(line, isWithinDepth);
    } catch (const Json::parse_error& error) {
        constexpr std::size_t shown = 20;
        const std::size_t place = std::min(error.byte == 0 ? 0 : error.byte - 1, line.size());
        const std::string rest = printable(line.substr(place, shown));
        throw ControlError("bad-json",
            "the line is no JSON, "
                + (rest.empty() ? "it ends too early" : "from byte " + std::to_string(place + 1) + " on: " + rest)
                + Hint);
    }
    if (!mObject.is_object())
        throw ControlError(BadRequest, std::string("the line is JSON, but no object") + Hint);
    if (!mObject.contains("do"))
        throw ControlError(BadRequest, std::string("\"do\" is missing") + Hint);
}

void ControlRequest::allow(std::initializer_list<std::string_view> names) const
{
    for (const auto& [name, value] : mObject.items()) {
        if (name == "do" || name == "id" || std::ranges::find(names, name) != names.end())
            continue;
        std::string known;
        for (const std::string_view each : names)
            known += (known.empty() ? "; it takes " : ", ") + std::string(each);
        throw ControlError(BadRequest, command() + " knows no " + quoted(name) + known);
    }
}

template <typename T>
T ControlRequest::get(const std::string& name, const char* what) const
{
    try {
        return member(name).get<T>();
    } catch (const Json::type_error&) {
        throw ControlError(BadRequest, quoted(name) + " must be " + what);
    }
}

const Json& ControlRequest::member(const std::string& name) const
{
    const auto found = mObject.find(name);
    if (found == mObject.end())
        throw ControlError(BadRequest, quoted(name) + " is missing");
    return *found;
}

std::string ControlRequest::textOr(const std::string& name, const std::string& other) const
{
    return has(name) ? text(name) : other;
}

bool ControlRequest::flagOr(const std::string& name, bool other) const
{
    return has(name) ? get<bool>(name, "true or false") : other;
}

int ControlRequest::numberOr(const std::string& name, int other, int least, int most) const
{
    return has(name) ? number(name, least, most) : other;
}

int ControlRequest::number(const std::string& name, int least, int most) const
{
    const Json& value = member(name);
    const bool isInRange = value.is_number_integer() && value >= least && value <= most;
    if (!isInRange)
        throw ControlError(BadRequest,
            quoted(name) + " must be a whole number from " + std::to_string(least) + " to " + std::to_string(most));
    return value.get<int>();
}

std::chrono::milliseconds ControlRequest::secondsOr(const std::string& name, std::chrono::milliseconds other) const
{
    constexpr double most = 3600;
    if (!has(name))
        return other;
    const Json& value = member(name);
    if (!value.is_number() || !(value >= 0) || !(value <= most))
        throw ControlError(BadRequest, quoted(name) + " must be a number of seconds from 0 to 3600");
    return std::chrono::milliseconds(std::lround(value.get<double>() * 1000));
}

Json ControlRequest::idOf(const std::string& line)
{
    try {
        const Json object = Json::parse(line, isWithinDepth, false);
        return object.is_object() ? object.value("id", Json()) : Json();
    } catch (const ControlError&) {
        return {};
    }
}

}
