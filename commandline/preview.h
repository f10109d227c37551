// The planned work of a batch: the result of "--dry-run", and the warnings before the start.
#pragma once

#include "commandline/batchrun.h"
#include "commandline/devicechoice.h"
#include "device/batch/batchpreview.h"

namespace commandline {

/// The rows of a choice as maps by column, with the key "identity", for BatchPreview::setDevices() and
/// setTicked().
[[nodiscard]] QVariantList previewRows(const DeviceChoice &choice);

/// Writes the planned work of each device to standard output: the columns "device" (address and port), "mac",
/// "name", "plan" ("change", "warning": a change with a warning, or "skip"), "value" (the new value, such as
/// an address or a version) and "note" (the warning, or the reason to skip). `missing` are the names of
/// devices that were not found; they get the plan "skip". Returns SomeFailed if a device is missing or would
/// be skipped, otherwise AllDone.
[[nodiscard]] int printPreview(const CommandContext &context, const BatchPreview &preview,
                               const QStringList &missing);

/// Adds the devices that the preview skips to the results as "not done", with the reason of the preview as
/// text.
void addSkipped(const BatchPreview &preview, ResultTable &results);

/// The warnings of a preview, one line for each device with a warning: "<address:port> to <new value>:
/// <warning>".
[[nodiscard]] QStringList warningsOf(const BatchPreview &preview);

} // namespace commandline
