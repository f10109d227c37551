// Error codes of the simulated libraries for misuse. Failures of devices and networks are sdk::NetError.
#pragma once

#include <cstdint>

namespace sdk::demo {

/// Some callers of NetGetLastError set the highest bit of a code before they compare it with the codes of
/// NetError. The codes below differ from those of NetError with and without that bit.
enum class DemoError : std::uint32_t
{
    None = 0,
    NotPrepared = 0x1001, ///< the library is not initialised, or was released by NetCleanup
    WrongSize,     ///< the size field of a block is not the size of the block, or a buffer is too small
    WrongCount,    ///< too many addresses, or a negative number; other than one for NetSearchDeviceByIp
    NoHandler,     ///< search or upgrade without a handler
    InsideHandler, ///< called from a handler, which would be a deadlock
    NoThread,      ///< the host provides no thread
};

} // namespace sdk::demo
