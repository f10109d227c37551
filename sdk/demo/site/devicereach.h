// What answers at an address and port.
#pragma once

#include "sdk/demo/site/demosessions.h"

namespace sdk::demo {

class SiteState;

/// Which of a device's ports is meant.
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
        Answers, ///< `session` leads to the device
        Refuses, ///< there is somebody, but not at this port
        Silent,  ///< nothing answers
    };
    Kind kind = Kind::Silent;
    DemoSession session = {};
};

/// Looks for the first device of the scene at `address` (IPv4 or IPv6), or behind the local port of the port
/// agent when the address is 127.0.0.1.
[[nodiscard]] DeviceReach reach(const SiteState &site, const QString &address, int port,
                                DevicePort kind = DevicePort::Service);

/// Whether the device of `session` responds where the session has reached it.
[[nodiscard]] bool isReachable(const SiteState &site, const DemoSession &session);

} // namespace sdk::demo
