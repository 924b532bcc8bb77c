#pragma once

#include "Export.h"

#include <cstdint>

class LifeNode;
class UEvent;
class UKeyEvent;
class UTimerEvent;

/// The root of everything that raises or receives events.
///
/// An agent has one listener, to which emit() speaks at once. Links are cut from both ends: a dying agent
/// leaves its listener, its emitters, the listeners of the application, and marks every LifeNode on it.
/// Threads: GUI thread only.
class TOOLKIT_EXPORT UAgent {
public:
    UAgent() = default;
    virtual ~UAgent();
    UAgent(const UAgent&) = delete;
    UAgent& operator=(const UAgent&) = delete;

    /// Replaces the listener; null takes it away.
    virtual void setListener(UAgent* listener);

    /// Forgets the listener, if it is this one.
    virtual void removeListener(UAgent* listener);

    /// Told when an agent that this one listens to dies or finds another listener.
    virtual void removeEmitter(UAgent* emitter);

    virtual void event(UEvent* event);

    /// Answers true when the key was used.
    virtual bool keyEvent(UKeyEvent* key);
    virtual void timerEvent(UTimerEvent* event);

    UAgent* listener() const { return mListener; }

    /// True while somebody holds this agent as listener.
    bool hasEmitters() const { return mEmitters != nullptr; }

protected:
    /// Tells the listener now. Returns whether this agent still lives: after false no member may be touched.
    bool emit(std::uint16_t type, UAgent* source, UAgent* payload = nullptr);

    /// Hands on an event that another agent raised, with its source and payload. The result is as for emit().
    bool relay(const UEvent& event);

private:
    friend class LifeNode;
    friend class ListenerHub;

    void unlinkFrom(UAgent& listener);

    UAgent* mListener = nullptr;
    UAgent* mEmitters = nullptr; // those whose listener this is
    UAgent* mNextEmitter = nullptr;
    UAgent* mPreviousEmitter = nullptr;
    LifeNode* mNodes = nullptr;
    UAgent* mNextInHub = nullptr;
    UAgent* mPreviousInHub = nullptr;
    bool mIsInHub = false;
};

/// A note, usually on the stack, that tells whether an agent has died meanwhile. It costs no memory.
class TOOLKIT_EXPORT LifeNode {
public:
    LifeNode() = default;
    explicit LifeNode(UAgent* agent) { watch(agent); }
    ~LifeNode() { watch(nullptr); }
    LifeNode(const LifeNode&) = delete;
    LifeNode& operator=(const LifeNode&) = delete;

    /// Moves the note to another agent; null for none. `died` is called when that agent dies.
    void watch(UAgent* agent, void (*died)(LifeNode&) = nullptr);
    bool isAlive() const { return mAgent != nullptr; }
    UAgent* agent() const { return mAgent; }

private:
    friend class UAgent;

    UAgent* mAgent = nullptr;
    LifeNode* mNext = nullptr;
    LifeNode* mPrevious = nullptr;
    void (*mDied)(LifeNode&) = nullptr;
};

/// A pointer to an agent that becomes null when the agent dies.
template <typename T>
class UPointer {
public:
    UPointer() = default;
    UPointer(T* object) { *this = object; }
    UPointer(const UPointer& other) { *this = other.get(); }
    UPointer& operator=(const UPointer& other)
    {
        if (this != &other)
            *this = other.get();
        return *this;
    }
    UPointer& operator=(T* object)
    {
        mObject = object;
        mNode.watch(object);
        return *this;
    }

    T* get() const { return mNode.isAlive() ? mObject : nullptr; }
    T* operator->() const { return get(); }
    T& operator*() const { return *get(); }
    explicit operator bool() const { return mNode.isAlive(); }

private:
    T* mObject = nullptr;
    LifeNode mNode;
};

/// An agent with a name of its own in the toolkit's class tree; it adds nothing.
class TOOLKIT_EXPORT UObject : public UAgent { };

/// Those who hear of changes that concern the whole application, such as the locale. It lasts as long as
/// the process, whatever applications come and go.
class TOOLKIT_EXPORT ListenerHub {
public:
    static ListenerHub& instance();

    /// Adds at the end; an agent that is in already stays where it is.
    void add(UAgent* agent);
    void remove(UAgent* agent);

    /// Tells every listener, in the order of joining. Who leaves or dies meanwhile is skipped, who joins
    /// meanwhile is not told.
    void notify(std::uint16_t type);

private:
    ListenerHub() = default;

    UAgent mSelf; // the source of what is told
    UAgent* mFirst = nullptr;
    UAgent* mLast = nullptr;
};
