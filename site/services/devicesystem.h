// Reboot, reset and firmware of a device. The functions are operations of the device service
// (ServiceOperation::run).
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// Schedules a reboot after the response, and applies an address that was stored for it.
ServiceResult systemReboot(ServiceCall &call);

/// Resets the device by resetToFactory(): its settings at once, and the reboot 1.5 s after the request.
/// "Hard" and "Soft" have the same effect.
ServiceResult setSystemFactoryDefault(ServiceCall &call);

/// Responds with the URL of FirmwareUploads::begin(), to which the client sends the file.
ServiceResult startFirmwareUpgrade(ServiceCall &call);

} // namespace site
