// The RTSP server of a device.
#pragma once

#include "site/network/networkspace.h"
#include "site/rtsp/rtspcontext.h"

#include <QString>

#include <memory>

namespace site {

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
