#pragma once

#include <mutex>
#include <unordered_set>

namespace DisplayAPI {

/// The living objects of a kind, asked by address before a pointer is followed. Threads: any.
template <typename T>
class LivingSet {
public:
    void add(const T* object)
    {
        std::lock_guard lock(mMutex);
        mObjects.insert(object);
    }
    void remove(const T* object)
    {
        std::lock_guard lock(mMutex);
        mObjects.erase(object);
    }
    bool contains(const T* object) const
    {
        std::lock_guard lock(mMutex);
        return mObjects.contains(object);
    }

private:
    mutable std::mutex mMutex;
    std::unordered_set<const T*> mObjects;
};

}
