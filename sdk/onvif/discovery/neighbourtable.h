// The neighbour table of this host: the MAC addresses of network addresses.
#pragma once

#include <string>
#include <unordered_map>

namespace sdk::onvif {

/// MAC addresses ("02:1a:c5:00:40:17") by network address ("192.168.1.101", "fe80::1%eth0"), of both address
/// families, from the present table of the operating system. The table has the addresses of local networks
/// with which this host has communicated recently. Entries whose MAC is still being resolved are omitted.
/// Empty on systems other than Linux; incomplete after a failure. Sends nothing to the network. Any thread
/// may call it.
[[nodiscard]] std::unordered_map<std::string, std::string> neighbourTable();

} // namespace sdk::onvif
