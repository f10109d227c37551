// The state of a simulated site: its devices, its clock and the log of its requests.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/demo/site/deviceaddresses.h"
#include "sdk/demo/site/requestlog.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace sdk {
class Clock;
}

namespace sdk::demo {

/// The target of a local port of the port agent.
struct Tunnel
{
    QString mac;
    int devicePort;
    bool isBroken; ///< the local port is still open, but no data passes
};

/// Thread-safe. Devices are found by MAC, in upper or lower case.
class SiteState
{
public:
    SiteState(const SiteState &) = delete;
    SiteState &operator=(const SiteState &) = delete;

    [[nodiscard]] QString sceneTitle() const { return m_title; }
    [[nodiscard]] QString sceneDescription() const { return m_description; }
    [[nodiscard]] Clock &clock() const { return *m_clock; }
    [[nodiscard]] RequestLog &requests() { return m_requests; }

    /// Copies, in the order of the scene.
    [[nodiscard]] QList<SceneDevice> devices() const;
    [[nodiscard]] std::optional<SceneDevice> device(const QString &mac) const;

    /// Calls `visitor` with every device, without a copy. The site is locked during the call: `visitor` must
    /// not call it.
    void forEachDevice(const std::function<void(const SceneDevice &)> &visitor) const;

    /// The same for the devices that have one of the addresses (IPv4, or IPv6 as canonicalIpv6Address()
    /// writes it), in the order of the scene. Its time does not depend on the number of devices.
    void forEachDeviceAt(const QStringList &addresses,
                         const std::function<void(const SceneDevice &)> &visitor) const;

    /// Changes the device of the same MAC, or adds a new one to the site.
    void setDevice(const SceneDevice &device);

    /// Calls `change` with a device, whose MAC must not change, and with the addresses of all devices. The
    /// site is locked meanwhile: `change` must not call it. This and the following functions return false
    /// when the site has no such device.
    bool
    changeDevice(const QString &mac,
                 const std::function<void(SceneDevice &device, const DeviceAddresses &addresses)> &change);
    bool removeDevice(const QString &mac);
    bool setFault(const QString &mac, const FaultSetting &setting);
    bool clearFault(const QString &mac, Fault fault);

    /// The target of a local port that the port agent has opened; nullopt for any other port.
    [[nodiscard]] virtual std::optional<Tunnel> tunnel(int localPort) const = 0;

    /// The IPv4 address of this host in the local segment.
    [[nodiscard]] QString localAddress() const { return m_localAddress; }

    /// The address of this host that receives messages of `device`.
    [[nodiscard]] QString localAddressFor(const SceneDevice &device, int ipVersion) const;

protected:
    SiteState(const Scene &scene, std::shared_ptr<Clock> clock);
    virtual ~SiteState() = default;

    [[nodiscard]] const std::shared_ptr<Clock> &sharedClock() const { return m_clock; }

private:
    /// The index in m_devices; -1 for an unknown MAC. Requires m_mutex.
    [[nodiscard]] qsizetype indexOf(const QString &mac) const;

    const QString m_title;
    const QString m_description;
    const QString m_localAddress;
    const QString m_localIpv6;
    const std::shared_ptr<Clock> m_clock;
    RequestLog m_requests;
    mutable std::mutex m_mutex;
    QList<SceneDevice> m_devices;
    QHash<QString, qsizetype> m_indexByMac;
    DeviceAddresses m_addresses; ///< of m_devices
};

} // namespace sdk::demo
