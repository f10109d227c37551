#include "sheets/internal/xmlnames.h"

#include "sheets/internal/celltext.h"

namespace sheets {

std::string_view localName(std::string_view name)
{
    const std::size_t colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

pugi::xml_node childNamed(pugi::xml_node parent, std::string_view name)
{
    const pugi::xml_node child = parent.first_child();
    return !child || localName(child.name()) == name ? child : nextNamed(child, name);
}

pugi::xml_node nextNamed(pugi::xml_node node, std::string_view name)
{
    do
        node = node.next_sibling();
    while (node && localName(node.name()) != name);
    return node;
}

std::string nameLike(pugi::xml_node relative, std::string_view name)
{
    const std::string_view full = relative.name();
    std::string result(full.substr(0, full.size() - localName(full).size()));
    return result.append(name);
}

pugi::xml_attribute attributeOf(pugi::xml_node node, const char *name)
{
    const pugi::xml_attribute attribute = node.attribute(name);
    return attribute ? attribute : node.append_attribute(name);
}

QString textOf(pugi::xml_node node)
{
    QString text;
    for (const pugi::xml_node part : node.children()) {
        if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata)
            text += QString::fromUtf8(part.value());
    }
    return text;
}

QString richTextOf(pugi::xml_node item)
{
    QString text;
    for (const pugi::xml_node part : item.children()) {
        const std::string_view name = localName(part.name());
        if (name == "t")
            text += textOf(part);
        else if (name == "r")
            text += textOf(childNamed(part, "t"));
    }
    return unescapedCellText(text);
}

bool isOn(pugi::xml_attribute attribute)
{
    const std::string_view value = attribute.value();
    return value == "1" || value == "true" || value == "on";
}

} // namespace sheets
