// Device lists as files, in the format that their names say.
#pragma once

#include "device/dh/internal/devicelistline.h"

/// The path that the scene means by a path or a "file:///" address.
[[nodiscard]] QString localPath(const QString &path);

/// Writes the list to a file: ".xlsx" a workbook, ".csv" comma-separated text, anything else XML. The file is
/// replaced as a whole; on failure it is as it was, the log says why, and false is returned.
[[nodiscard]] bool writeDeviceList(const QString &path, const std::vector<DeviceListLine> &lines);

/// Reads a list from a file of at most 128 MiB, in the same formats.
[[nodiscard]] DeviceListContents readDeviceList(const QString &path);
