#include "UAgent.h"

#include "UEvent.h"

#include <deque>

UAgent::~UAgent()
{
    if (UAgent* listener = mListener) {
        unlinkFrom(*listener);
        listener->removeEmitter(this);
        // It may have found another one for an agent that is going.
        if (mListener)
            unlinkFrom(*mListener);
    }
    while (UAgent* emitter = mEmitters) {
        emitter->removeListener(this);
        // An override may have kept the link; it must not outlive this agent.
        if (emitter == mEmitters)
            emitter->unlinkFrom(*this);
    }
    if (mIsInHub)
        ListenerHub::instance().remove(this);
    while (LifeNode* node = mNodes) {
        const auto died = node->mDied;
        node->watch(nullptr);
        if (died)
            died(*node);
    }
}

void UAgent::setListener(UAgent* listener)
{
    if (listener == mListener)
        return;
    UAgent* old = mListener;
    if (old)
        unlinkFrom(*old);
    if (listener) {
        mListener = listener;
        mNextEmitter = listener->mEmitters;
        if (mNextEmitter)
            mNextEmitter->mPreviousEmitter = this;
        listener->mEmitters = this;
    }
    // Told last: it may name another listener for this agent, or delete either of them.
    if (old)
        old->removeEmitter(this);
}

void UAgent::removeListener(UAgent* listener)
{
    if (listener && listener == mListener)
        unlinkFrom(*listener);
}

void UAgent::removeEmitter(UAgent*) { }

void UAgent::event(UEvent*) { }

bool UAgent::keyEvent(UKeyEvent*)
{
    return false;
}

void UAgent::timerEvent(UTimerEvent*) { }

bool UAgent::emit(std::uint16_t type, UAgent* source, UAgent* payload)
{
    if (!mListener)
        return true;
    UEvent event(type, source, payload);
    event.mReceiver = mListener;
    LifeNode life(this);
    mListener->event(&event);
    return life.isAlive();
}

bool UAgent::relay(const UEvent& event)
{
    return emit(event.type, event.source(), event.payload());
}

void UAgent::unlinkFrom(UAgent& listener)
{
    if (mPreviousEmitter)
        mPreviousEmitter->mNextEmitter = mNextEmitter;
    else
        listener.mEmitters = mNextEmitter;
    if (mNextEmitter)
        mNextEmitter->mPreviousEmitter = mPreviousEmitter;
    mListener = mNextEmitter = mPreviousEmitter = nullptr;
}

void LifeNode::watch(UAgent* agent, void (*died)(LifeNode&))
{
    if (mAgent) {
        if (mPrevious)
            mPrevious->mNext = mNext;
        else
            mAgent->mNodes = mNext;
        if (mNext)
            mNext->mPrevious = mPrevious;
    }
    mAgent = agent;
    mDied = died;
    mPrevious = nullptr;
    mNext = agent ? agent->mNodes : nullptr;
    if (mNext)
        mNext->mPrevious = this;
    if (agent)
        agent->mNodes = this;
}

ListenerHub& ListenerHub::instance()
{
    static ListenerHub& hub = *new ListenerHub;
    return hub;
}

void ListenerHub::add(UAgent* agent)
{
    if (!agent || agent->mIsInHub)
        return;
    agent->mIsInHub = true;
    agent->mPreviousInHub = mLast;
    agent->mNextInHub = nullptr;
    (mLast ? mLast->mNextInHub : mFirst) = agent;
    mLast = agent;
}

void ListenerHub::remove(UAgent* agent)
{
    if (!agent || !agent->mIsInHub)
        return;
    agent->mIsInHub = false;
    (agent->mPreviousInHub ? agent->mPreviousInHub->mNextInHub : mFirst) = agent->mNextInHub;
    (agent->mNextInHub ? agent->mNextInHub->mPreviousInHub : mLast) = agent->mPreviousInHub;
    agent->mNextInHub = agent->mPreviousInHub = nullptr;
}

void ListenerHub::notify(std::uint16_t type)
{
    std::deque<LifeNode> listeners;
    for (UAgent* agent = mFirst; agent; agent = agent->mNextInHub)
        listeners.emplace_back(agent);
    UEvent event(type, &mSelf);
    for (const LifeNode& node : listeners) {
        if (node.isAlive() && node.agent()->mIsInHub)
            node.agent()->event(&event);
    }
}
