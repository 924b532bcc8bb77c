#pragma once

#include <cstdint>

namespace DisplayAPI {

/// A pointer to an object of somebody else's that may have gone, with the running number that tells it from a later
/// one at the same address. T answers numberOf(), as commands and listeners do.
///
/// Threads: those of T's numberOf(). An answer holds until the object dies, which is its owner's to say.
template <typename T>
class Living {
public:
    Living() = default;
    explicit Living(T* object)
        : mObject(object)
        , mNumber(T::numberOf(object))
    {
    }

    /// The object while it lives, else null.
    T* get() const { return mNumber != 0 && T::numberOf(mObject) == mNumber ? mObject : nullptr; }
    explicit operator bool() const { return get() != nullptr; }

    /// True if it was made of this pointer, whichever object lived there.
    bool isAt(const T* address) const { return mObject == address; }

    /// What it was made of, to be compared or printed.
    const void* address() const { return mObject; }

    /// The running number; 0 for null, and for an object that had died before.
    std::uint64_t number() const { return mNumber; }

    /// True for the same object, alive or not.
    bool operator==(const Living&) const = default;

private:
    T* mObject = nullptr;
    std::uint64_t mNumber = 0;
};

}
