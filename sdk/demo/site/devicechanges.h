// Changes of a device by requests without a login.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/neterror.h"

namespace sdk::demo {

class SiteState;

/// Initialises the device with its first account. Returns NotSupported for an initialised device and for an
/// account without a name or password, Refused for a device with Fault::RefusesInitialisation, ConnectTimeout
/// for an unknown MAC.
[[nodiscard]] NetError initialiseDevice(SiteState &site, const QString &mac, const SceneAccount &account);

/// Sets the addresses in `requested`, or with DHCP a free one of twenty addresses. A device with a lease
/// keeps it. A device without a free address gets 0.0.0.0. Returns NotSupported for an uninitialised device,
/// a device without IPv4 and an invalid address, Refused for a device with Fault::RefusesAddressChange,
/// ConnectTimeout for an unknown MAC.
[[nodiscard]] NetError changeDeviceAddress(SiteState &site, const QString &mac,
                                           const SearchDeviceInformation &requested);

} // namespace sdk::demo
