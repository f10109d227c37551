// The device that responds at an address and port.
#pragma once

#include "sdk/demo/site/demosessions.h"

namespace sdk::demo {

class SiteState;

/// The kinds of ports of a device.
enum class DevicePort
{
    Service,   ///< for sessions
    Web,       ///< for HTTP
    SecureWeb, ///< for HTTPS
};

/// The result of a connection to an address and port.
struct DeviceReach
{
    enum class Kind
    {
        Responds, ///< `session` leads to the device
        Refuses,  ///< there is a host, but its port is closed, or is a port of another kind
        Silent,   ///< no host responds
    };
    Kind kind = Kind::Silent;
    DemoSession session = {}; ///< with Responds: the MAC, and the local port of a tunnel; otherwise empty
};

// Both lock the site during the call, so the caller must not hold its lock. They do not block.

/// Connects to `port` of `address` (IPv4 or IPv6). The device responds if `port` is its port of the `kind`.
/// If the address is 127.0.0.1 and `port` is a local port of the port agent, the device behind it is the only
/// candidate; the mapped port must be of the `kind`. Otherwise the first device of the scene that responds at
/// the address is the result. A remote device responds only through the port agent.
[[nodiscard]] DeviceReach reach(const SiteState &site, const QString &address, int port,
                                DevicePort kind = DevicePort::Service);

/// Whether the device of `session` still responds. A direct session follows its device to a new address. A
/// session through the port agent needs its tunnel. Not evaluated: DemoSession::hasEnded, the password and,
/// for a direct session, Fault::RefusesConnections.
[[nodiscard]] bool isReachable(const SiteState &site, const DemoSession &session);

} // namespace sdk::demo
