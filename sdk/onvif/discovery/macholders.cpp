#include "sdk/onvif/discovery/macholders.h"

namespace sdk::onvif {

void MacHolders::clear()
{
    m_ipv4Holders.clear();
    m_ipv6Holders.clear();
}

void MacHolders::admit(FoundDevice &device)
{
    Holder holder = {
        .address = device.address, .uuid = device.announcement.uuid, .isNeighbour = device.isNeighbour};
    if (!device.mac.empty() && !admits(device.mac, holder)) {
        device.mac.clear();
        device.isNeighbour = false;
    }
    holder.isNeighbour = false;
    if (device.mac.empty() && !device.announcement.mac.empty() && !admits(device.announcement.mac, holder))
        device.announcement.mac.clear();
    device.service.identity = identityOf(device);
}

bool MacHolders::admits(const std::string &mac, const Holder &device)
{
    auto &holders = device.address.find(':') == std::string::npos ? m_ipv4Holders : m_ipv6Holders;
    const auto [entry, isNew] = holders.try_emplace(mac, device);
    Holder &holder = entry->second;
    if (isNew)
        return true;
    const bool isSameDevice = holder.uuid == device.uuid;
    if (holder.address == device.address)
        return isSameDevice || holder.uuid.empty() || device.uuid.empty();
    if (!device.isNeighbour)
        return false;
    // Two such addresses belong to one device. A device that only announced the MAC loses it.
    holder = device;
    return true;
}

} // namespace sdk::onvif
