#include "sdk/demo/site/sitestate.h"

#include "sdk/clock.h"

#include <set>

using namespace Qt::StringLiterals;

namespace sdk::demo {

SiteState::SiteState(const Scene &scene, std::shared_ptr<Clock> clock)
    : m_title(scene.title), m_description(scene.description), m_localAddress(scene.localAddress),
      m_localIpv6(scene.localIpv6), m_clock(std::move(clock))
{
    m_devices.reserve(scene.devices.size());
    for (const SceneDevice &device : scene.devices)
        setDevice(device);
}

QList<SceneDevice> SiteState::devices() const
{
    const std::lock_guard lock(m_mutex);
    return m_devices;
}

std::optional<SceneDevice> SiteState::device(const QString &mac) const
{
    const std::lock_guard lock(m_mutex);
    const qsizetype index = indexOf(mac);
    return index < 0 ? std::nullopt : std::optional(m_devices.at(index));
}

void SiteState::forEachDevice(const std::function<void(const SceneDevice &)> &visitor) const
{
    const std::lock_guard lock(m_mutex);
    for (const SceneDevice &device : m_devices)
        visitor(device);
}

void SiteState::forEachDeviceAt(const QStringList &addresses,
                                const std::function<void(const SceneDevice &)> &visitor) const
{
    const std::lock_guard lock(m_mutex);
    std::set<qsizetype> indexes;
    for (const QString &address : addresses) {
        for (const QString &mac : m_addresses.macsAt(address))
            indexes.insert(indexOf(mac));
    }
    for (const qsizetype index : indexes)
        visitor(m_devices.at(index));
}

void SiteState::setDevice(const SceneDevice &device)
{
    const std::lock_guard lock(m_mutex);
    SceneDevice lowerCase = device;
    lowerCase.mac = device.mac.toLower();
    const qsizetype index = indexOf(lowerCase.mac);
    if (index >= 0) {
        m_addresses.remove(m_devices.at(index));
        m_devices[index] = lowerCase;
    } else {
        m_indexByMac.insert(lowerCase.mac, m_devices.size());
        m_devices.append(lowerCase);
    }
    m_addresses.add(lowerCase);
}

bool SiteState::removeDevice(const QString &mac)
{
    const std::lock_guard lock(m_mutex);
    const qsizetype index = indexOf(mac);
    if (index < 0)
        return false;
    m_addresses.remove(m_devices.at(index));
    m_devices.removeAt(index);
    m_indexByMac.remove(mac.toLower());
    for (qsizetype later = index; later < m_devices.size(); ++later)
        m_indexByMac[m_devices.at(later).mac] = later;
    return true;
}

bool SiteState::changeDevice(
    const QString &mac,
    const std::function<void(SceneDevice &device, const DeviceAddresses &addresses)> &change)
{
    const std::lock_guard lock(m_mutex);
    const qsizetype index = indexOf(mac);
    if (index < 0)
        return false;
    SceneDevice &device = m_devices[index];
    const SceneDevice before = device;
    change(device, m_addresses);
    if (device.address != before.address || device.ipv6 != before.ipv6) {
        m_addresses.remove(before);
        m_addresses.add(device);
    }
    return true;
}

bool SiteState::setFault(const QString &mac, const FaultSetting &setting)
{
    return changeDevice(mac, [&setting](SceneDevice &device, const DeviceAddresses &) {
        device.faults.removeIf(
            [&setting](const FaultSetting &other) { return other.fault == setting.fault; });
        device.faults.append(setting);
    });
}

bool SiteState::clearFault(const QString &mac, Fault fault)
{
    return changeDevice(mac,
                        [fault](SceneDevice &device, const DeviceAddresses &) { device.clearFault(fault); });
}

QString SiteState::localAddressFor(const SceneDevice &device, int ipVersion) const
{
    if (ipVersion == 6)
        return m_localIpv6;
    return device.address.startsWith(u"127.") ? u"127.0.0.1"_s : m_localAddress;
}

qsizetype SiteState::indexOf(const QString &mac) const
{
    return m_indexByMac.value(mac.toLower(), -1);
}

} // namespace sdk::demo
