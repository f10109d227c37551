// Which address has which MAC during a search.
#pragma once

#include <map>
#include <string>

namespace sdk::onvif {

/// A MAC identifies a device in lists, and a message can name any. So the address that a MAC was first seen
/// with keeps it, and a device at another address that names it is listed without a MAC. Not thread-safe.
class MacHolders
{
public:
    /// Begins again, as a search does.
    void clear();

    /// Whether the device at `address` may have `mac`. `isNeighbour` says that the MAC is in the neighbour
    /// table of this computer, not merely in a message: two such addresses are of one device.
    [[nodiscard]] bool admits(const std::string &mac, const std::string &address, bool isNeighbour);

private:
    struct Holder
    {
        std::string address = {};
        bool isNeighbour = false;
    };

    /// By MAC, for each address family: a device answers over both.
    std::map<std::string, Holder> m_ipv4Holders;
    std::map<std::string, Holder> m_ipv6Holders;
};

} // namespace sdk::onvif
