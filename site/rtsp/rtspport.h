// The RTSP server of a device.
#pragma once

#include "site/network/networkspace.h"
#include "site/rtsp/rtspcontext.h"

#include <QString>

#include <memory>

namespace site {

/// The RTSP server of one device: it requires a login by Digest and serves the streams that the device has at
/// the construction. Its threads are in the device's network namespace. To be destroyed on the thread that
/// created it, while no accept() runs; the other functions are thread-safe.
class RtspPort
{
public:
    /// `context` and `space` must outlive the port. It opens no socket: the owner listens and calls accept().
    RtspPort(RtspContext &context, QString mac, const NetworkSpace &space);

    /// Ends all connections and waits for their threads, for up to 2 s.
    ~RtspPort();
    RtspPort(const RtspPort &) = delete;
    RtspPort &operator=(const RtspPort &) = delete;

    /// Accepts the pending connection of `listener`, the number of a listening socket of the device. No
    /// effect if no connection is pending.
    void accept(int listener);

    /// Ends all connections; does not wait for their threads. New ones are still accepted.
    void closeClients();

private:
    struct Parts;
    const std::shared_ptr<Parts> m_parts; // callbacks have a weak pointer to it
};

} // namespace site
