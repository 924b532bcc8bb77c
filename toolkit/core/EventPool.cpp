#include "EventPool.h"

#include <atomic>
#include <new>
#include <sched.h>

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

struct Block {
    Block* next;
};

constexpr int MaximumBlocks = 1024;
constexpr int ReturnedAtOnce = 32;

std::atomic<Block*> gFree = nullptr; // given back, for whoever takes all of it
std::atomic<int> gBlocks = 0;        // in use or free

void giveBack(Block* first, Block* last)
{
    last->next = gFree.load(std::memory_order_relaxed);
    while (!gFree.compare_exchange_weak(last->next, first, std::memory_order_release, std::memory_order_relaxed)) { }
}

/// What a thread has taken and not used yet, and what it has freed and not given back yet. Whole chains
/// change hands, so the shared list needs no lock and knows no ABA problem.
struct Cache {
    Block* free = nullptr;
    Block* freed = nullptr;
    Block* oldestFreed = nullptr;
    int freedCount = 0;

    ~Cache()
    {
        while (free) {
            Block* block = free;
            free = block->next;
            giveBack(block, block);
        }
        returnFreed();
    }

    void returnFreed()
    {
        if (freed)
            giveBack(freed, oldestFreed);
        freed = nullptr;
        freedCount = 0;
    }
};

thread_local Cache tCache;

bool refill(Cache& cache)
{
    cache.free = gFree.exchange(nullptr, std::memory_order_acquire);
    return cache.free != nullptr;
}

Block* newBlock()
{
    gBlocks.fetch_add(1, std::memory_order_relaxed);
    return static_cast<Block*>(::operator new(EventPool::BlockSize));
}

}

void* EventPool::allocate(std::size_t size)
{
    if (size > BlockSize)
        return ::operator new(size);
    Cache& cache = tCache;
    if (!cache.free && !refill(cache)) {
        if (gBlocks.load(std::memory_order_relaxed) < MaximumBlocks)
            return newBlock();
        sched_yield();
        if (!refill(cache))
            return newBlock();
    }
    Block* block = cache.free;
    cache.free = block->next;
    return block;
}

void EventPool::release(void* memory, std::size_t size)
{
    if (size > BlockSize || gBlocks.load(std::memory_order_relaxed) > MaximumBlocks) {
        if (size <= BlockSize)
            gBlocks.fetch_sub(1, std::memory_order_relaxed);
        ::operator delete(memory);
        return;
    }
    Cache& cache = tCache;
    Block* block = static_cast<Block*>(memory);
    block->next = cache.freed;
    if (!cache.freed)
        cache.oldestFreed = block;
    cache.freed = block;
    if (++cache.freedCount == ReturnedAtOnce)
        cache.returnFreed();
}

#endif
