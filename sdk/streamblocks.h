// Blocks of live streams: their kinds, their data, and which channels of a device have a camera.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// Which stream of a channel NetStartRealStream opens.
enum class LiveStreamKind : std::int32_t
{
    Main = 0,
    Sub = 1,
};

/// Called with a piece of a live stream: `size` bytes at `data`, which end with the call. Pieces come in
/// their order, cut anywhere, one at a time for each stream. `dataType` is 0 for the bytes of the stream:
/// Matroska without an end, as streams::MatroskaWriter makes it. It starts again with another header where it
/// must; `parameter` belongs to the library.
using RealDataHandler = void (*)(std::int64_t streamHandle, std::uint32_t dataType, const std::uint8_t *data,
                                 std::uint32_t size, std::int64_t parameter, void *user);

inline constexpr std::size_t maximumChannelStates = 1024;

enum class ChannelConnection : std::int32_t
{
    Unknown = 0, ///< the device does not say
    Connected = 1,
    NotConnected = 2, ///< nothing is plugged in, or the camera behind the channel does not answer
};

/// State of one channel of a device.
struct ChannelState
{
    std::int32_t channel; ///< from 0
    ChannelConnection connection;
};
static_assert(sizeof(ChannelState) == 8);

/// Filled by NetQueryChannelStates.
struct ChannelStates
{
    std::uint32_t size;  ///< sizeof(ChannelStates), set by the caller
    std::uint32_t count; ///< entries of `states` that are filled, up to maximumChannelStates
    std::array<ChannelState, maximumChannelStates> states;
};
static_assert(sizeof(ChannelStates) == 8200);
static_assert(offsetof(ChannelStates, states) == 8);

} // namespace sdk
