// The network settings of a device. The functions with a ServiceResult are the operations of the device
// service with the same names: each reads the request of `call`, and fills its response or returns a fault.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getNetworkInterfaces(ServiceCall &call);

/// Changes the IPv4 settings; those of IPv6 are ignored. With DeviceManner::changesAddressAtReboot, the
/// settings are only stored until applyPendingAddress(), and the response requests a reboot.
ServiceResult setNetworkInterfaces(ServiceCall &call);

ServiceResult getNetworkDefaultGateway(ServiceCall &call);

/// Changes the IPv4 gateway, or stores it as setNetworkInterfaces(); the response requests no reboot. With
/// DHCP, the gateway is not changed and the call succeeds.
ServiceResult setNetworkDefaultGateway(ServiceCall &call);

/// HTTP, HTTPS (if it is enabled) and RTSP with their ports.
ServiceResult getNetworkProtocols(ServiceCall &call);
/// A constant name of the type and the last digits of the MAC.
ServiceResult getHostname(ServiceCall &call);
/// Only whether DHCP is used: the devices have no name servers.
ServiceResult getDns(ServiceCall &call);

/// Applies the settings that setNetworkInterfaces() and setNetworkDefaultGateway() have stored, if there are
/// any. They are not stored any more afterwards, even if the device refuses them. Called when a reboot is
/// requested.
void applyPendingAddress(const ServiceCall &call);

/// The prefix length of a dotted IPv4 mask (the number of its bits that are set), 0 to 32; 0 if it is no
/// dotted address.
[[nodiscard]] int prefixLengthOf(const QString &mask);

} // namespace site
