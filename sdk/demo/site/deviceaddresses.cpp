#include "sdk/demo/site/deviceaddresses.h"

#include <algorithm>

namespace sdk::demo {

void DeviceAddresses::add(const SceneDevice &device)
{
    for (const QString &address : {device.address, device.ipv6}) {
        if (!address.isEmpty())
            m_macs[address].append(device.mac);
    }
}

void DeviceAddresses::remove(const SceneDevice &device)
{
    for (const QString &address : {device.address, device.ipv6}) {
        const auto found = m_macs.find(address);
        if (found == m_macs.end())
            continue;
        found->removeOne(device.mac);
        if (found->isEmpty())
            m_macs.remove(address);
    }
}

bool DeviceAddresses::isTaken(const QString &address, const SceneDevice &device) const
{
    const QStringList macs = macsAt(address);
    return std::any_of(macs.begin(), macs.end(), [&device](const QString &mac) { return mac != device.mac; });
}

} // namespace sdk::demo
