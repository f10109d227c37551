// Device lists as comma-separated text.
#pragma once

#include "device/dh/lists/devicelistline.h"

class QIODevice;

/// The list as text in UTF-8: the headers, then a line for each device. Texts are not quoted.
[[nodiscard]] QByteArray csvOf(const std::vector<DeviceListLine> &lines);

/// Reads a list from an open file, split at every comma: with or without a byte order mark, a line feed, a
/// carriage return or both at the ends of lines. Holds a small piece of the file at a time.
[[nodiscard]] DeviceListContents readCsv(QIODevice &file);
