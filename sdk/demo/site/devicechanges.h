// Changes of a device by requests without a session. A device that refuses stays unchanged. The functions
// lock the site, so their callers must not hold its lock.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/neterror.h"

namespace sdk::demo {

class SiteState;

/// Initialises the device with `account`, its only account then, and clears Fault::NotInitialised. Returns
/// None on success, NotSupported for an initialised device and for an account without a name or password,
/// Refused for a device with Fault::RefusesInitialisation, ConnectTimeout for an unknown MAC.
[[nodiscard]] NetError initialiseDevice(SiteState &site, const QString &mac, const SceneAccount &account);

/// Changes the IPv4 address, mask, gateway and use of DHCP to those in `requested`. The account and the
/// password in `requested` are not checked, and an address that another device has is accepted.
///
/// With DHCP the device gets the first free one of twenty addresses (the last octet is 220 to 239) in its
/// segment, or 0.0.0.0 if none is free; the mask is 255.255.255.0, and the last octet of the gateway is 1. A
/// device that has an address by DHCP already keeps all settings.
///
/// Returns None on success, NotSupported for an uninitialised device, a device without IPv4, a request of
/// IPv6 and an invalid address, mask or gateway (an empty gateway is valid), Refused for a device with
/// Fault::RefusesAddressChange, ConnectTimeout for an unknown MAC.
[[nodiscard]] NetError changeDeviceAddress(SiteState &site, const QString &mac,
                                           const SearchDeviceInformation &requested);

} // namespace sdk::demo
