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

/// Applies addresses that were set for the next restart of the device.
void applyPendingAddress(const ServiceCall &call);

/// The prefix length of a dotted mask; 0 for an invalid one.
[[nodiscard]] int prefixLengthOf(const QString &mask);

} // namespace site
