// The port of a device that answers those who look for devices.
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

/// Answers at the device's latency, as its faults have it. A device of another segment hears only what is
/// sent to its own address. To be made and destroyed on one thread; what comes is handled on the poller's.
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

    /// False when the port is taken.
    [[nodiscard]] bool isOpen() const;

    // To everybody in the segment.
    void sayHello();
    void sayBye();

private:
    struct Sockets;
    void receive(int ipVersion);

    sdk::demo::DemoSite &m_site;
    Poller &m_poller;
    const SiteOptions &m_options;
    const QString m_mac;
    std::shared_ptr<Sockets> m_sockets; // answers that wait hold it weakly
};

} // namespace site
