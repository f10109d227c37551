// Plans of firmware upgrades.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/upgradetools.h"

#include <QString>

/// The file and the check of an upgrade of one device, if it started now. Default values: no file is chosen.
struct PlannedUpgrade
{
    UpgradeTools::Result refusal =
        UpgradeTools::NoFile; ///< reason why the device is not upgraded; None if it is
    QString file;             ///< path of the firmware file; empty if none is chosen
    QString version;          ///< firmware version in the file; empty if unknown
};

/// A line of an upgrade document (a workbook with devices and firmware files), with the step that upgrades
/// its device.
struct UpgradeDocumentStep
{
    int line = 0;   ///< line number in the file, from 1
    QString device; ///< name of the row of the device, or its address and port without a row
    QString ipport; ///< "address:port" in the line
    DeviceStep step;
};
