#pragma once

#include "device/batch/batchplan.h"

#include <QStringList>

/// The plan of Batches::takeSnapshots(): each channel of the current session is a device of the batch, in
/// channel order. Without a session it has no devices. `plan` has the family, the title and the usual policy.
/// Main thread.
[[nodiscard]] BatchPlan snapshotPlan(CDeviceFactory &factory, BatchPlan plan, const QString &ipport,
                                     const QStringList &channelNames, const QString &folder);
