// The address of a stream.
#pragma once

#include "sdk/onvif/live/rtspstream.h"

#include <string>

namespace sdk::onvif {

/// What a session is opened with.
struct RtspAddress
{
    std::string host; ///< numeric, without brackets
    std::string url;  ///< with account and password: must never reach a log
};

/// Checks the URL and the account of an order. Returns what is wrong with them, if anything is; `address` is
/// set then as well as may be.
[[nodiscard]] std::optional<StreamEnd> readAddress(const RtspOrder &order, RtspAddress &address);

/// Whether two texts are the same numeric address.
[[nodiscard]] bool isSameAddress(const std::string &one, const std::string &other);

} // namespace sdk::onvif
