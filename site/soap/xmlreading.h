// Reading messages with any prefixes.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace site {

inline constexpr int deepestMessage = 64; ///< nested nodes, with texts

/// Reads `bytes`. Returns false for text that is not XML, and for nodes nested too deeply.
[[nodiscard]] bool readXml(const QByteArray &bytes, pugi::xml_document &document);

/// The name of an element without its prefix.
[[nodiscard]] std::string_view localName(pugi::xml_node element);

/// The namespace of an element's prefix, or of another prefix ("" for the default) at that element.
[[nodiscard]] std::string_view namespaceOf(pugi::xml_node element);
[[nodiscard]] std::string_view namespaceOf(pugi::xml_node element, std::string_view prefix);

/// True if an element has the name `name`, such as "tds:User", with a prefix of soap/namespaces.h.
[[nodiscard]] bool isNamed(pugi::xml_node element, std::string_view name);

/// The first element of that name in `parent`; an empty node if there is none.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node parent, std::string_view name);

/// The first element of any name.
[[nodiscard]] pugi::xml_node firstElement(pugi::xml_node parent);

/// The text at a path of elements below `parent`, such as "tt:Manual/tt:Address", without spaces at its ends.
/// Nothing without such an element.
[[nodiscard]] std::optional<QString> textAt(pugi::xml_node parent, std::string_view path);
[[nodiscard]] pugi::xml_node nodeAt(pugi::xml_node parent, std::string_view path);

/// The complete text of an element, which may consist of several nodes.
[[nodiscard]] QString textOf(pugi::xml_node element);

} // namespace site
