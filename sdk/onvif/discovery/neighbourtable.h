// The neighbour table of this host: the MAC addresses of network addresses.
#pragma once

#include <string>
#include <unordered_map>

namespace sdk::onvif {

/// MAC addresses ("02:1a:c5:00:40:17") by network address, of both address families, from the present table
/// of the operating system. Complete entries only. Empty where the system provides no such table.
[[nodiscard]] std::unordered_map<std::string, std::string> neighbourTable();

} // namespace sdk::onvif
