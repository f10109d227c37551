// Error codes that the simulated libraries leave for misuse; what devices and networks fail with is
// sdk::NetError.
#pragma once

#include <cstdint>

namespace sdk::demo {

/// Callers of NetGetLastError set the highest bit before they compare, so the codes stay apart from those of
/// NetError with that bit as well.
enum class DemoError : std::uint32_t
{
    None = 0,
    NotPrepared = 0x1001, ///< NetInit has not been called, or NetCleanup has
    WrongSize,     ///< the size field of a block is not the size of the block, or a buffer is too small
    WrongCount,    ///< more addresses than fit, or fewer than none
    NoHandler,     ///< a search without a handler
    InsideHandler, ///< called from a handler, where it would wait for itself
    NoThread,      ///< the computer gives no more threads
};

} // namespace sdk::demo
