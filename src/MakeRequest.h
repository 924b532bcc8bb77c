#pragma once

#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include <string>
#include <type_traits>
#include <utility>

namespace DisplayAPI {

/// A variable of the caller that the GUI thread fills; made by result().
template <typename T>
struct RequestResult {
    T& variable;
};

/// Names the variable that takes the answer of a request: an int, bool, std::string, or a void* for an object.
template <typename T>
RequestResult<T> result(T& variable)
{
    return {variable};
}

/// Fills the slots of a request, each kind of argument in the order in which it comes.
class RequestSlots {
public:
    explicit RequestSlots(GuiRequestEvent& event)
        : mEvent(event)
    {
    }

    void fill(std::string text)
    {
        std::string* const slots[] = {&mEvent.stringParam1, &mEvent.stringParam2, &mEvent.stringParam3};
        *slots[mTexts++] = std::move(text);
    }

    /// A literal would travel as a pointer: hand over a std::string.
    void fill(const char* text) = delete;

    template <typename T>
    void fill(T* object)
    {
        void** const slots[] = {&mEvent.ptrParam1, &mEvent.ptrParam2, &mEvent.ptrParam3};
        *slots[mPointers++] = const_cast<void*>(static_cast<const void*>(object));
    }

    template <typename T>
    requires std::is_integral_v<T> || std::is_enum_v<T>
    void fill(T value)
    {
        if constexpr (std::is_same_v<T, bool>) {
            bool* const slots[] = {&mEvent.boolParam1, &mEvent.boolParam2, &mEvent.boolParam3, &mEvent.boolParam4,
                &mEvent.boolParam5, &mEvent.boolParam6};
            *slots[mBools++] = value;
        } else {
            int* const slots[] = {&mEvent.intParam1, &mEvent.intParam2, &mEvent.intParam3};
            *slots[mInts++] = static_cast<int>(value);
        }
    }

    void fill(RequestResult<void*> slot) { mEvent.ptrResult = &slot.variable; }
    void fill(RequestResult<int> slot) { mEvent.intResult = &slot.variable; }
    void fill(RequestResult<std::string> slot) { mEvent.stringResult = &slot.variable; }
    void fill(RequestResult<bool> slot) { mEvent.boolResult = &slot.variable; }

private:
    GuiRequestEvent& mEvent;
    int mTexts = 0;
    int mInts = 0;
    int mBools = 0;
    int mPointers = 0;
};

/// A request of a handle with its arguments in their slots, to be posted by that handle.
template <typename Request, typename... Arguments>
GuiRequestEvent* makeRequest(const Widget* requester, Request request, Arguments&&... arguments)
{
    // A const operation posts too: the GUI thread runs the request on the same handle.
    auto* event = new GuiRequestEvent(const_cast<Widget*>(requester), static_cast<int>(request));
    RequestSlots slots(*event);
    (slots.fill(std::forward<Arguments>(arguments)), ...);
    return event;
}

}
