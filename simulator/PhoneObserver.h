#pragma once

#include <Types.h>

#include <chrono>
#include <string>

namespace Simulator {

/// Is told of what somebody does to the telephone, before it takes effect. Threads: that of the doer.
class PhoneObserver {
public:
    virtual void keyComes(int code, UGlobal::KeyState state) = 0;
    virtual void stepComes(const std::string& name, const std::string& argument) = 0;
    virtual void timeMoves(std::chrono::milliseconds time) = 0;

    /// Somebody has waited for a text until the screen had it, or had it no more.
    virtual void textCame(const std::string& text, bool isThere) = 0;

    /// The telephone is asked to end.
    virtual void endComes() = 0;

protected:
    ~PhoneObserver() = default;
};

}
