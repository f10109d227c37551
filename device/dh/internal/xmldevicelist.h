// Device lists as XML.
#pragma once

#include "device/dh/internal/devicelistline.h"

class QIODevice;

/// The list as text in UTF-8, an element a line. Texts are written as they are, without escapes.
[[nodiscard]] QByteArray xmlOf(const std::vector<DeviceListLine> &lines);

/// Reads a list from an open file. A document type is refused: no entity is ever replaced by a text of the
/// file's own. Elements that a list does not have are passed over.
[[nodiscard]] DeviceListContents readXml(QIODevice &file);
