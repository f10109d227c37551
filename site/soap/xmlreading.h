// Reading messages whose senders choose their own prefixes.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace site {

inline constexpr int deepestMessage = 64; ///< elements inside one another

/// Reads `bytes`. Returns false for what is no XML, and for elements nested too deeply.
[[nodiscard]] bool readXml(const QByteArray &bytes, pugi::xml_document &document);

/// The name of an element without its prefix.
[[nodiscard]] std::string_view localName(pugi::xml_node element);

/// The namespace that an element's own prefix, or any other one ("" for the default), stands for there.
[[nodiscard]] std::string_view namespaceOf(pugi::xml_node element);
[[nodiscard]] std::string_view namespaceOf(pugi::xml_node element, std::string_view prefix);

/// Whether an element is the one that this program calls `name`: "tds:User".
[[nodiscard]] bool isNamed(pugi::xml_node element, std::string_view name);

/// The first element of that name in `parent`; an empty node without one.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node parent, std::string_view name);

/// The first element of any name.
[[nodiscard]] pugi::xml_node firstElement(pugi::xml_node parent);

/// The text of a path of elements from `parent` on, without blanks around it: "tt:Manual/tt:Address". Nothing
/// without such an element.
[[nodiscard]] std::optional<QString> textAt(pugi::xml_node parent, std::string_view path);
[[nodiscard]] pugi::xml_node nodeAt(pugi::xml_node parent, std::string_view path);

/// The whole text of an element, in several pieces too.
[[nodiscard]] QString textOf(pugi::xml_node element);

} // namespace site
