// The address of a stream.
#pragma once

#include "sdk/onvif/live/rtsporder.h"
#include "sdk/onvif/live/streamend.h"

#include <optional>
#include <string>

namespace sdk::onvif {

/// The address that a session is opened with.
struct RtspAddress
{
    std::string host; ///< numeric, without brackets
    std::string url;  ///< with account and password: must never reach a log
};

/// Checks the URL and the account of an order against the rules of RtspOrder: rtsp:// with a numeric address
/// and without an account; no control characters; no colon, quotation mark or backslash in the account;
/// limited lengths. Fills `address`. Returns StreamEnd::BadUrl or BadAccount on an error, otherwise nothing.
/// On an error, `address` is set as far as the URL could be read.
[[nodiscard]] std::optional<StreamEnd> readAddress(const RtspOrder &order, RtspAddress &address);

/// True if both strings are the same numeric address, regardless of its spelling and of an interface behind
/// "%". False if one of them is not a numeric address.
[[nodiscard]] bool isSameAddress(const std::string &one, const std::string &other);

} // namespace sdk::onvif
