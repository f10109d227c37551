// Blocks of live streams: their kinds, their data, and the states of a device's channels.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The stream of a channel that NetStartRealStream opens.
enum class LiveStreamKind : std::int32_t
{
    Main = 0,
    Sub = 1,
};

/// The type of a call of a RealDataHandler.
enum class RealDataType : std::uint32_t
{
    Stream = 0, ///< bytes of the stream: endless Matroska, which starts with a header and a key frame
    End = 1,    ///< the stream has ended, not by its caller: `size` is 0 and `parameter` is a StreamEndReason
};

/// The reason of the end of a live stream that its caller did not stop.
enum class StreamEndReason : std::int32_t
{
    ConnectionLost = 1, ///< the device no longer responds
    EndedByDevice = 2,  ///< the device has closed the stream
    NoFrames = 3,       ///< the device sends no decodable frames
    Refused = 4,        ///< the device no longer accepts the login
    Malformed = 5,      ///< the data of the device are not a stream
    Failed = 6,         ///< a failure of the host
};

/// Called with a chunk of a live stream: `size` bytes at `data`, which are valid during the call. Chunks
/// arrive in order, may be split anywhere, and are passed one at a time for each stream. A stream may start
/// again with another header, within or between chunks. `dataType` is a RealDataType. `parameter` has a
/// meaning for RealDataType::End only. End is the last call of a stream, made at most once: to the handler
/// that is set when the stream ends; if none is set, to the next one that is set. The handle stays valid
/// until NetStopRealStream.
using RealDataHandler = void (*)(std::int64_t streamHandle, std::uint32_t dataType, const std::uint8_t *data,
                                 std::uint32_t size, std::int64_t parameter, void *user);

inline constexpr std::size_t maximumChannelStates = 1024;

/// Whether a channel has a camera.
enum class ChannelConnection : std::int32_t
{
    Unknown = 0, ///< not reported by the device
    Connected = 1,
    NotConnected = 2, ///< no camera is connected, or it does not respond
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
