// Reading messages with any prefixes. Names in the arguments have the prefixes of soap/namespaces.h:
// "tds:User" is found by its namespace and name, regardless of the prefix in the message. Views and nodes
// that are returned are valid as long as the document. An empty node has no children.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace site {

/// The limit of the depth of nested nodes; texts are nodes as well.
inline constexpr int deepestMessage = 64;

/// Reads `bytes`, of which `document` keeps a copy, into `document`. Document types and entities are ignored.
/// Returns false for text that is not XML and for nodes that are nested too deeply: the document must not be
/// used then.
[[nodiscard]] bool readXml(const QByteArray &bytes, pugi::xml_document &document);

/// The name of an element without its prefix.
[[nodiscard]] std::string_view localName(pugi::xml_node element);

/// The namespace of an element; empty if its prefix is not declared.
[[nodiscard]] std::string_view namespaceOf(pugi::xml_node element);
/// The namespace that the message declares for `prefix` ("" for the default one) at that element; empty if it
/// is not declared.
[[nodiscard]] std::string_view namespaceOf(pugi::xml_node element, std::string_view prefix);

/// True if an element has the local name and the namespace of `name`, such as "tds:User".
[[nodiscard]] bool isNamed(pugi::xml_node element, std::string_view name);

/// The first child element of `parent` with that name; an empty node if there is none.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node parent, std::string_view name);

/// The first child element of `parent` with any name; an empty node if there is none.
[[nodiscard]] pugi::xml_node firstElement(pugi::xml_node parent);

/// The text at a path of elements below `parent`, such as "tt:Manual/tt:Address", without spaces at its ends.
/// Nothing without such an element.
[[nodiscard]] std::optional<QString> textAt(pugi::xml_node parent, std::string_view path);
/// The element at such a path; an empty node if there is none.
[[nodiscard]] pugi::xml_node nodeAt(pugi::xml_node parent, std::string_view path);

/// The complete text of an element, which may consist of several nodes. Texts of its child elements are not
/// included.
[[nodiscard]] QString textOf(pugi::xml_node element);

} // namespace site
