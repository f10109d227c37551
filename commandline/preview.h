// Planned work of batches.
#pragma once

#include "commandline/batchrun.h"
#include "commandline/devicechoice.h"
#include "device/batch/batchpreview.h"

namespace commandline {

/// The rows of a choice as maps for BatchPreview::setDevices().
[[nodiscard]] QVariantList previewRows(const DeviceChoice &choice);

/// Writes the planned work of each device to standard output: the columns "device", "mac", "name", "plan"
/// ("change", "warning" or "skip"), "value" and "note". `missing` are the names of devices that were not
/// found; they get the plan "skip". Returns SomeFailed if a device is missing or would be skipped, otherwise
/// AllDone.
[[nodiscard]] int printPreview(const CommandContext &context, const BatchPreview &preview,
                               const QStringList &missing);

/// Adds the devices that the preview skips to the results as "not done", with the note of the preview.
void addSkipped(const BatchPreview &preview, ResultTable &results);

/// The warnings of a preview in English, one line for each device with a warning.
[[nodiscard]] QStringList warningsOf(const BatchPreview &preview);

} // namespace commandline
