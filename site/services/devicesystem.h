// Reboot, reset and firmware of a device. The functions are operations of the device service.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult systemReboot(ServiceCall &call);
ServiceResult setSystemFactoryDefault(ServiceCall &call);
ServiceResult startFirmwareUpgrade(ServiceCall &call);

} // namespace site
