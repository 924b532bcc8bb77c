#pragma once

#include <string>
#include <vector>

/// What the telephone wants of the exchange, and what it hears from there.
///
/// The telephone knows no other way to a call: a driver of a real exchange takes the place of the simulated one.
class CallService {
public:
    enum class State {
        Connecting,   ///< Dialled, and nothing heard yet.
        Ringing,      ///< The other end rings.
        Busy,         ///< The other end is in another call.
        Unobtainable, ///< There is no such number.
        Incoming,     ///< Somebody calls; this telephone rings.
        Connected,
        HeldHere,
        HeldThere,
        Ended, ///< The last that is heard of a call.
    };

    struct Call {
        int id = 0; // of this call alone
        State state = State::Connecting;
        bool isIncoming = false;
        std::string name;
        std::string number;
    };

    /// Threads: called on any, with no lock of the service held.
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void callChanged(const Call& call) = 0;
    };

    virtual ~CallService() = default;

    /// One listener, which outlives the service's last call to it; null for none.
    virtual void setListener(Listener* listener) = 0;

    // What the user does. Each returns at once; what follows is told to the listener. A call that has ended, or is in
    // another state than the operation needs, is left alone.

    /// Returns the number of the new call.
    virtual int dial(const std::string& number) = 0;
    virtual void answer(int call) = 0;
    virtual void hangUp(int call) = 0;
    virtual void hold(int call) = 0;
    virtual void resume(int call) = 0;
};
