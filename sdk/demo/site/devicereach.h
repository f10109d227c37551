// The device at an address and port.
#pragma once

#include "sdk/demo/site/demosessions.h"

namespace sdk::demo {

class SiteState;

/// A port of a device.
enum class DevicePort
{
    Service,
    Web,
    SecureWeb, ///< the same over HTTPS
};

struct DeviceReach
{
    enum class Kind
    {
        Responds, ///< `session` leads to the device
        Refuses,  ///< the host exists, but the port is closed
        Silent,   ///< there is no response
    };
    Kind kind = Kind::Silent;
    DemoSession session = {};
};

/// Finds the first device of the scene at `address` (IPv4 or IPv6), or behind the local port of the port
/// agent if the address is 127.0.0.1.
[[nodiscard]] DeviceReach reach(const SiteState &site, const QString &address, int port,
                                DevicePort kind = DevicePort::Service);

/// Whether the device of `session` still responds at the address or local port of the session.
[[nodiscard]] bool isReachable(const SiteState &site, const DemoSession &session);

} // namespace sdk::demo
