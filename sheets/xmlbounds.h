// What an XML document may cost before it is parsed as a whole.
#pragma once

#include <QByteArrayView>

#include <pugixml.hpp>

namespace sheets {

/// At least the bytes of memory that a document of this text takes once it is parsed, the text included. A
/// document can be sixteen times as large as its text.
[[nodiscard]] qint64 neededXmlMemory(QByteArrayView text);

/// True when elements below `top` are nested deeper than `depth`.
[[nodiscard]] bool isNestedDeeper(pugi::xml_node top, int depth);

} // namespace sheets
