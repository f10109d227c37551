#include "site/soap/xmlreading.h"

#include "site/soap/namespaces.h"

namespace site {

namespace {

/// The index of the local name in "prefix:name".
std::size_t startOfLocalName(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? 0 : colon + 1;
}

class DepthWalker : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node &) override { return depth() < deepestMessage; }
};

} // namespace

bool readXml(const QByteArray &bytes, pugi::xml_document &document)
{
    // Document types and their entities are skipped.
    if (!document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size())))
        return false;
    DepthWalker walker;
    return document.traverse(walker);
}

std::string_view localName(pugi::xml_node element)
{
    const std::string_view name = element.name();
    return name.substr(startOfLocalName(name));
}

std::string_view namespaceOf(pugi::xml_node element)
{
    const std::string_view name = element.name();
    const std::size_t begin = startOfLocalName(name);
    return namespaceOf(element, begin == 0 ? std::string_view() : name.substr(0, begin - 1));
}

std::string_view namespaceOf(pugi::xml_node element, std::string_view prefix)
{
    const std::string declaration = prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix);
    for (pugi::xml_node node = element; node; node = node.parent()) {
        if (const pugi::xml_attribute found = node.attribute(declaration.c_str()))
            return found.value();
    }
    return {};
}

bool isNamed(pugi::xml_node element, std::string_view name)
{
    const std::size_t begin = startOfLocalName(name);
    return localName(element) == name.substr(begin) &&
           namespaceOf(element) == namespaceUri(name.substr(0, begin == 0 ? 0 : begin - 1));
}

pugi::xml_node childNamed(pugi::xml_node parent, std::string_view name)
{
    return parent.find_child(
        [name](pugi::xml_node child) { return child.type() == pugi::node_element && isNamed(child, name); });
}

pugi::xml_node firstElement(pugi::xml_node parent)
{
    return parent.find_child([](pugi::xml_node child) { return child.type() == pugi::node_element; });
}

pugi::xml_node nodeAt(pugi::xml_node parent, std::string_view path)
{
    pugi::xml_node node = parent;
    while (!path.empty() && node) {
        const std::size_t slash = path.find('/');
        node = childNamed(node, path.substr(0, slash));
        path = slash == std::string_view::npos ? std::string_view() : path.substr(slash + 1);
    }
    return node;
}

std::optional<QString> textAt(pugi::xml_node parent, std::string_view path)
{
    const pugi::xml_node node = nodeAt(parent, path);
    return node ? std::optional(textOf(node).trimmed()) : std::nullopt;
}

QString textOf(pugi::xml_node element)
{
    QString text;
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            text += QString::fromUtf8(child.value());
    }
    return text;
}

} // namespace site
