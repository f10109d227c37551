// A whole simulated site in this process: try the tool, train, reproduce a fault.
#pragma once

#include "sdk/demo/deviceaddresses.h"
#include "sdk/demo/requestrecord.h"
#include "sdk/demo/scene.h"
#include "sdk/sdklibraries.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace sdk::demo {

class DemoNetLibrary;
class DemoP2PAgentLibrary;
class HttpPort;
class HttpResponder;

/// Thread-safe. Devices are found by MAC, in upper or lower case. The libraries keep the site alive; the last
/// of them must not be released inside a handler.
class DemoSite : public std::enable_shared_from_this<DemoSite>
{
public:
    /// Names that open() takes, the default one first: "office", ..., "fleet:N".
    [[nodiscard]] static QStringList knownScenes();

    /// Opens a scene that comes with the program, a fleet ("fleet:500", 1 to 20000 devices), or the scene
    /// file of that path. Returns null on failure and sets `error` (may be null) to a sentence that says why.
    /// `clock` is not null: everything on the site takes its time from it.
    [[nodiscard]] static std::shared_ptr<DemoSite> open(const QString &sceneNameOrFile,
                                                        std::shared_ptr<Clock> clock, QString *error);

    /// A site of a scene made elsewhere.
    [[nodiscard]] static std::shared_ptr<DemoSite> create(const Scene &scene, std::shared_ptr<Clock> clock);

    ~DemoSite();
    DemoSite(const DemoSite &) = delete;
    DemoSite &operator=(const DemoSite &) = delete;

    /// The roles that the site fills, the same ones at every call.
    [[nodiscard]] SdkLibraries libraries();

    [[nodiscard]] QString sceneTitle() const { return m_title; }
    [[nodiscard]] QString sceneDescription() const { return m_description; }
    [[nodiscard]] Clock &clock() const { return *m_clock; }
    [[nodiscard]] RequestRecord &requests() { return m_requests; }

    /// Copies, in the order of the scene.
    [[nodiscard]] QList<SceneDevice> devices() const;
    [[nodiscard]] std::optional<SceneDevice> device(const QString &mac) const;

    /// Shows every device to `visitor` without copying it. The site is locked meanwhile: the visitor must not
    /// call it.
    void visitDevices(const std::function<void(const SceneDevice &)> &visitor) const;

    /// The same for those that have one of the addresses (IPv4, or IPv6 as canonicalIpv6Address() writes it),
    /// in the order of the scene. Its time does not depend on the number of devices.
    void visitDevicesAt(const QStringList &addresses,
                        const std::function<void(const SceneDevice &)> &visitor) const;

    /// Changes the device of the same MAC, or brings a new one to the site.
    void setDevice(const SceneDevice &device);

    /// Lets `change` change a device (its MAC stays) while nobody else changes the site; `addresses` tells
    /// who has which address. The site is locked meanwhile: `change` must not call it. This and the following
    /// return false when the site has no such device.
    bool
    changeDevice(const QString &mac,
                 const std::function<void(SceneDevice &device, const DeviceAddresses &addresses)> &change);
    bool removeDevice(const QString &mac);
    bool setFault(const QString &mac, const FaultSetting &setting);
    bool clearFault(const QString &mac, Fault fault);

    /// The port agent, which knows where local ports lead, and whose tunnels a test can break.
    [[nodiscard]] DemoP2PAgentLibrary &portAgent() const { return *m_portAgent; }

    /// The HTTP proxy through which the devices' web services are reached: "http://127.0.0.1:40123". It is
    /// opened by the first call and ends with the site. Empty when the computer gives no port.
    [[nodiscard]] QString httpProxy();

    /// What the proxy and the tunnels of the port agent answer with.
    [[nodiscard]] HttpResponder &httpResponder() const { return *m_httpResponder; }

    /// This computer's IPv4 address in the local segment.
    [[nodiscard]] QString localAddress() const { return m_localAddress; }

    /// The address of this computer that receives what `device` sends.
    [[nodiscard]] QString localAddressFor(const SceneDevice &device, int ipVersion) const;

private:
    DemoSite(const Scene &scene, std::shared_ptr<Clock> clock);
    [[nodiscard]] qsizetype placeLocked(const QString &mac) const;

    const QString m_title;
    const QString m_description;
    const QString m_localAddress;
    const QString m_localIpv6;
    const std::shared_ptr<Clock> m_clock;
    RequestRecord m_requests;
    mutable std::mutex m_mutex;
    QList<SceneDevice> m_devices;
    QHash<QString, qsizetype> m_placeOfMac;
    DeviceAddresses m_addresses; ///< of m_devices
    const std::shared_ptr<ConfigLibrary> m_config;
    const std::unique_ptr<HttpResponder> m_httpResponder;
    // Last, the agent before those that look at its ports: threads end before what they use.
    std::unique_ptr<DemoP2PAgentLibrary> m_portAgent;
    std::unique_ptr<DemoNetLibrary> m_net;
    std::mutex m_httpProxyMutex; // opening the proxy
    std::unique_ptr<HttpPort> m_httpProxy;
};

} // namespace sdk::demo
