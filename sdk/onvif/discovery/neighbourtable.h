// The neighbour table of this host: the MAC addresses of network addresses.
#pragma once

#include <string>
#include <unordered_map>

namespace sdk::onvif {

/// MAC addresses in the form of canonicalMac() by network address in the form of addressText(), of both
/// address families, from the present table of the operating system. Entries whose MAC is still being
/// resolved are omitted. Empty where the system provides no such table. Sends nothing to the network.
[[nodiscard]] std::unordered_map<std::string, std::string> neighbourTable();

} // namespace sdk::onvif
