#pragma once

namespace Simulator {

/// Turns the signals that end a terminal program, or resize it, into something to read. Threads that start
/// while it lives take none of them; so make it before any other thread.
class SignalWatch {
public:
    SignalWatch();
    ~SignalWatch();
    SignalWatch(const SignalWatch&) = delete;
    SignalWatch& operator=(const SignalWatch&) = delete;

    /// To wait for with poll().
    int descriptor() const { return mDescriptor; }

    /// The number of a signal that has come; 0 for none.
    int take();

private:
    int mDescriptor;
};

}
