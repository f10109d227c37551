// Device lists as workbooks.
#pragma once

#include "device/dh/lists/devicelistline.h"

/// Writes the list into a workbook: instructions for filling it in, the headers, then a row for each device.
/// The file is replaced as a whole; on failure it is as it was, and false is returned.
[[nodiscard]] bool writeXlsx(const QString &path, const std::vector<DeviceListLine> &lines);

/// Reads a list from the first sheet of a workbook, with or without the instructions. How large the workbook
/// may be is for the engine that opens it to say.
[[nodiscard]] DeviceListContents readXlsx(const QString &path);
