#include "EventPool.h"

#include <atomic>
#include <mutex>
#include <new>
#include <sched.h>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#define POOL_IS_HEAP 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define POOL_IS_HEAP 1
#endif
#endif

#if POOL_IS_HEAP

// The address sanitizer must see every event come and go, or a use after the end stays hidden.
void* EventPool::allocate(std::size_t size)
{
    return ::operator new(size);
}

void EventPool::release(void* block, std::size_t)
{
    ::operator delete(block);
}

#else

namespace {

/// A free block. Blocks change hands in chains, so that a thread meets the shared list once for many events.
struct Block {
    Block* next;
    Block* nextChain; // in the first block of a chain that stands in the shared list
};

constexpr int MaximumBlocks = 512;
constexpr int ChainLength = 16;
constexpr int PatienceBlocks = 64; // from the heap after a yield that brought none, before the next yield

std::atomic<int> gBlocks = 0; // in use or free

/// The free chains, for every thread. Never destroyed: threads may still post at exit.
struct SharedChains {
    std::mutex mutex;
    Block* first = nullptr;
};

SharedChains& sharedChains()
{
    static SharedChains& chains = *new SharedChains;
    return chains;
}

void giveChain(Block* chain)
{
    SharedChains& shared = sharedChains();
    std::lock_guard lock(shared.mutex);
    chain->nextChain = shared.first;
    shared.first = chain;
}

Block* takeChain()
{
    SharedChains& shared = sharedChains();
    std::lock_guard lock(shared.mutex);
    Block* chain = shared.first;
    if (chain)
        shared.first = chain->nextChain;
    return chain;
}

/// What a thread has taken and not used yet, and what it has freed and not given on yet: a chain each at most.
/// It needs no destructor, so it may be asked at any time, also by what dies behind the keeper.
struct Cache {
    Block* free;
    Block* freed;
    int freedCount;
    int patience;
    bool isClosed; // the thread ends: nothing is kept any more

    void giveFreed()
    {
        if (freed)
            giveChain(freed);
        freed = nullptr;
        freedCount = 0;
    }
    void close()
    {
        isClosed = true;
        if (free)
            giveChain(std::exchange(free, nullptr));
        giveFreed();
    }
};

constinit thread_local Cache tCache = {};

/// Closes the cache of a thread that ends.
struct CacheKeeper {
    ~CacheKeeper() { tCache.close(); }
    void watch() { }
};

thread_local CacheKeeper tCacheKeeper;

Block* newBlock()
{
    gBlocks.fetch_add(1, std::memory_order_relaxed);
    return static_cast<Block*>(::operator new(EventPool::BlockSize));
}

/// The pool is used up: the loop is behind. Once in a while it gets the processor, so that it catches up.
Block* blockWhenEmpty(Cache& cache)
{
    if (gBlocks.load(std::memory_order_relaxed) >= MaximumBlocks && --cache.patience < 0) {
        sched_yield();
        if (Block* chain = takeChain()) {
            cache.patience = 0;
            cache.free = chain->next;
            return chain;
        }
        cache.patience = PatienceBlocks;
    }
    return newBlock();
}

}

void* EventPool::allocate(std::size_t size)
{
    if (size > BlockSize)
        return ::operator new(size);
    Cache& cache = tCache;
    if (!cache.free && !cache.isClosed) {
        tCacheKeeper.watch();
        cache.free = takeChain();
    }
    Block* block = cache.free;
    if (!block)
        return cache.isClosed ? newBlock() : blockWhenEmpty(cache);
    cache.free = block->next;
    return block;
}

void EventPool::release(void* memory, std::size_t size)
{
    if (size > BlockSize) {
        ::operator delete(memory);
        return;
    }
    Cache& cache = tCache;
    if (gBlocks.load(std::memory_order_relaxed) > MaximumBlocks || cache.isClosed) {
        gBlocks.fetch_sub(1, std::memory_order_relaxed);
        ::operator delete(memory);
        return;
    }
    if (!cache.freed)
        tCacheKeeper.watch();
    Block* block = static_cast<Block*>(memory);
    block->next = cache.freed;
    cache.freed = block;
    if (++cache.freedCount == ChainLength)
        cache.giveFreed();
}

#endif
