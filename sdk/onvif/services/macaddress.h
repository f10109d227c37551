// The form of MAC addresses in sdk/onvif.
#pragma once

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The MAC in `text` in the form "02:1a:c5:00:40:17" (lower case, with colons). `text` has 12 hexadecimal
/// digits in either case; the characters ':', '-' and '.' are ignored. Empty for any other text and for a MAC
/// of zeros.
[[nodiscard]] std::string canonicalMac(std::string_view text);

} // namespace sdk::onvif
