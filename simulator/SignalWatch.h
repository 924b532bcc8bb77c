#pragma once

namespace Simulator {

/// Turns the signals that end a terminal program, or resize it, into something to read. Threads that start
/// while it lives take none of them; so make it before any other thread.
class SignalWatch {
public:
    /// A terminal program is told of Ctrl-Z, of going on after a stop, and of a new size, too.
    enum class Of { Program, Terminal };

    /// What a shell adds to the number of a signal for the exit code.
    static constexpr int ExitCodes = 128;

    explicit SignalWatch(Of kind);
    ~SignalWatch();
    SignalWatch(const SignalWatch&) = delete;
    SignalWatch& operator=(const SignalWatch&) = delete;

    /// To wait for with poll().
    int descriptor() const { return mDescriptor; }

    /// The number of a signal that has come; 0 for none.
    int take();

    /// Lets signals come to this thread as if nobody watched them; one that waits to be taken comes at once.
    void release() const;

    /// Stops the process and those that run with it, as Ctrl-Z does, and returns when they go on. Where no shell
    /// could let them go on, it returns at once.
    void stopHere() const;

private:
    Of mKind;
    int mDescriptor;
};

}
