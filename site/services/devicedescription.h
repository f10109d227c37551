// The information that a device reports about itself. The functions are operations of the device service
// (ServiceOperation::run).
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getDeviceInformation(ServiceCall &call);
ServiceResult getServices(ServiceCall &call);
ServiceResult getCapabilities(ServiceCall &call);
ServiceResult getDeviceServiceCapabilities(ServiceCall &call);
ServiceResult getWsdlUrl(ServiceCall &call);
ServiceResult getScopes(ServiceCall &call);
ServiceResult setScopes(ServiceCall &call);

} // namespace site
