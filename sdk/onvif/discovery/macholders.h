// The assignment of MACs to devices during a search.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"

#include <map>
#include <string>

namespace sdk::onvif {

/// Assigns each MAC to one of the devices that a search has found, since a MAC identifies a device in lists
/// and a message may contain any MAC. The device is the one with the MAC in the neighbour table of this host
/// (FoundDevice::isNeighbour), otherwise the first one that announced it. A device with the MAC in the
/// neighbour table takes it from a device that only announced it. Several addresses with one MAC in the
/// neighbour table belong to one device: all of them have the MAC.
///
/// A device is known by its address and UUID; without a UUID, by its address alone. IPv4 and IPv6 addresses
/// have separate assignments, since a device responds over both. A second device at the same address, such as
/// a factory-new device, does not get the MAC that the neighbour table has for that address. Not thread-safe.
class MacHolders
{
public:
    /// Removes all assignments, for the start of a search.
    void clear();

    /// Claims FoundDevice::mac for `device`. If it belongs to another device, clears it and `isNeighbour`. If
    /// `mac` is empty then, claims the announced MAC instead, and clears it if it belongs to another device;
    /// otherwise the announced MAC is neither claimed nor changed. Sets the identity of the service of
    /// `device` accordingly. Objects that were admitted before are not changed, also if their device loses a
    /// MAC.
    void admit(FoundDevice &device);

private:
    struct Holder
    {
        std::string address = {};
        std::string uuid = {};
        bool isNeighbour = false; ///< the MAC is in the neighbour table of this host, not only in a message
    };

    /// Claims a MAC, which is not empty. Returns false, without a change, if it belongs to another device.
    [[nodiscard]] bool admits(const std::string &mac, const Holder &device);

    // By MAC, for each address family: a device responds over both.
    std::map<std::string, Holder> m_ipv4Holders;
    std::map<std::string, Holder> m_ipv6Holders;
};

} // namespace sdk::onvif
