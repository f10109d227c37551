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

class KeyFrames;
class Poller;

/// The common data of all devices' RTSP servers.
struct RtspContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyFrames &keyFrames;
    Poller &poller;
};

/// The server of one device. Its threads are in the device's network namespace. To be destroyed on the thread
/// that created it, while no accept() runs; the other functions are thread-safe.
class RtspPort
{
public:
    /// `context` and `space` must outlive the port.
    RtspPort(RtspContext &context, QString mac, const NetworkSpace &space);
    ~RtspPort();
    RtspPort(const RtspPort &) = delete;
    RtspPort &operator=(const RtspPort &) = delete;

    /// Accepts the pending connection of `listener`.
    void accept(int listener);

    /// Ends all connections.
    void closeClients();

private:
    struct Parts;
    const std::shared_ptr<Parts> m_parts; // callbacks have a weak pointer to it
};

} // namespace site
