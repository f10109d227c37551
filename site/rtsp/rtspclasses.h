// The classes that the RTSP library asks, with what they need of the site.
#pragma once

#include "site/rtsp/rtspport.h"

#include <gst/rtsp-server/rtsp-server.h>

#include <functional>

namespace site {

/// What the objects of one device's server work with; it outlives them.
struct RtspDevice
{
    RtspContext &context;
    QString mac;
    const NetworkSpace &space;
    std::function<void()> closeClientsSoon; ///< on another thread than the caller's
};

// Each returns a reference that belongs to the caller.

/// Asks clients for a login as the other services do.
[[nodiscard]] GstRTSPAuth *newAuthentication(RtspDevice &device);

/// Its threads are in the network namespace of the device.
[[nodiscard]] GstRTSPThreadPool *newThreadPool(RtspDevice &device);

/// Makes pipelines for the streams of a device, by the path of the address.
[[nodiscard]] GstRTSPMediaFactory *newMediaFactory(RtspDevice &device);

/// A factory for each stream of the device.
[[nodiscard]] GstRTSPMountPoints *newMountPoints(RtspDevice &device);

} // namespace site
