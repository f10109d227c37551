// Device lists as XML. Any thread.
#pragma once

#include "device/dh/lists/devicelistline.h"

class QIODevice;

/// The list as UTF-8 text, one element in each line. Values are written without escapes, so that "<" or "&"
/// in a value makes the file unreadable: see unreadableTexts().
[[nodiscard]] QByteArray xmlOf(const std::vector<DeviceListLine> &lines);

/// Reads a list from an open file. The encoding is that of a byte order mark or of the XML declaration
/// (any that Qt supports), otherwise UTF-8. Errors are in DeviceListContents::refusal and detail; nothing is
/// logged. A document type and references that XML does not define are refused. Unknown elements are ignored.
/// Uses up to 512 MiB of memory in addition to the text; larger documents, and those deeper than 16 levels,
/// are refused.
[[nodiscard]] DeviceListContents readXml(QIODevice &file);
