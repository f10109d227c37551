#include "sdk/onvif/discovery/macholders.h"

namespace sdk::onvif {

void MacHolders::clear()
{
    m_ipv4Holders.clear();
    m_ipv6Holders.clear();
}

bool MacHolders::admits(const std::string &mac, const std::string &address, bool isNeighbour)
{
    auto &holders = address.find(':') == std::string::npos ? m_ipv4Holders : m_ipv6Holders;
    const auto [holder, isNew] =
        holders.try_emplace(mac, Holder{.address = address, .isNeighbour = isNeighbour});
    return isNew || holder->second.address == address || (holder->second.isNeighbour && isNeighbour);
}

} // namespace sdk::onvif
