// The RTSP server of a device.
#pragma once

#include "site/devicelogins.h"
#include "site/network/networkspace.h"
#include "site/siteoptions.h"

#include <QString>

#include <memory>

namespace sdk::demo {
class DemoSite;
}

namespace site {

class KeyPictures;
class Poller;

/// What the RTSP servers of all devices share.
struct RtspContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyPictures &keyPictures;
    Poller &poller;
};

/// The server of one device. Its threads are in the device's network namespace. To be destroyed on the thread
/// that made it, when no accept() runs; the other functions are thread-safe.
class RtspPort
{
public:
    /// `context` and `space` must outlive the port.
    RtspPort(RtspContext &context, QString mac, const NetworkSpace &space);
    ~RtspPort();
    RtspPort(const RtspPort &) = delete;
    RtspPort &operator=(const RtspPort &) = delete;

    /// Accepts the connection that waits at `listener`.
    void accept(int listener);

    /// Ends all connections.
    void closeClients();

private:
    struct Parts;
    const std::shared_ptr<Parts> m_parts; // what runs later holds it weakly
};

} // namespace site
