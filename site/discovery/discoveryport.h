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

/// Responds to the Probe and Resolve messages that apply to the device, with its latency and its faults, and
/// adds these messages to the site's log as "Discovery". A device of another segment ignores messages to the
/// multicast groups and responds only to those to its own address. To be created, used and destroyed on one
/// thread, which must not be the poller's; messages are handled on the poller's thread.
class DiscoveryPort
{
public:
    static constexpr int port = 3702;

    /// Opens sockets in the namespace of `interface`, for each family of which the device has an address.
    /// `site`, `poller` and `options` must outlive the port.
    DiscoveryPort(sdk::demo::DemoSite &site, Poller &poller, const SiteOptions &options, QString mac,
                  const DeviceInterface &interface);
    ~DiscoveryPort();
    DiscoveryPort(const DiscoveryPort &) = delete;
    DiscoveryPort &operator=(const DiscoveryPort &) = delete;

    /// False if no socket is open: the port is in use, or the device has no address or has left the site.
    [[nodiscard]] bool isOpen() const;

    // Send Hello (the device appears) or Bye (it leaves) to the multicast groups of the open sockets. A
    // device of another segment sends nothing.
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
