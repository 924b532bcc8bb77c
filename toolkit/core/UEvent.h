#pragma once

#include "EventTypes.h"
#include "Export.h"

#include <cstdint>

class UAgent;

/// An event of the toolkit. Emitted events live on the emitter's stack; posted events belong to the loop,
/// which calls process() and then deletes them.
class TOOLKIT_EXPORT UEvent {
public:
    explicit UEvent(std::uint16_t eventType, UAgent* eventSource = nullptr, UAgent* eventPayload = nullptr)
        : type(eventType)
        , mSource(eventSource)
        , mPayload(eventPayload)
    {
    }
    UEvent(const UEvent& other);
    UEvent& operator=(const UEvent&) = delete;
    virtual ~UEvent();

    /// Runs the event on the GUI thread. The event may delete its receiver.
    virtual void process();
    virtual UEvent* clone() const;

    std::uint16_t type;

    /// Whom the event is about: the row that was chosen, the popup that went down.
    UAgent* source() const { return mSource; }
    UAgent* payload() const { return mPayload; }

    /// Who is being told; null for an event that finds its own way.
    UAgent* receiver() const { return mReceiver; }

private:
    friend class UAgent;
    friend class ULoop;

    UAgent* mSource;
    UAgent* mPayload;
    UAgent* mReceiver = nullptr;
    UEvent* mNext = nullptr; // the queue of the loop
};

/// A key, pressed, held or released.
class TOOLKIT_EXPORT UKeyEvent : public UEvent {
public:
    UKeyEvent(int key, int state)
        : UEvent(EventType::Key)
        , mKey(key)
        , mState(state)
    {
    }

    /// Hands the key to the window manager.
    void process() override;
    UEvent* clone() const override;

    int key() const { return mKey; }
    int state() const { return mState; }

private:
    int mKey;
    int mState;
};

/// The expiry of a timer.
class TOOLKIT_EXPORT UTimerEvent : public UEvent {
public:
    explicit UTimerEvent(std::uint64_t id)
        : UEvent(EventType::Timer)
        , mId(id)
    {
    }
    UEvent* clone() const override;

    std::uint64_t id() const { return mId; }

private:
    std::uint64_t mId;
};
