// The reason why a live stream of a device has ended.
#pragma once

#include <string_view>

namespace sdk::onvif {

enum class StreamEnd
{
    Stopped,           ///< by its owner
    BadUrl,            ///< not an rtsp:// URL with a numeric address, or too long
    BadAccount,        ///< the account or the password cannot be sent: too long, or an invalid character
    Refused,           ///< wrong account or password
    NotFound,          ///< the device has no such stream
    Busy,              ///< the device has reached its limit of streams
    Rejected,          ///< the device responded with another error, such as a missing right
    ConnectionRefused, ///< the port is closed
    Unreachable,       ///< there is no route to the address
    NoResponse,        ///< the device did not respond in time
    Redirected,        ///< the device redirects to another address, which is not used
    Oversized,         ///< the response exceeds the limits of a session
    Malformed,         ///< the response is not RTSP
    Unsupported,       ///< no decodable video track, or no common transport
    NoKeyFrame,        ///< no key frame arrived in time
    NoData,            ///< no more frames arrived
    Ended,             ///< the device ended the stream or the connection
    Failed,            ///< a failure of this host
};

/// The name of a reason, in English, for logs.
[[nodiscard]] std::string_view streamEndName(StreamEnd end);

} // namespace sdk::onvif
