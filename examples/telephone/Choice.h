#pragma once

#include <functional>
#include <string>

/// Something that the user may do: the key of its text, and what happens then, on the worker thread. It must hold what
/// it is about by value: that may be gone by the time of the choice.
struct Choice {
    std::string key;
    std::function<void()> act;
};
