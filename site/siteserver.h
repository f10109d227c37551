// A whole site on the network.
#pragma once

#include "site/http/httpserver.h"
#include "site/network/poller.h"
#include "site/rtsp/keypictures.h"
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

/// Belongs to one thread, in whose network namespace the interface of the site is.
class SiteServer
{
public:
    /// How often changes of the devices are looked for.
    static constexpr std::chrono::milliseconds lookEvery{50};

    /// `site` and `options` must outlive the server.
    SiteServer(sdk::demo::DemoSite &site, const SiteOptions &options);
    ~SiteServer();

    /// Brings the devices to the interface of that name. Returns false, and says why, when that cannot be.
    [[nodiscard]] bool start(const QString &interfaceName, QString *error);

    /// Brings the network in line with the devices; to be called every lookEvery.
    void follow();

    [[nodiscard]] std::size_t deviceCount() const { return m_devices.size(); }

    /// Why a device cannot be on a network; empty for one that can.
    [[nodiscard]] static QString objectionTo(const sdk::demo::SceneDevice &device);

private:
    sdk::demo::DemoSite &m_site;
    const SiteOptions &m_options;
    DeviceLogins m_logins;
    KeyPictures m_keyPictures;
    Poller m_poller;
    FirmwareUploads m_uploads;
    ServiceContext m_context;
    DeviceWeb m_web;
    HttpServer m_http;
    RtspContext m_rtsp;
    std::vector<std::unique_ptr<ServedDevice>> m_devices;
};

} // namespace site
