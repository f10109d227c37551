// The identifiers of a device on the network.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "site/devicemanner.h"
#include "site/discovery/discoverymessages.h"

#include <QHostAddress>

namespace site {

inline constexpr int rtspPort = 554;
inline constexpr const char *deviceServicePath = "/onvif/device_service";

/// The port of a device's services, also of a device without a web page.
[[nodiscard]] int servicePortOf(const sdk::demo::SceneDevice &device);

/// "urn:uuid:...": derived from the MAC, which it does not reveal.
[[nodiscard]] QString endpointOf(const sdk::demo::SceneDevice &device);

/// Scopes such as "onvif://www.onvif.org/name/Gate".
[[nodiscard]] QStringList scopesOf(const sdk::demo::SceneDevice &device, const DeviceManner &manner);

/// "http://192.168.1.101", "https://[fd00::31]:8443": a URL without its path.
[[nodiscard]] QString serviceRoot(const QString &address, int port, bool isSecure = false);

/// The identity for a request over `ipVersion` (4 or 6). Its first address is of that family, if the device
/// has one.
[[nodiscard]] DiscoveryIdentity discoveryIdentity(const sdk::demo::SceneDevice &device,
                                                  const DeviceManner &manner, int ipVersion);

// The name and the model of the device as it reports them. They have invalid bytes with Fault::OddBytes, and
// are too long with Fault::OverLongTexts.
[[nodiscard]] std::string reportedName(const sdk::demo::SceneDevice &device);
[[nodiscard]] std::string reportedModel(const sdk::demo::SceneDevice &device);

} // namespace site
