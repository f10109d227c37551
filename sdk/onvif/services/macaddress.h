// The form of MAC addresses in this folder.
#pragma once

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The MAC of `text` in the form "02:1a:c5:00:40:17". `text` has 12 hexadecimal digits; the characters ':',
/// '-' and '.' are ignored. Empty for any other text and for a MAC of zeros.
[[nodiscard]] std::string canonicalMac(std::string_view text);

} // namespace sdk::onvif
