// The reason why a live stream of a device has ended.
#pragma once

#include <string_view>

namespace sdk::onvif {

/// Why a stream has ended, or could not be started.
enum class StreamEnd
{
    Stopped,           ///< by its owner
    BadUrl,            ///< not an rtsp:// URL with a numeric address, or too long
    BadAccount,        ///< the account or the password was not sent: too long, or an invalid character
    Refused,           ///< wrong account or password, or a login that the device no longer accepts
    NotFound,          ///< the device has no such stream
    Busy,              ///< the device has reached its limit of streams
    Rejected,          ///< the device responded with another error, such as a missing right
    ConnectionRefused, ///< the port is closed
    Unreachable,       ///< there is no route to the address
    NoResponse,        ///< the device did not respond in time
    Redirected,        ///< the device announces another address for the session or the data; it is not used
    Oversized,         ///< a response has too many lines, bytes or tracks
    Malformed,         ///< the response is not RTSP
    Unsupported,       ///< no decodable video track, no common transport, or no login method but plain text
                       ///< or an unknown digest
    NoKeyFrame,        ///< no key frame arrived within its timeout (RtspTimeouts::keyFrame, 20 s)
    NoData,            ///< no video packet arrived within its timeout (RtspTimeouts::silence, 10 s)
    Ended,             ///< the device ended the stream or the connection
    Failed,            ///< a failure of this host: no memory, or the container cannot be written
};

/// The reason as a short English phrase, such as "no key frame", for logs.
[[nodiscard]] std::string_view streamEndName(StreamEnd end);

} // namespace sdk::onvif
