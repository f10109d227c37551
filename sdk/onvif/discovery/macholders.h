// The assignment of MACs to devices during a search.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"

#include <map>
#include <string>

namespace sdk::onvif {

/// Assigns each MAC to one of the devices that a search has found, since a MAC identifies a device in lists
/// and a message may contain any MAC. The device is the one with the MAC in the neighbour table of this host
/// (FoundDevice::isNeighbour), otherwise the first one that announced it. A device is known by its address
/// and UUID. IPv4 and IPv6 addresses have separate assignments, since a device responds over both. A second
/// device at the same address, such as a factory-new device, does not get the MAC that the neighbour table
/// has for that address. Not thread-safe.
class MacHolders
{
public:
    /// Removes all assignments, for the start of a search.
    void clear();

    /// Assigns the MACs of `device` that are free. Clears FoundDevice::mac and the announced MAC in `device`
    /// if they belong to another device. Sets the identity of its service accordingly. Devices that were
    /// admitted before keep the MACs in their objects.
    void admit(FoundDevice &device);

private:
    struct Holder
    {
        std::string address = {};
        std::string uuid = {};
        bool isNeighbour = false; ///< the MAC is in the neighbour table of this host, not only in a message
    };

    [[nodiscard]] bool admits(const std::string &mac, const Holder &device);

    /// By MAC, for each address family: a device responds over both.
    std::map<std::string, Holder> m_ipv4Holders;
    std::map<std::string, Holder> m_ipv6Holders;
};

} // namespace sdk::onvif
