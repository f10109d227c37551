// Planned work of batches.
#pragma once

#include "commandline/batchrun.h"
#include "commandline/devicechoice.h"
#include "device/batch/batchpreview.h"

namespace commandline {

/// The rows of a choice for BatchPreview::setDevices().
[[nodiscard]] QVariantList previewRows(const DeviceChoice &choice);

/// Writes the planned work of each device: the columns "device", "mac", "name", "plan" ("change", "warning"
/// or "skip"), "value" and "note". Returns SomeFailed if a device is missing or would be skipped.
[[nodiscard]] int printPreview(const CommandContext &context, const BatchPreview &preview,
                               const QStringList &missing);

/// Adds the devices that the preview skips to the results.
void addSkipped(const BatchPreview &preview, ResultTable &results);

/// The warnings of a preview, one line for each device.
[[nodiscard]] QStringList warningsOf(const BatchPreview &preview);

} // namespace commandline
