#pragma once

#include <string>
#include <vector>

/// What the telephone wants of the exchange, and what it hears from there.
///
/// The telephone knows no other way to a call: a driver of a real exchange takes the place of the simulated one. It
/// keeps the calls, applies forwarding and "do not disturb", and tells each change once, with the whole call in it.
class CallService {
public:
    enum class State {
        Connecting,   ///< Dialled, and nothing heard yet.
        Ringing,      ///< The other end rings.
        Busy,         ///< The other end is in another call.
        Unobtainable, ///< There is no such number.
        Incoming,     ///< This telephone rings, or is offered a call that rings elsewhere: see Kind.
        Connected,
        HeldHere,
        HeldTooLong, ///< Held here; the exchange asks whether the user has forgotten it.
        HeldThere,
        Ended, ///< The last that is heard of a call.
    };

    /// Why the call is there.
    enum class Kind {
        Outgoing,
        Incoming,
        Group,       ///< For a group that the telephone is in.
        Direct,      ///< From a station with a direct line.
        Recall,      ///< Was transferred from here, and nobody took it there.
        CallBack,    ///< The user has asked for it, while the other end was busy.
        LinePickUp,  ///< Rings at a line whose lamp this telephone has.
        GroupPickUp, ///< Rings at a member of the group.
    };

    enum class Priority {
        Normal,
        Urgent,
        Direct,
    };

    /// How a second party came into a call.
    enum class Diversion {
        None,
        Always,
        Busy,
        DoNotDisturb,
        NoAnswer,
        ForGroup, ///< The call is for the second party.
    };

    /// Why a call has ended.
    enum class Cause {
        Normal,
        Rejected,
        NoAnswer,
        NoLine, ///< All lines are in use.
        Diverted,
        Transferred,
    };

    struct Party {
        std::string name;
        std::string number; ///< Empty for unknown, "anonymous" if withheld.
    };

    struct Call {
        int id = 0; // of this call alone
        State state = State::Connecting;
        Kind kind = Kind::Outgoing;
        Priority priority = Priority::Normal;
        Party party; // at the other end
        Diversion diversion = Diversion::None;
        Party second; // whom it was meant for, if it was diverted
        Cause cause = Cause::Normal;

        bool isIncoming() const { return kind != Kind::Outgoing && kind != Kind::CallBack; }
        bool isTalk() const
        {
            return state == State::Connected || state == State::HeldHere || state == State::HeldTooLong
                || state == State::HeldThere;
        }
    };

    /// A voice message.
    struct Message {
        Party party;
        int seconds = 0;
    };

    /// Threads: called on any, with no lock of the service held.
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void callChanged(const Call& call) = 0;

        /// A call never came here, or has left, since the user has forwarded such calls. It has no number of its own.
        virtual void callForwarded(const Party& caller, Diversion why, const Party& target) = 0;
        virtual void messageLeft(const Message& message) = 0;
    };

    virtual ~CallService() = default;

    /// One listener, which outlives the service's last call to it; null for none.
    virtual void setListener(Listener* listener) = 0;

    // What the user does. Each returns at once; what follows is told to the listener. A call that has ended, or is in
    // another state than the operation needs, is left alone.

    /// Returns the number of the new call.
    virtual int dial(const std::string& number) = 0;
    virtual void answer(int call) = 0;

    /// Ends a call in any state; one that comes in is rejected.
    virtual void hangUp(int call) = 0;

    /// Also says that a call which is HeldTooLong is not forgotten.
    virtual void hold(int call) = 0;
    virtual void resume(int call) = 0;

    /// Sends a call that comes in to another number.
    virtual void deflect(int call, const std::string& number) = 0;

    /// Hands a call over to another number and lets it go: it ends here as Transferred. If nobody takes it there, it
    /// comes back as a Recall.
    virtual void transfer(int call, const std::string& number) = 0;

    /// Connects the other ends of two calls with each other; both end here as Transferred.
    virtual void connect(int call, int other) = 0;

    /// Lets all of these hear each other. False, and nothing happens, for more than the conference bridge takes.
    virtual bool join(const std::vector<int>& calls) = 0;

    /// Sends a digit, star or hash in the voice of a call.
    virtual void sendDigit(int call, char digit) = 0;

    /// Asks for a call as soon as the other end, which is busy, is free; that ends this call.
    virtual void callBack(int call) = 0;

    // What happens to calls that come in

    /// Where calls go, for Always, Busy and NoAnswer; an empty number for nowhere. Others have no effect.
    virtual void forward(Diversion kind, const std::string& number) = 0;

    /// Rejects calls, or treats the telephone as busy if it forwards such calls.
    virtual void setDoNotDisturb(bool on) = 0;
};
