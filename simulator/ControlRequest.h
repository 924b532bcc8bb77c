#pragma once

#include <nlohmann/json.hpp>

#include <chrono>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Simulator {

/// Objects keep their order, so that an answer begins with what matters.
using Json = nlohmann::ordered_json;

/// Why a command of the control channel was not carried out: a word for programs, and a sentence.
class ControlError : public std::runtime_error {
public:
    ControlError(std::string code, const std::string& reason, Json details = Json::object());

    const std::string& code() const { return mCode; }
    const Json& details() const { return mDetails; }

private:
    std::string mCode;
    Json mDetails; // further members of the answer
};

/// A line of the control channel: an object with the command under "do", what it needs, and maybe an "id".
///
/// Errors: what is wrong with the line is thrown as ControlError, "bad-json" or "bad-request".
class ControlRequest {
public:
    explicit ControlRequest(const std::string& line);

    std::string command() const { return get<std::string>("do", "a text"); }

    /// Refuses members that the command does not know.
    void allow(std::initializer_list<std::string_view> names) const;
    bool has(const std::string& name) const { return mObject.contains(name); }

    std::string text(const std::string& name) const { return get<std::string>(name, "a text"); }
    std::string textOr(const std::string& name, const std::string& other) const;
    bool flagOr(const std::string& name, bool other) const;
    int numberOr(const std::string& name, int other, int least, int most) const;
    int number(const std::string& name, int least, int most) const;
    std::chrono::milliseconds secondsOr(const std::string& name, std::chrono::milliseconds other) const;

    /// A member as it stands, for what is none of the above.
    const Json& member(const std::string& name) const;

    /// The "id" of a line, null without one; also of a line that is no good request.
    static Json idOf(const std::string& line);

private:
    template <typename T>
    T get(const std::string& name, const char* what) const;

    Json mObject;
};

}
