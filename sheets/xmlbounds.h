// Memory and depth of an XML document, so that a small malicious file cannot exhaust the memory or the stack:
// the memory is estimated before the text is parsed, the depth is checked after that.
#pragma once

#include <QByteArrayView>

#include <pugixml.hpp>

namespace sheets {

/// An upper bound of the memory, in bytes, of a document parsed from this text, including the text. The text
/// need not be well-formed. The bound is many times the size of a text of short elements: 26 times for
/// "<a/>b", repeated.
[[nodiscard]] qint64 neededXmlMemory(QByteArrayView text);

/// True when a node (element, text or comment) is more than `depth` levels below `top`. The children of `top`
/// are at level 1.
[[nodiscard]] bool isNestedDeeper(pugi::xml_node top, int depth);

} // namespace sheets
