#pragma once

#include <DisplayAPI/Export.h>

#include <cstdint>
#include <vector>

namespace DisplayAPI {

/// The base of a kind of object, T, that the library may ask for behind its death: each gets a running number when
/// it is made, a copy one of its own. It adds neither a field nor a virtual operation.
///
/// Threads: any. An answer about an object is right when its making or its death happened before the question.
template <typename T>
class DISPLAYAPI_EXPORT Numbered {
public:
    /// The number, which no later object at the same address has; 0 for null and for one that has died. The pointer
    /// is not followed.
    static std::uint64_t numberOf(const T* object);

    /// True while the object lives; false for null. The pointer is not followed.
    static bool exists(const T* object) { return numberOf(object) != 0; }

    /// Those that live, in no order.
    static std::vector<T*> all();

protected:
    Numbered();
    Numbered(const Numbered&)
        : Numbered()
    {
    }
    Numbered& operator=(const Numbered&) { return *this; }
    ~Numbered() { leave(); }

    /// Counts as dead from now on. First step of a destructor that recalls what still names the object.
    void leave();
};

}
