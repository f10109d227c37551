#include "sdk/demo/site/devicereach.h"

#include "sdk/clock.h"
#include "sdk/demo/device/deviceresponses.h"
#include "sdk/demo/scene/addresstext.h"
#include "sdk/demo/site/sitestate.h"

namespace sdk::demo {

namespace {

/// 0 for none.
int portOf(const SceneDevice &device, DevicePort kind)
{
    switch (kind) {
    case DevicePort::Service:
        return device.port;
    case DevicePort::Web:
        return device.httpPort;
    case DevicePort::SecureWeb:
        return httpsPortOf(device);
    }
    return 0;
}

DeviceReach reachThroughTunnel(const SiteState &site, const Tunnel &tunnel, int localPort, DevicePort kind)
{
    const std::optional<SceneDevice> device = site.device(tunnel.mac);
    if (tunnel.isBroken || !device || !device->isListening(site.clock().now()))
        return {};
    if (tunnel.devicePort != portOf(*device, kind) || device->hasFault(Fault::RefusesConnections))
        return {DeviceReach::Kind::Refuses};
    return {DeviceReach::Kind::Responds, {tunnel.mac, localPort}};
}

} // namespace

DeviceReach reach(const SiteState &site, const QString &address, int port, DevicePort kind)
{
    const bool isLoopback = address == QLatin1String("127.0.0.1");
    if (isLoopback) {
        if (const std::optional<Tunnel> tunnel = site.tunnel(port))
            return reachThroughTunnel(site, *tunnel, port, kind);
    }
    const QString ipv6 = canonicalIpv6Address(address);
    const bool isIpv4 = isIpv4Address(address) && address != QLatin1String("0.0.0.0");
    DeviceReach found;
    if (isLoopback)
        found.kind = DeviceReach::Kind::Refuses; // this host is always online
    const std::int64_t now = site.clock().now();
    const QString &requested = ipv6.isEmpty() ? address : ipv6;
    if (ipv6.isEmpty() && !isIpv4)
        return found;
    site.forEachDeviceAt({requested}, [&](const SceneDevice &device) {
        if (device.isRemote || !device.isListening(now) || found.kind == DeviceReach::Kind::Responds)
            return;
        if (port != 0 && portOf(device, kind) == port && !device.hasFault(Fault::RefusesConnections))
            found = {DeviceReach::Kind::Responds, {device.mac, 0}};
        else
            found.kind = DeviceReach::Kind::Refuses;
    });
    return found;
}

bool isReachable(const SiteState &site, const DemoSession &session)
{
    if (session.localPort == 0) {
        const std::optional<SceneDevice> device = site.device(session.mac);
        return device && device->isListening(site.clock().now());
    }
    const std::optional<Tunnel> tunnel = site.tunnel(session.localPort);
    return tunnel && tunnel->mac == session.mac &&
           reachThroughTunnel(site, *tunnel, session.localPort, DevicePort::Service).kind ==
               DeviceReach::Kind::Responds;
}

} // namespace sdk::demo
