// The information that a device reports about itself. The functions are the operations of the device service
// with the same names: each reads the request of `call`, and fills its response or returns a fault. They run
// on threads of connections, several at a time.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getDeviceInformation(ServiceCall &call);
/// On request, only the device service is described with its capabilities.
ServiceResult getServices(ServiceCall &call);
/// A fault for the categories Events, PTZ and Analytics, whose services no device has.
ServiceResult getCapabilities(ServiceCall &call);
/// GetServiceCapabilities of the device service.
ServiceResult getDeviceServiceCapabilities(ServiceCall &call);
ServiceResult getWsdlUrl(ServiceCall &call);
ServiceResult getScopes(ServiceCall &call);
/// Changes the name of the device to that of the first scope that has one. Other scopes are ignored.
ServiceResult setScopes(ServiceCall &call);

} // namespace site
