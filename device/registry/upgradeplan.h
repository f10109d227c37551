// Plans of firmware upgrades.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/upgradetools.h"

#include <QString>

/// The plan of the upgrade of one device.
struct PlannedUpgrade
{
    UpgradeTools::Result refusal =
        UpgradeTools::NoFile; ///< reason why the device is not upgraded; None if it is
    QString file;             ///< path of the firmware file
    QString version;          ///< of the file; empty if unknown
};

/// A line of an upgrade document, with the step that upgrades its device.
struct UpgradeDocumentStep
{
    int line = 0;   ///< line number in the file
    QString device; ///< name of the row of the device, or its address and port
    QString ipport;
    DeviceStep step;
};
