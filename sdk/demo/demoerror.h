// Error codes that the simulated network library leaves for NetGetLastError.
#pragma once

#include <cstdint>

namespace sdk::demo {

enum class DemoError : std::uint32_t
{
    None = 0,
    NotPrepared = 1,   ///< NetInit has not been called, or NetCleanup has
    WrongSize = 2,     ///< the size field of a block is not the size of the block
    WrongCount = 3,    ///< more addresses than fit, or fewer than none
    NoHandler = 4,     ///< a search without a handler
    UnknownHandle = 5, ///< not the handle of a running search
    InsideHandler = 6, ///< called from a handler, where it would wait for itself
    NoThread = 7,      ///< the computer gives no more threads
};

} // namespace sdk::demo
