// Device lists as XML.
#pragma once

#include "device/dh/lists/devicelistline.h"

class QIODevice;

/// The list as text in UTF-8, an element a line. Texts are written as they are, without escapes.
[[nodiscard]] QByteArray xmlOf(const std::vector<DeviceListLine> &lines);

/// Reads a list from an open file, in UTF-8, with a byte order mark, or in the encoding that it declares, as
/// far as the toolkit knows it. Logs nothing: what is wrong is in the contents. A document type is refused,
/// and so is a reference that XML does not define. Elements that a list does not have are passed over. Takes
/// up to 512 MiB of memory beside the text; a document that takes more, or is deeper than 16 elements, is
/// refused.
[[nodiscard]] DeviceListContents readXml(QIODevice &file);
