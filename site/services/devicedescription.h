// The information that a device reports about itself. The functions are the operations of the device service
// with the same names: each reads the request of `call`, and fills its response or returns a fault. They run
// on threads of connections, several at a time.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getDeviceInformation(ServiceCall &call);
ServiceResult getServices(ServiceCall &call);
ServiceResult getCapabilities(ServiceCall &call);
ServiceResult getDeviceServiceCapabilities(ServiceCall &call);
ServiceResult getWsdlUrl(ServiceCall &call);
ServiceResult getScopes(ServiceCall &call);
/// Changes the name of the device, if a scope has one. Other scopes are ignored.
ServiceResult setScopes(ServiceCall &call);

} // namespace site
