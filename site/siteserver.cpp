#include "site/siteserver.h"

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"

#include <cerrno>
#include <cstring>

#include <net/if.h>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

SiteServer::SiteServer(DemoSite &site, const SiteOptions &options)
    : m_site(site), m_options(options),
      m_uploads(site, m_poller), m_context{site, options, m_logins, m_keyFrames, m_uploads}, m_web(m_context),
      m_http(m_web, site.clock()), m_rtsp{site, options, m_logins, m_keyFrames, m_poller}
{
}

SiteServer::~SiteServer()
{
    for (const std::unique_ptr<ServedDevice> &device : m_devices)
        device->leave();
    // First the devices, which accept connections; then the poller's thread, before the objects that it uses.
    m_devices.clear();
    m_poller.stop();
}

QString SiteServer::objectionTo(const SceneDevice &device)
{
    if (device.isRemote)
        return u"is reached through the port agent only"_s;
    if (device.address.startsWith(u"127."))
        return u"has an address of the loopback interface"_s;
    return {};
}

bool SiteServer::start(const QString &interfaceName, QString *error)
{
    const unsigned lower = if_nametoindex(interfaceName.toLocal8Bit().constData());
    if (lower == 0) {
        *error = u"There is no network interface \"%1\": %2"_s.arg(
            interfaceName, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    const ServedDevice::Parts parts = {m_site, m_options, m_poller, m_http, m_rtsp};
    const QList<SceneDevice> devices = m_site.devices();
    for (const SceneDevice &device : devices) {
        if (!objectionTo(device).isEmpty())
            continue;
        std::unique_ptr<DeviceInterface> interface = DeviceInterface::create(lower, device.mac, error);
        if (!interface)
            return false;
        m_devices.push_back(std::make_unique<ServedDevice>(parts, device.mac, std::move(interface)));
    }
    follow();
    return true;
}

void SiteServer::follow()
{
    const std::int64_t now = m_site.clock().now();
    for (const std::unique_ptr<ServedDevice> &served : m_devices) {
        if (const std::optional<SceneDevice> device = m_site.device(served->mac()))
            served->follow(*device, now);
    }
}

} // namespace site
