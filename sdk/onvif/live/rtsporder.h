// The parameters of a live stream over RTSP.
#pragma once

#include <chrono>
#include <string>

namespace sdk::onvif {

/// Timeouts of a live stream, in real time. One that passes ends the stream.
struct RtspTimeouts
{
    std::chrono::milliseconds response{5000};  ///< from the start until the device plays
    std::chrono::milliseconds keyFrame{20000}; ///< after the device plays, until the first key frame
    std::chrono::milliseconds silence{10000};  ///< between two video packets, and until the first one
};

/// The parameters of a stream.
struct RtspOrder
{
    /// rtsp://ADDRESS[:PORT][/PATH][?QUERY]. The address is numeric, IPv6 in brackets: host names are not
    /// resolved. An account in it is an error. The path with the query has up to 1000 bytes. The port is 554
    /// if the URL has none.
    std::string url;
    std::string account;  ///< UTF-8, without colons, quotation marks, backslashes and control characters;
                          ///< empty for no login
    std::string password; ///< UTF-8, without control characters; with the account up to 126 bytes, where
                          ///< each of the characters %:@/?#[] counts as three
    RtspTimeouts timeouts;
};

} // namespace sdk::onvif
