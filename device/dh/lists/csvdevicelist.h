// Device lists as comma-separated text. Any thread.
#pragma once

#include "device/dh/lists/devicelistline.h"

class QIODevice;

/// The list as UTF-8 text: a header line, then a line for each device. Fields are not quoted, so that a
/// comma or line break in a field makes its line unreadable: see unreadableTexts().
[[nodiscard]] QByteArray csvOf(const std::vector<DeviceListLine> &lines);

/// Reads a list from an open file. Lines are split at every comma and may end with LF, CR or CR LF; a byte
/// order mark is skipped. A line of more than 65,536 bytes, or one that is not UTF-8, makes the file
/// invalid. Errors are in DeviceListContents::refusal. Keeps only a small part of the file in memory.
[[nodiscard]] DeviceListContents readCsv(QIODevice &file);
