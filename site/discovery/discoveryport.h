// The port of a device that responds to searches.
#pragma once

#include "site/discovery/discoverymessages.h"
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

    /// False when no socket is open, since the port is in use or the device has no address.
    [[nodiscard]] bool isOpen() const;

    /// Sends Hello or Bye to the segment; nothing for a device of another segment.
    void sendHello();
    void sendBye();

private:
    struct Sockets;
    using Announcement = QByteArray (*)(const DiscoveryIdentity &identity, DiscoverySequence sequence,
                                        XmlManner manner);
    void sendToGroups(Announcement message);
    void receive(int ipVersion);

    sdk::demo::DemoSite &m_site;
    Poller &m_poller;
    const SiteOptions &m_options;
    const QString m_mac;
    std::shared_ptr<Sockets> m_sockets; // delayed responses have a weak pointer to it
};

} // namespace site
