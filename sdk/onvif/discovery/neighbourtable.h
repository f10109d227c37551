// The neighbour table of this computer: which MAC address answers for a network address.
#pragma once

#include <string>
#include <unordered_map>

namespace sdk::onvif {

/// MAC addresses ("02:1a:c5:00:40:17") by the text of the network address, of both address families, as the
/// operating system holds them now. Only complete entries. Empty where the system gives no such table.
[[nodiscard]] std::unordered_map<std::string, std::string> neighbourTable();

} // namespace sdk::onvif
