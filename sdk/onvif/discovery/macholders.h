// The assignment of MACs to devices during a search.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"

#include <map>
#include <string>

namespace sdk::onvif {

/// Assigns each MAC to one device, since a MAC identifies a device in lists and a message may contain any
/// MAC. The device is the one with the MAC in the neighbour table of this host, otherwise the first one that
/// announced it. A second device at the same address, such as a factory-new device, does not get the MAC that
/// the neighbour table has for that address. Not thread-safe.
class MacHolders
{
public:
    /// Removes all assignments, for the start of a search.
    void clear();

    /// Clears the MACs of `device` that belong to another device, and corrects the identity of its service.
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
