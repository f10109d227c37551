#pragma once

#include <string>
#include <string_view>

namespace sdk::onvif {

/// A MAC address of any usual notation in the form "02:1a:c5:00:40:17". Empty if `text` is not a MAC address,
/// or if it is all zeros.
[[nodiscard]] std::string canonicalMac(std::string_view text);

} // namespace sdk::onvif
