// Subclasses of the RTSP server library for the devices of the site.
#pragma once

#include "site/network/networkspace.h"
#include "site/rtsp/rtspcontext.h"

#include <QString>

#include <gst/rtsp-server/rtsp-server.h>

#include <functional>

namespace site {

/// The data of one device's server. The object must outlive the objects of the functions below.
struct RtspDevice
{
    RtspContext &context;
    QString mac;
    const NetworkSpace &space; ///< of the device
    /// Closes all clients of the server of this device. Called on the thread of a StreamFeeder when the
    /// device drops a stream. Returns immediately; the poller's thread closes the clients. Not empty: it must
    /// be set before a client connects.
    std::function<void()> closeClientsSoon;
};

// Each function returns a reference that the caller owns. The library calls the objects on its threads.

/// Requires a login by Digest with DeviceLogins, except for OPTIONS. MD5 is always offered, also by a device
/// that does not offer it over HTTP. Every user may play streams.
[[nodiscard]] GstRTSPAuth *newAuthentication(RtspDevice &device);

/// The threads of the pool are in the network namespace of the device, and so are the sockets they create.
[[nodiscard]] GstRTSPThreadPool *newThreadPool(RtspDevice &device);

/// Creates the pipeline and the StreamFeeder of the stream with the path of the URL. The clients of a stream
/// share them. Creates nothing for an unknown path. When the device drops the stream, the feeder calls
/// RtspDevice::closeClientsSoon.
[[nodiscard]] GstRTSPMediaFactory *newMediaFactory(RtspDevice &device);

/// A factory at the path of each stream that the device has at the call.
[[nodiscard]] GstRTSPMountPoints *newMountPoints(RtspDevice &device);

} // namespace site
