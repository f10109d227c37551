// Reboot, reset and firmware of a device. The functions are the operations of the device service with the
// same names: each reads the request of `call`, and fills its response or returns a fault.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// Schedules a reboot 2 s after the request. Applies at once, before the reboot, the IPv4 settings that
/// setNetworkInterfaces() or setNetworkDefaultGateway() have stored (DeviceManner::changesAddressAtReboot).
/// Returns a fault, and applies nothing, if the device refuses the reboot.
ServiceResult systemReboot(ServiceCall &call);

/// Resets the device by resetToFactory(), which keeps its addresses: its settings at once, and the reboot
/// 1500 ms after the request. "Hard" and "Soft" have the same effect.
ServiceResult setSystemFactoryDefault(ServiceCall &call);

/// Responds with the URL of FirmwareUploads::begin(), to which the client sends the file. A fault while an
/// upgrade is written, and for a device with Fault::UpgradeBusy.
ServiceResult startFirmwareUpgrade(ServiceCall &call);

} // namespace site
