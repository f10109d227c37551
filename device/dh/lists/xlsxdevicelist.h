// Device lists as workbooks. Any thread.
#pragma once

#include "device/dh/lists/devicelistline.h"

/// Writes a list to a workbook: instructions, headers, then a row for each device. The file is replaced
/// atomically. Returns false on failure: an existing file is unchanged, and the reason is logged.
[[nodiscard]] bool writeXlsx(const QString &path, const std::vector<DeviceListLine> &lines);

/// Reads a list from the first sheet of a workbook, with or without the instructions above the headers.
/// Errors are in DeviceListContents::refusal. QExcel limits the size of the workbook.
[[nodiscard]] DeviceListContents readXlsx(const QString &path);
