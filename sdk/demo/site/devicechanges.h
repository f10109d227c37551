// Changes that a device makes to itself on requests without a login.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/neterror.h"

namespace sdk::demo {

class SiteState;

/// Gives the device its first account, after which it is initialised. Refuses with NotSupported a device that
/// is initialised already, or an account without a name or password; with ConnectFailed by its fault.
[[nodiscard]] NetError giveFirstAccount(SiteState &site, const QString &mac, const SceneAccount &account);

/// The addresses that `wanted` holds, or with DHCP one of the twenty that the network has to give. A device
/// that has such a lease keeps it; one that finds none left has no address. Refuses with NotSupported a
/// device that waits for its first password or speaks no IPv4, and what is no address; with ConnectFailed by
/// its fault.
[[nodiscard]] NetError giveAddress(SiteState &site, const QString &mac,
                                   const SearchDeviceInformation &wanted);

} // namespace sdk::demo
