// Why a live stream of a device has ended.
#pragma once

#include <string_view>

namespace sdk::onvif {

enum class StreamEnd
{
    Stopped,           ///< by its owner
    BadUrl,            ///< no rtsp:// URL with a numeric address, or longer than a session can use
    BadAccount,        ///< the account or the password cannot be sent: too long, or with control characters
    Refused,           ///< wrong account or password
    NotFound,          ///< the device has no such stream
    Busy,              ///< the device serves no more streams
    Rejected,          ///< the device answered with another error, such as a missing right
    ConnectionRefused, ///< nobody listens at the port
    Unreachable,       ///< there is no way to the address
    NoAnswer,          ///< the device did not answer in time
    Redirected,        ///< the device names another place, which is not asked
    Oversized,         ///< the answer goes beyond what a session takes
    Malformed,         ///< the answer is none of the protocol
    Unsupported,       ///< no picture track that can be decoded, or no common transport
    NoKeyPicture,      ///< no picture came that needs no earlier one
    NoData,            ///< no pictures came any more
    Ended,             ///< the device ended the stream or the connection
    Failed,            ///< this computer could not do its part
};

/// The name of a reason, in English, for logs.
[[nodiscard]] std::string_view streamEndName(StreamEnd end);

} // namespace sdk::onvif
