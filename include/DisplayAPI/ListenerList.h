#pragma once

#include <DisplayAPI/Living.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <mutex>
#include <vector>

namespace DisplayAPI {

/// The listeners of a screen, in the order of joining. Null is ignored, and so is one that has died: a listener that
/// is made at its address later is another one, and has to join.
///
/// Threads: any. It is walked as a snapshot without a lock, so a listener may leave or join from inside its
/// call; one that has died is skipped.
/// Ownership: the listeners stay the application's.
template <typename T>
class ListenerList {
public:
    /// Adds at the end, also one that is in already.
    void add(T* listener)
    {
        std::lock_guard lock(mMutex);
        append(Living<T>(listener));
    }

    /// Adds at the end, unless it is in already.
    void addOnce(T* listener)
    {
        const Living<T> entry(listener);
        std::lock_guard lock(mMutex);
        if (std::find(mListeners.begin(), mListeners.end(), entry) == mListeners.end())
            append(entry);
    }

    /// Takes the first match out; no match is no error.
    void remove(T* listener)
    {
        std::lock_guard lock(mMutex);
        auto found = std::find_if(
            mListeners.begin(), mListeners.end(), [listener](const Living<T>& entry) { return entry.isAt(listener); });
        if (found != mListeners.end())
            mListeners.erase(found);
    }

    void clear()
    {
        std::lock_guard lock(mMutex);
        mListeners.clear();
    }

    /// True while it is in and lives.
    bool contains(T* listener) const
    {
        const Living<T> entry(listener);
        std::lock_guard lock(mMutex);
        return entry && std::find(mListeners.begin(), mListeners.end(), entry) != mListeners.end();
    }

    /// How many would be told now.
    std::size_t size() const
    {
        std::lock_guard lock(mMutex);
        return static_cast<std::size_t>(std::count_if(
            mListeners.begin(), mListeners.end(), [](const Living<T>& entry) { return static_cast<bool>(entry); }));
    }

    /// Those that live.
    std::vector<T*> all() const
    {
        std::vector<T*> listeners;
        forEach([&listeners](T* listener) { listeners.push_back(listener); });
        return listeners;
    }

    /// Calls `tell(listener)` for each that lives.
    template <typename Function>
    void forEach(Function tell) const
    {
        std::array<Living<T>, 8> few;
        std::vector<Living<T>> many;
        const Living<T>* first = few.data();
        std::size_t count = 0;
        {
            std::lock_guard lock(mMutex);
            count = mListeners.size();
            if (count <= few.size())
                std::copy(mListeners.begin(), mListeners.end(), few.begin());
            else
                many = mListeners;
        }
        if (count > few.size())
            first = many.data();
        for (std::size_t i = 0; i < count; ++i) {
            if (T* listener = first[i].get())
                tell(listener);
        }
    }

    /// Calls an operation of each that lives: notify(&CommandListener::postCommandAction, command, screen).
    template <typename Result, typename... Parameters, typename... Arguments>
    void notify(Result (T::*operation)(Parameters...), Arguments... arguments) const
    {
        forEach([&](T* listener) { (listener->*operation)(arguments...); });
    }

private:
    // The dead go first, so that none of them stands before a new one at its address.
    void append(const Living<T>& listener)
    {
        std::erase_if(mListeners, [](const Living<T>& entry) { return !entry; });
        if (listener)
            mListeners.push_back(listener);
    }

    mutable std::mutex mMutex;
    std::vector<Living<T>> mListeners;
};

}
