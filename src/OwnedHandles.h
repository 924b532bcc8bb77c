#pragma once

#include <DisplayAPI/Living.h>

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <utility>
#include <vector>

namespace DisplayAPI {

/// The handles that another one owns, in their order: the screens of a tab screen, the items of an expanding list. One
/// that is deleted elsewhere has no place here any more. Null may have one, for a tab without content.
///
/// Threads: any. No lock is held while a handle is deleted.
/// Ownership: the handles go by deleteAll(), or they stay.
template <typename T>
class OwnedHandles {
public:
    OwnedHandles() = default;
    ~OwnedHandles()
    {
        if (mHaveGone)
            *mHaveGone = true;
    }
    OwnedHandles(const OwnedHandles&) = delete;
    OwnedHandles& operator=(const OwnedHandles&) = delete;

    std::vector<T*> all() const
    {
        std::vector<T*> handles;
        std::lock_guard lock(mMutex);
        handles.reserve(mEntries.size());
        for (const Living<T>& entry : mEntries) {
            if (!isDead(entry))
                handles.push_back(entry.get());
        }
        return handles;
    }

    int size() const
    {
        std::lock_guard lock(mMutex);
        return static_cast<int>(
            std::count_if(mEntries.begin(), mEntries.end(), [](const Living<T>& entry) { return !isDead(entry); }));
    }

    /// Null outside.
    T* at(int index) const
    {
        std::lock_guard lock(mMutex);
        const std::size_t place = placeOf(index);
        return place < mEntries.size() ? mEntries[place].get() : nullptr;
    }

    /// The first place of a handle, -1 for one that is not here. The pointer is not followed.
    int indexOf(const T* handle) const
    {
        std::lock_guard lock(mMutex);
        int index = 0;
        for (const Living<T>& entry : mEntries) {
            if (isDead(entry))
                continue;
            if (entry.isAt(handle))
                return index;
            ++index;
        }
        return -1;
    }

    /// Calls `visit(handle)` for each that lives when its turn comes. It may delete others, and the owner.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        std::vector<Living<T>> entries;
        {
            std::lock_guard lock(mMutex);
            entries = mEntries;
        }
        for (const Living<T>& entry : entries) {
            if (T* handle = entry.get())
                visit(*handle);
        }
    }

    // Changes; an index outside is ignored

    void add(T* handle)
    {
        std::lock_guard lock(mMutex);
        mEntries.push_back(Living<T>(handle));
    }

    void set(int index, T* handle)
    {
        std::lock_guard lock(mMutex);
        const std::size_t place = placeOf(index);
        if (place < mEntries.size())
            mEntries[place] = Living<T>(handle);
    }

    void erase(int index)
    {
        std::lock_guard lock(mMutex);
        const std::size_t place = placeOf(index);
        if (place < mEntries.size())
            mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(place));
    }

    /// True if some have died since the last call.
    bool forgetDead()
    {
        std::lock_guard lock(mMutex);
        return std::erase_if(mEntries, isDead) > 0;
    }

    /// Deletes the handles from the last to the first, and those that come meanwhile. A handle's destructor, which is
    /// the application's own, perhaps, may delete the owner.
    void deleteAll()
    {
        bool haveGone = false;
        bool* const outer = std::exchange(mHaveGone, &haveGone);
        for (;;) {
            T* last = nullptr;
            {
                std::lock_guard lock(mMutex);
                if (mEntries.empty())
                    break;
                last = mEntries.back().get();
                mEntries.pop_back();
            }
            delete last;
            if (haveGone) {
                if (outer)
                    *outer = true;
                return;
            }
        }
        mHaveGone = outer;
    }

private:
    static bool isDead(const Living<T>& entry) { return entry.address() && !entry; }

    /// The place in mEntries of the living one at this index; behind the end for none.
    std::size_t placeOf(int index) const
    {
        for (std::size_t place = 0; index >= 0 && place < mEntries.size(); ++place) {
            if (!isDead(mEntries[place]) && index-- == 0)
                return place;
        }
        return mEntries.size();
    }

    mutable std::mutex mMutex;
    std::vector<Living<T>> mEntries;
    bool* mHaveGone = nullptr; // of the deleteAll() that is under way, the innermost
};

}
