// Which device has which MAC during a search.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"

#include <map>
#include <string>

namespace sdk::onvif {

/// A MAC identifies a device in lists, and a message can name any. So one device has it: the one that the
/// neighbour table of this computer shows with it, else the first one that named it. A second device at the
/// same address, as factory-new devices are, does not get the MAC that the neighbour table has for that
/// address. Not thread-safe.
class MacHolders
{
public:
    /// Begins again, as a search does.
    void clear();

    /// Clears the MACs of `device` that are another device's, and corrects the identity of its service.
    void admit(FoundDevice &device);

private:
    struct Holder
    {
        std::string address = {};
        std::string uuid = {};
        bool isNeighbour =
            false; ///< the MAC is in the neighbour table of this computer, not merely in a message
    };

    [[nodiscard]] bool admits(const std::string &mac, const Holder &device);

    /// By MAC, for each address family: a device answers over both.
    std::map<std::string, Holder> m_ipv4Holders;
    std::map<std::string, Holder> m_ipv6Holders;
};

} // namespace sdk::onvif
