// The network interfaces of this host for the report of a search.
#pragma once

#include <string>
#include <vector>

namespace sdk::onvif {

/// An interface with one of its addresses.
struct InterfaceState
{
    std::string name = {};
    std::string address = {};   ///< IPv4, or link-local IPv6 with its interface ("fe80::1%eth0"); empty if
                                ///< there is none
    int prefixLength = 0;       ///< of `address`; 0 without one
    bool isUp = false;          ///< enabled in the operating system
    bool hasLink = false;       ///< a cable or a peer is connected
    bool sendsToGroups = false; ///< can send multicast
    bool isLoopback = false;
};

/// The present interfaces, also those that are down. One entry for each IPv4 address and each link-local IPv6
/// address: a search sends from these. An Ethernet or radio interface without such an address has one entry
/// without an address. Empty if the operating system reports an error.
[[nodiscard]] std::vector<InterfaceState> interfaceStates();

/// True if `address` is in the network of `interface`. False unless both addresses are IPv4 addresses.
[[nodiscard]] bool isInNetwork(const std::string &address, const InterfaceState &interface);

} // namespace sdk::onvif
