// Subclasses of the RTSP server library for the devices of the site.
#pragma once

#include "site/network/networkspace.h"
#include "site/rtsp/rtspcontext.h"

#include <QString>

#include <gst/rtsp-server/rtsp-server.h>

#include <functional>

namespace site {

/// The data of one device's server; they outlive the objects below.
struct RtspDevice
{
    RtspContext &context;
    QString mac;
    const NetworkSpace &space;
    std::function<void()> closeClientsSoon; ///< runs on another thread
};

// Each function returns a reference that the caller owns.

/// Requires the same login as the other services, except for OPTIONS. Digest with MD5 is always offered.
[[nodiscard]] GstRTSPAuth *newAuthentication(RtspDevice &device);

/// Its threads are in the network namespace of the device.
[[nodiscard]] GstRTSPThreadPool *newThreadPool(RtspDevice &device);

/// Creates pipelines for the streams of a device by the path of the URL.
[[nodiscard]] GstRTSPMediaFactory *newMediaFactory(RtspDevice &device);

/// A factory for each stream of the device.
[[nodiscard]] GstRTSPMountPoints *newMountPoints(RtspDevice &device);

} // namespace site
