// Error codes of the simulated libraries for misuse. Failures of devices and networks are sdk::NetError.
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
    WrongCount,    ///< too many addresses, or a negative number
    NoHandler,     ///< search without a handler
    InsideHandler, ///< called from a handler, which would be a deadlock
    NoThread,      ///< the host provides no thread
};

} // namespace sdk::demo
