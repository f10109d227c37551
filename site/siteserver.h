// A complete site on the network.
#pragma once

#include "site/http/httpserver.h"
#include "site/network/poller.h"
#include "site/rtsp/keyframes.h"
#include "site/serveddevice.h"
#include "site/services/deviceweb.h"
#include "site/services/firmwareuploads.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <vector>

namespace sdk::demo {
class DemoSite;
}

namespace site {

/// The devices of a site on a network interface of this host, with everything that they share. Used by one
/// thread, whose network namespace contains the interface of the site.
class SiteServer
{
public:
    /// The interval at which the owner calls follow().
    static constexpr std::chrono::milliseconds followInterval{50};

    /// `site` and `options` must outlive the server.
    SiteServer(sdk::demo::DemoSite &site, const SiteOptions &options);

    /// Removes the devices from the network, with Bye messages, and waits for all threads.
    ~SiteServer();

    /// Connects the devices that the site has at the call to the interface of that name, which needs the
    /// right to create network namespaces and interfaces, and puts those that are online on the network.
    /// Devices with an objection (objectionTo()) are left out. On failure it returns false and sets `error`
    /// (not null) to an English sentence; the server must be destroyed then. To be called once.
    [[nodiscard]] bool start(const QString &interfaceName, QString *error);

    /// Updates the network to the state of the devices, such as a changed address or a reboot. A device that
    /// was removed from the site stays on the network as it is.
    void follow();

    /// The number of connected devices, also of those that are offline.
    [[nodiscard]] std::size_t deviceCount() const { return m_devices.size(); }

    /// The reason why a device cannot be on a network, as the end of a sentence: "is reached through the port
    /// agent only". Empty if it can.
    [[nodiscard]] static QString objectionTo(const sdk::demo::SceneDevice &device);

private:
    sdk::demo::DemoSite &m_site;
    const SiteOptions &m_options;
    DeviceLogins m_logins;
    KeyFrames m_keyFrames;
    Poller m_poller;
    FirmwareUploads m_uploads;
    ServiceContext m_context;
    DeviceWeb m_web;
    HttpServer m_http;
    RtspContext m_rtsp;
    std::vector<std::unique_ptr<ServedDevice>> m_devices;
};

} // namespace site
