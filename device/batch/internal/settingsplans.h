// Plans of the batches that send settings or a command to each device. `plan` has the family, the title, the
// usual policy and the accounts of the rows; the functions return it with the devices and their steps.
// `factory` must outlive the batch. Main thread.
#pragma once

#include "device/batch/batchplan.h"

#include <QStringList>
#include <QVariantMap>

/// See Batches::configureSystem().
[[nodiscard]] BatchPlan systemPlan(CDeviceFactory &factory, BatchPlan plan, const QString &command,
                                   const QVariantMap &data, const QStringList &ipports);

/// See Batches::nameCameras().
[[nodiscard]] BatchPlan cameraNamePlan(CDeviceFactory &factory, BatchPlan plan, const QStringList &ipports,
                                       const QStringList &names);

/// See Batches::initialiseDevices().
[[nodiscard]] BatchPlan initialisationPlan(CDeviceFactory &factory, BatchPlan plan, const QStringList &macs,
                                           const QString &account, const QString &password);

/// See Batches::copyEncodeSettings().
[[nodiscard]] BatchPlan encodeCopyPlan(CDeviceFactory &factory, BatchPlan plan, const QStringList &ipports);
