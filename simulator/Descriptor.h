#pragma once

#include <unistd.h>
#include <utility>

namespace Simulator {

/// A file descriptor of the system, closed at the end.
class Descriptor {
public:
    explicit Descriptor(int number = -1)
        : mNumber(number)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : mNumber(std::exchange(other.mNumber, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(mNumber, other.mNumber);
        return *this;
    }
    ~Descriptor()
    {
        if (mNumber >= 0)
            close(mNumber);
    }

    int number() const { return mNumber; }
    explicit operator bool() const { return mNumber >= 0; }

private:
    int mNumber;
};

}
