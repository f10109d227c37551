// The network settings of a device.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getNetworkInterfaces(ServiceCall &call);
ServiceResult setNetworkInterfaces(ServiceCall &call);
ServiceResult getNetworkDefaultGateway(ServiceCall &call);
ServiceResult setNetworkDefaultGateway(ServiceCall &call);
ServiceResult getNetworkProtocols(ServiceCall &call);
ServiceResult getHostname(ServiceCall &call);
ServiceResult getDns(ServiceCall &call);

/// Takes over addresses that were set and hold from the next start of the device.
void takePendingAddress(const ServiceCall &call);

/// The ones at the begin of a dotted mask.
[[nodiscard]] int prefixLengthOf(const QString &mask);

} // namespace site
