// The identifiers of a simulated device on the network: its ports, URLs and names.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "site/devicemanner.h"
#include "site/discovery/discoverymessages.h"

#include <QHostAddress>

namespace site {

inline constexpr int rtspPort = 554;
inline constexpr const char *deviceServicePath = "/onvif/device_service";

/// The HTTP port of a device's services: that of its web page, or 80 for a device without a web page.
[[nodiscard]] int servicePortOf(const sdk::demo::SceneDevice &device);

/// "urn:uuid:...": a hash of the MAC, so that it never changes and does not contain the MAC.
[[nodiscard]] QString endpointOf(const sdk::demo::SceneDevice &device);

/// The scopes that a device announces in discovery: URIs with its properties, such as
/// "onvif://www.onvif.org/name/Gate". Names are percent-encoded. `manner` decides whether media 2 is
/// included.
[[nodiscard]] QStringList scopesOf(const sdk::demo::SceneDevice &device, const DeviceManner &manner);

/// A URL without its path: "http://192.168.1.101", "https://[fd00::31]:8443". The usual port of the scheme is
/// omitted.
[[nodiscard]] QString serviceRoot(const QString &address, int port, bool isSecure = false);

/// The identity for a request over `ipVersion` (4 or 6). It has the URLs of the device service at the IPv4
/// and the IPv6 address of the device, without those that the device does not have. The first one is of that
/// family, if the device has one.
[[nodiscard]] DiscoveryIdentity discoveryIdentity(const sdk::demo::SceneDevice &device,
                                                  const DeviceManner &manner, int ipVersion);

// The name and the model of the device as it reports them, in UTF-8. They have invalid bytes with
// Fault::OddBytes, and are too long with Fault::OverLongTexts.
[[nodiscard]] std::string reportedName(const sdk::demo::SceneDevice &device);
[[nodiscard]] std::string reportedModel(const sdk::demo::SceneDevice &device);

} // namespace site
