// Resource limits of an XML document, checked before it is parsed.
#pragma once

#include <QByteArrayView>

#include <pugixml.hpp>

namespace sheets {

/// An upper bound of the memory, in bytes, of a document parsed from this text, including the text. The text
/// need not be well-formed. A document can be sixteen times as large as its text.
[[nodiscard]] qint64 neededXmlMemory(QByteArrayView text);

/// True when a node (element, text or comment) is more than `depth` levels below `top`. The children of `top`
/// are at level 1.
[[nodiscard]] bool isNestedDeeper(pugi::xml_node top, int depth);

} // namespace sheets
