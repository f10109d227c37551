// Reboot, reset and firmware of a device.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult systemReboot(ServiceCall &call);
ServiceResult setSystemFactoryDefault(ServiceCall &call);
ServiceResult startFirmwareUpgrade(ServiceCall &call);

} // namespace site
