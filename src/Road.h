#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Item.h>

#include <atomic>
#include <concepts>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

class TranslationInfo;

namespace DisplayAPI {

class ListItem;

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

/// Writes an answer into the slot of a request. Somebody who posts one by hand may leave its slot empty.
template <typename Slot, typename Value>
void answer(Slot* slot, Value&& value)
{
    if (slot)
        *slot = std::forward<Value>(value);
}

/// An object that changes hands with the request; made by given().
template <typename T>
struct GivenObject {
    T* object;
};

/// Hands an object over. A request that is refused keeps it until the process ends, for others may know it still.
/// Where nobody is there to take it, a translation is deleted; a row stays the caller's.
template <typename T>
GivenObject<T> given(T* object)
{
    return {object};
}

/// A copy that changes hands with the request; made by copied().
template <typename T>
struct CopiedObject {
    T* copy;
};

/// Hands over a copy that was made for the request, so that nobody else knows it. Where the request never runs, or
/// nobody is there to take it, the copy is deleted.
template <typename T>
CopiedObject<T> copied(T* copy)
{
    return {copy};
}

/// Keeps an object where it is until the process ends. Null is ignored. Threads: any.
///
/// Nobody may delete such an object: other threads may still use it. It stays reachable, so that it counts as
/// kept and not as lost.
void keepUntilExit(void* object);

/// Keeps the half of a handle whose deletion was refused, until the GUI thread can delete it. Threads: any.
void keepForGuiThread(std::shared_ptr<void> half);

/// Deletes the halves that were kept, before anything can reach them that happens to a later loop or display: their
/// owners have gone, and other screens may stand at the addresses. Threads: GUI thread.
void deleteKeptHalves();

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
    void fill(GivenObject<T> given)
    {
        fill(given.object);
        keepIfRefused(given.object);
    }

    template <typename T>
    void fill(CopiedObject<T> handed)
    {
        fill(handed.copy);
        mEvent.ownUntilRun(handed.copy);
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
    void keepIfRefused(void* object);

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
    event->setNumbers(typeid(Request));
    RequestSlots slots(*event);
    (slots.fill(std::forward<Arguments>(arguments)), ...);
    return event;
}

/// The one road of a handle's operation to its half on the GUI thread.
///
///     if (auto* half = Road::wait(this, mPrivate, Request::SetState, state))
///         half->setState(state);
///
/// On the GUI thread it answers the half. Elsewhere it posts the request, which runs the same operation again on the
/// GUI thread, and answers null: wait() behind that, post() at once. Null too where there is no half; nothing happens
/// then, and what was given() is not lost.
///
/// The half is the handle's own field, which is read on the GUI thread only. A handle that has to look for its half
/// hands over a function instead.
class Road {
public:
    template <typename Half, typename Request, typename... Arguments>
    requires(std::is_enum_v<Request> && !std::is_enum_v<Half>) static auto wait(
        const Widget* handle, const Half& half, Request request, Arguments&&... arguments)
    {
        decltype(pointerTo(half)) taker = nullptr;
        if (Widget::isGuiThread())
            taker = takerOf(half, arguments...);
        else
            handle->postEvent(makeRequest(handle, request, std::forward<Arguments>(arguments)...));
        return taker;
    }

    template <typename Half, typename Request, typename... Arguments>
    requires(std::is_enum_v<Request> && !std::is_enum_v<Half>) static auto post(
        const Widget* handle, const Half& half, Request request, Arguments&&... arguments)
    {
        decltype(pointerTo(half)) taker = nullptr;
        if (Widget::isGuiThread())
            taker = takerOf(half, arguments...);
        else
            handle->postEventAsync(makeRequest(handle, request, std::forward<Arguments>(arguments)...));
        return taker;
    }

    // A step that needs no half, as the one that makes it: true on the GUI thread, where the caller goes on

    template <typename Request, typename... Arguments>
    requires std::is_enum_v<Request>
    static bool wait(const Widget* handle, Request request, Arguments&&... arguments)
    {
        if (Widget::isGuiThread())
            return true;
        handle->postEvent(makeRequest(handle, request, std::forward<Arguments>(arguments)...));
        return false;
    }

    template <typename Request, typename... Arguments>
    requires std::is_enum_v<Request>
    static bool post(const Widget* handle, Request request, Arguments&&... arguments)
    {
        if (Widget::isGuiThread())
            return true;
        handle->postEventAsync(makeRequest(handle, request, std::forward<Arguments>(arguments)...));
        return false;
    }

    /// The end of a half, and all that a destructor does: on the GUI thread the handle is retired and the half
    /// deleted. If the loop has ended the half stays until there is another one, and nobody finds it any more.
    template <typename Handle, typename Half, typename Request>
    static void end(Handle* handle, std::unique_ptr<Half>& half, Request request)
    {
        if (wait(handle, request)) {
            retire(*handle);
            half.reset();
        } else {
            keepIfRefused(handle, half);
        }
    }

    /// The rest of a destructor off the GUI thread: keeps the half if its deletion was refused. A screen leaves the
    /// registry first, so that the display never asks one that is half gone.
    template <typename Handle, typename Half>
    static void keepIfRefused(Handle* handle, std::unique_ptr<Half>& half)
    {
        if (!half)
            return;
        leaveRegistry(*handle);
        keepForGuiThread(std::shared_ptr<void>(half.release(), [](Half* kept) {
            // Whatever tree its widget stands in, nobody else will take it away.
            if constexpr (requires { kept->gainOwnership(); })
                kept->gainOwnership();
            delete kept;
        }));
    }

private:
    // Where a handle's half is

    template <typename T>
    static T* pointerTo(const std::unique_ptr<T>& half)
    {
        return half.get();
    }
    template <typename T>
    static T* pointerTo(const std::atomic<T*>& half)
    {
        return half;
    }
    template <typename T>
    static T* pointerTo(T* const& half)
    {
        return half;
    }
    template <std::invocable Find>
    static auto pointerTo(const Find& find)
    {
        return find();
    }

    template <typename Half, typename... Arguments>
    static auto takerOf(const Half& half, const Arguments&... arguments)
    {
        auto* taker = pointerTo(half);
        if (!taker)
            (drop(arguments), ...);
        return taker;
    }

    template <typename T>
    static void drop(const T&)
    {
    }
    static void drop(const GivenObject<TranslationInfo>& given);
    template <typename T>
    static void drop(const CopiedObject<T>& handed)
    {
        delete handed.copy;
    }

    static void retire(Widget& handle) { handle.retire(); }
    static void retire(Displayable& screen) { screen.retireScreen(); }
    static void retire(Item& item) { item.retireItem(item.getPrivateImpl()); }
    static void retire(ListItem& row) = delete; // it leaves its list, too: retireRow()
    static void leaveRegistry(Widget&) { }
    static void leaveRegistry(Item& item) { item.leave(); }
    static void leaveRegistry(Displayable& screen);
};

}
