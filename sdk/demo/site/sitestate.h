// The state of a simulated site: its devices, its clock and the log of its requests. DemoSite, the only
// concrete class, adds the libraries.
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
    QString mac;    ///< of the device
    int devicePort; ///< the mapped port of the device
    bool isBroken;  ///< the local port is still open, but no data passes
};

/// Thread-safe, by one lock. Devices are found by MAC, in upper or lower case; the site stores it in lower
/// case.
class SiteState
{
public:
    SiteState(const SiteState &) = delete;
    SiteState &operator=(const SiteState &) = delete;

    // Texts of the scene; may be empty.
    [[nodiscard]] QString sceneTitle() const { return m_title; }
    [[nodiscard]] QString sceneDescription() const { return m_description; }

    /// The clock of all times and waits of the site.
    [[nodiscard]] Clock &clock() const { return *m_clock; }

    /// The log, which has a separate lock.
    [[nodiscard]] RequestLog &requests() { return m_requests; }

    /// Copies of all devices, in the order of the scene.
    [[nodiscard]] QList<SceneDevice> devices() const;

    /// A copy of the device; nullopt for an unknown MAC.
    [[nodiscard]] std::optional<SceneDevice> device(const QString &mac) const;

    /// Calls `visitor` with every device, in the order of the scene. The devices are not copied: a reference
    /// is valid during its call. The site is locked meanwhile: `visitor` must not call it.
    void forEachDevice(const std::function<void(const SceneDevice &)> &visitor) const;

    /// The same for the devices that have one of the addresses (IPv4, or IPv6 as canonicalIpv6Address()
    /// writes it), each once. The duration does not depend on the number of devices of the site.
    void forEachDeviceAt(const QStringList &addresses,
                         const std::function<void(const SceneDevice &)> &visitor) const;

    /// Replaces the device of the same MAC, or adds `device` at the end of the site. Stores a copy.
    void setDevice(const SceneDevice &device);

    // These four return false, without an effect, when the site has no such device.

    /// Calls `change` once with the device, which it may change except for its MAC, and with the addresses of
    /// all devices before the change. The site is locked meanwhile: `change` must not call it.
    bool
    changeDevice(const QString &mac,
                 const std::function<void(SceneDevice &device, const DeviceAddresses &addresses)> &change);

    /// Removes the device. Requests of its sessions then fail as for an unreachable device.
    bool removeDevice(const QString &mac);

    /// Adds the fault to the device, or replaces the parameter of that fault.
    bool setFault(const QString &mac, const FaultSetting &setting);

    /// Also returns true if the device does not have the fault.
    bool clearFault(const QString &mac, Fault fault);

    /// The target of a local port that the port agent has opened; nullopt for any other port.
    [[nodiscard]] virtual std::optional<Tunnel> tunnel(int localPort) const = 0;

    /// The IPv4 address of this host in the local segment.
    [[nodiscard]] QString localAddress() const { return m_localAddress; }

    /// The address of this host that receives messages of `device` over `ipVersion` (4 or 6). For IPv4 this
    /// is 127.0.0.1 if the device has a loopback address, otherwise localAddress(). For IPv6 it is the
    /// localIpv6 of the scene.
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
