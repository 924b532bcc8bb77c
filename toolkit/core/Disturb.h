#pragma once

#include "Export.h"

#include <cstdint>

/// The hook that locks, waits and posts call, so that a test can shift the order of threads. Without
/// TOOLKIT_DISTURB it is nothing at all.
#if TOOLKIT_DISTURB

/// Seeds the disturbance: at each hook a thread yields or sleeps a little, as the seed says. 0 stops it.
TOOLKIT_EXPORT void setDisturbanceSeed(std::uint64_t seed);
TOOLKIT_EXPORT void disturb();

#else

inline void setDisturbanceSeed(std::uint64_t) { }
inline void disturb() { }

#endif
