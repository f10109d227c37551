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

/// What a RealDataHandler is called with.
enum class RealDataType : std::uint32_t
{
    Stream = 0, ///< bytes of the stream: Matroska without an end, as streams::MatroskaWriter makes it
    End = 1,    ///< no bytes: the stream has ended by itself, `parameter` is a StreamEndReason
};

/// Why a live stream has ended that its caller did not stop.
enum class StreamEndReason : std::int32_t
{
    ConnectionLost = 1, ///< the device does not respond any more
    EndedByDevice = 2,  ///< the device has closed the stream
    NoFrames = 3,       ///< the device sends nothing that can be decoded
    Refused = 4,        ///< the device no longer accepts the login
    Malformed = 5,      ///< the device sends what is not a stream
    Failed = 6,         ///< this computer could not do its part
};

/// Called with a piece of a live stream: `size` bytes at `data`, which end with the call. Pieces come in
/// their order, cut anywhere, one at a time for each stream. `dataType` is a RealDataType. The stream starts
/// again with another header where it must; `parameter` belongs to the library unless the type says
/// otherwise. RealDataType::End is the last call, at most once: to the handler that is set when the stream
/// ends, else to the next one.
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
