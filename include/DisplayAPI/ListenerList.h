#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <mutex>
#include <vector>

namespace DisplayAPI {

/// The listeners of a screen, in the order of joining. Null is ignored.
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
        if (!listener)
            return;
        std::lock_guard lock(mMutex);
        mListeners.push_back(listener);
    }

    /// Adds at the end, unless it is in already.
    void addOnce(T* listener)
    {
        if (!listener)
            return;
        std::lock_guard lock(mMutex);
        if (std::find(mListeners.begin(), mListeners.end(), listener) == mListeners.end())
            mListeners.push_back(listener);
    }

    /// Takes the first match out; no match is no error.
    void remove(T* listener)
    {
        std::lock_guard lock(mMutex);
        auto found = std::find(mListeners.begin(), mListeners.end(), listener);
        if (found != mListeners.end())
            mListeners.erase(found);
    }

    void clear()
    {
        std::lock_guard lock(mMutex);
        mListeners.clear();
    }

    std::size_t size() const
    {
        std::lock_guard lock(mMutex);
        return mListeners.size();
    }

    /// Calls `tell(listener)` for each that lives.
    template <typename Function>
    void forEach(Function tell) const
    {
        std::array<T*, 8> few;
        std::vector<T*> many;
        T* const* first = few.data();
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
            if (isLiving(first[i]))
                tell(first[i]);
        }
    }

    /// Calls an operation of each that lives: notify(&CommandListener::postCommandAction, command, screen).
    template <typename Result, typename... Parameters, typename... Arguments>
    void notify(Result (T::*operation)(Parameters...), Arguments... arguments) const
    {
        forEach([&](T* listener) { (listener->*operation)(arguments...); });
    }

private:
    static bool isLiving(T* listener)
    {
        if constexpr (requires { T::exists(listener); })
            return T::exists(listener);
        else
            return true;
    }

    mutable std::mutex mMutex;
    std::vector<T*> mListeners;
};

}
