// Resource limits of an XML document, checked before it is parsed.
#pragma once

#include <QByteArrayView>

#include <pugixml.hpp>

namespace sheets {

/// An upper bound of the memory, in bytes, of a parsed document with this text, including the text. A
/// document can be sixteen times as large as its text.
[[nodiscard]] qint64 neededXmlMemory(QByteArrayView text);

/// True when nodes below `top`, which are elements, texts and comments, are nested deeper than `depth`.
[[nodiscard]] bool isNestedDeeper(pugi::xml_node top, int depth);

} // namespace sheets
