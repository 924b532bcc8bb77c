#include "Semaphore.h"

#include "Threadable.h"

Semaphore::Semaphore(int state, int maximum, bool reentrant)
    : mGate(state > 0 ? static_cast<std::uint32_t>(state) : 0, maximum > 0 ? static_cast<std::uint32_t>(maximum) : 1)
    , mReentrant(reentrant)
{
}

bool Semaphore::takeAsOwner(int milliseconds)
{
    const unsigned int self = Threadable::currentThreadId();
    if (mOwner == self) {
        ++mDepth;
        return true;
    }
    if (!mGate.pass(milliseconds))
        return false;
    mOwner = self;
    mDepth = 1;
    return true;
}

bool Semaphore::leaveAsOwner()
{
    if (mDepth > 1) {
        --mDepth;
        return false;
    }
    mDepth = 0;
    mOwner = 0;
    return true;
}
