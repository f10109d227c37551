// Error codes of the simulated network library for misuse by its caller. Failures of devices and networks are
// sdk::NetError.
#pragma once

#include <cstdint>

namespace sdk::demo {

/// Some callers of NetGetLastError set the highest bit of a code before they compare it with the codes of
/// NetError. The codes below differ from those of NetError with and without that bit.
enum class DemoError : std::uint32_t
{
    None = 0,
    NotPrepared = 0x1001, ///< the library is not initialised, or was released by NetCleanup
    WrongSize,     ///< the size field of a block is not the size of the block; a missing or too small buffer
    WrongCount,    ///< a count of addresses beyond the limit or below 0; NetSearchDeviceByIp: other than 1
    NoHandler,     ///< search or upgrade without a handler
    InsideHandler, ///< called from a handler, for whose end the operation would wait
    NoThread,      ///< the host provides no thread
};

} // namespace sdk::demo
