#pragma once

#include <string>
#include <string_view>

namespace sdk::onvif {

/// A MAC address of any usual spelling as "02:1a:c5:00:40:17". Empty if `text` is none, or one of zeros.
[[nodiscard]] std::string canonicalMac(std::string_view text);

} // namespace sdk::onvif
