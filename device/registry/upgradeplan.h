// What upgrades are to do, before they begin.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/upgradetools.h"

#include <QString>

/// What the upgrade of a row's device will do.
struct PlannedUpgrade
{
    UpgradeTools::Result refusal = UpgradeTools::NoFile; ///< why it will do nothing; None when it will
    QString file;                                        ///< of the row
    QString version;                                     ///< of the file; empty when it is not known
};

/// A line of an upgrade document, and the upgrade of its device.
struct UpgradeDocumentStep
{
    int line = 0;   ///< its number in the file
    QString device; ///< the name of its row, or its address and port
    QString ipport;
    DeviceStep step;
};
