// How a device calls itself on the network.
#pragma once

#include "sdk/demo/scene.h"
#include "site/devicemanner.h"
#include "site/discovery/discoverymessages.h"

#include <QHostAddress>

namespace site {

inline constexpr int rtspPort = 554;
inline constexpr const char *deviceServicePath = "/onvif/device_service";

/// Where the services of a device listen, also when it has no web page.
[[nodiscard]] int servicePortOf(const sdk::demo::SceneDevice &device);

/// "urn:uuid:...": from the MAC, but does not tell it.
[[nodiscard]] QString endpointOf(const sdk::demo::SceneDevice &device);

/// "onvif://www.onvif.org/name/Gate" and the like.
[[nodiscard]] QStringList scopesOf(const sdk::demo::SceneDevice &device, const DeviceManner &manner);

/// "http://192.168.1.101", "https://[fd00::31]:8443": to be followed by a path.
[[nodiscard]] QString serviceRoot(const QString &address, int port, bool isSecure = false);

/// What it says to a client that asks over IPv4 or IPv6: the address of that kind first.
[[nodiscard]] DiscoveryIdentity discoveryIdentity(const sdk::demo::SceneDevice &device,
                                                  const DeviceManner &manner, int ipVersion);

/// A text of the device as its faults have it: with odd bytes, or overlong.
[[nodiscard]] std::string toldName(const sdk::demo::SceneDevice &device);
[[nodiscard]] std::string toldModel(const sdk::demo::SceneDevice &device);

} // namespace site
