// Names and texts in XML documents. Writers of workbooks use different namespace prefixes ("row" or "x:row"),
// so that names are compared without them.
#pragma once

#include <QString>

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace sheets {

/// The name without its prefix: "row" for "x:row".
[[nodiscard]] std::string_view localName(std::string_view name);

/// The first child element of that name with any prefix; a null node when there is none.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node parent, std::string_view name);

/// The next sibling element of `node` with that name and any prefix; a null node when there is none.
[[nodiscard]] pugi::xml_node nextNamed(pugi::xml_node node, std::string_view name);

/// `name` with the prefix of the element `relative`, for a new sibling or child element of it.
[[nodiscard]] std::string nameLike(pugi::xml_node relative, std::string_view name);

/// The attribute of `node` with exactly this name, which is added when it is missing.
[[nodiscard]] pugi::xml_attribute attributeOf(pugi::xml_node node, const char *name);

/// The texts directly inside of a node, in their order, without those of its child elements. Empty for a null
/// node.
[[nodiscard]] QString textOf(pugi::xml_node node);

/// The unescaped text of a string item (of the shared strings or of a cell): a plain text, or runs of rich
/// text without their phonetic hints.
[[nodiscard]] QString richTextOf(pugi::xml_node item);

/// True for the values "1", "true" and "on". False for other values and a missing attribute.
[[nodiscard]] bool isOn(pugi::xml_attribute attribute);

} // namespace sheets
