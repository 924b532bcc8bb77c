#pragma once

#include "Export.h"

#include <cstddef>

/// Memory for request events: blocks of one size that one thread takes and another gives back, which is the
/// slow path of a general allocator.
///
/// The pool keeps a bounded number of blocks; what exceeds it comes from the heap. A thread that finds the
/// pool used up lets the GUI thread run once before it goes to the heap, so that a burst of asynchronous
/// calls stays within the pool. Threads: any. The pool is never destroyed.
class TOOLKIT_EXPORT EventPool {
public:
    static constexpr std::size_t BlockSize = 320;

    static void* allocate(std::size_t size);
    static void release(void* block, std::size_t size);
};
