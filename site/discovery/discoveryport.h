// The port of a device that responds to searches.
#pragma once

#include "site/network/filedescriptor.h"
#include "site/siteoptions.h"

#include <QString>

#include <memory>

namespace sdk::demo {
class DemoSite;
}

namespace site {

class DeviceInterface;
class Poller;

/// Responds with the latency and the faults of the device. A device of another segment receives only messages
/// to its own address. To be created and destroyed on one thread; messages are handled on the poller's
/// thread.
class DiscoveryPort
{
public:
    static constexpr int port = 3702;

    /// `site` and `poller` must outlive the port.
    DiscoveryPort(sdk::demo::DemoSite &site, Poller &poller, const SiteOptions &options, QString mac,
                  const DeviceInterface &interface);
    ~DiscoveryPort();
    DiscoveryPort(const DiscoveryPort &) = delete;
    DiscoveryPort &operator=(const DiscoveryPort &) = delete;

    /// False when the port is in use.
    [[nodiscard]] bool isOpen() const;

    /// Sends Hello to the segment.
    void sendHello();
    void sendBye();

private:
    struct Sockets;
    void receive(int ipVersion);

    sdk::demo::DemoSite &m_site;
    Poller &m_poller;
    const SiteOptions &m_options;
    const QString m_mac;
    std::shared_ptr<Sockets> m_sockets; // delayed responses have a weak pointer to it
};

} // namespace site
