#include "sdk/onvif/soap/xmldocument.h"

#include "sdk/onvif/soap/onvifnamespaces.h"

#include <charconv>
#include <cmath>

namespace sdk::onvif {

namespace {

std::string_view prefixOf(std::string_view qualified)
{
    const std::size_t colon = qualified.find(':');
    return colon == std::string_view::npos ? std::string_view() : qualified.substr(0, colon);
}

std::string_view localNameOf(std::string_view qualified)
{
    const std::size_t colon = qualified.find(':');
    return colon == std::string_view::npos ? qualified : qualified.substr(colon + 1);
}

/// True if the attribute declares the namespace of `prefix`, which is empty for the default namespace.
bool declares(std::string_view attribute, std::string_view prefix)
{
    constexpr std::string_view declaration = "xmlns";
    if (!attribute.starts_with(declaration))
        return false;
    attribute.remove_prefix(declaration.size());
    if (prefix.empty())
        return attribute.empty();
    return attribute.size() == prefix.size() + 1 && attribute.front() == ':' && attribute.ends_with(prefix);
}

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Checks the bounds of a parsed document.
class BoundsCheck : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node &node) override
    {
        if (node.type() != pugi::node_element)
            return true;
        if (++m_elements > XmlDocument::maximumElements || depth() >= XmlDocument::maximumDepth)
            return false;
        int attributes = 0;
        for (pugi::xml_attribute attribute = node.first_attribute(); attribute;
             attribute = attribute.next_attribute()) {
            if (++attributes > XmlDocument::maximumAttributes)
                return false;
        }
        return true;
    }

private:
    std::size_t m_elements = 0;
};

} // namespace

std::string_view XmlElement::uri() const
{
    const std::string_view prefix = prefixOf(m_node.name());
    for (pugi::xml_node node = m_node; node; node = node.parent()) {
        for (const pugi::xml_attribute &attribute : node.attributes()) {
            if (declares(attribute.name(), prefix))
                return attribute.value();
        }
    }
    return {};
}

bool XmlElement::is(std::string_view uri, std::string_view name) const
{
    return m_node.type() == pugi::node_element && localNameOf(m_node.name()) == name && this->uri() == uri;
}

std::string_view XmlElement::name() const
{
    return localNameOf(m_node.name());
}

XmlElement XmlElement::child(std::string_view uri, std::string_view name) const
{
    for (const pugi::xml_node &node : m_node.children()) {
        if (const XmlElement element(node); element.is(uri, name))
            return element;
    }
    return {};
}

XmlElement XmlElement::child(std::string_view name) const
{
    return child(ns::schema, name);
}

std::vector<XmlElement> XmlElement::children(std::string_view uri, std::string_view name) const
{
    std::vector<XmlElement> found;
    for (const pugi::xml_node &node : m_node.children()) {
        if (const XmlElement element(node); element.is(uri, name))
            found.push_back(element);
    }
    return found;
}

std::vector<XmlElement> XmlElement::children(std::string_view name) const
{
    return children(ns::schema, name);
}

XmlElement XmlElement::firstChild() const
{
    for (const pugi::xml_node &node : m_node.children()) {
        if (node.type() == pugi::node_element)
            return XmlElement(node);
    }
    return {};
}

XmlElement XmlElement::at(std::initializer_list<std::string_view> path) const
{
    XmlElement element = *this;
    for (const std::string_view name : path)
        element = element.child(name);
    return element;
}

std::string_view XmlElement::text() const
{
    return trimmed(m_node.child_value());
}

std::string_view XmlElement::localText() const
{
    return localNameOf(text());
}

std::optional<int> XmlElement::integer() const
{
    const std::string_view digits = text();
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return value;
}

std::optional<double> XmlElement::number() const
{
    const std::string_view digits = text();
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<bool> XmlElement::boolean() const
{
    const std::string_view word = text();
    if (word == "true" || word == "1")
        return true;
    if (word == "false" || word == "0")
        return false;
    return std::nullopt;
}

std::string_view XmlElement::attribute(std::string_view name) const
{
    for (const pugi::xml_attribute &attribute : m_node.attributes()) {
        if (localNameOf(attribute.name()) == name)
            return attribute.value();
    }
    return {};
}

std::optional<XmlDocument> XmlDocument::read(std::string_view text)
{
    if (text.size() > maximumSize)
        return std::nullopt;
    XmlDocument document;
    const unsigned int options = pugi::parse_default | pugi::parse_doctype;
    if (!document.m_document.load_buffer(text.data(), text.size(), options))
        return std::nullopt;
    for (const pugi::xml_node &node : document.m_document.children()) {
        if (node.type() == pugi::node_doctype)
            return std::nullopt;
    }
    BoundsCheck check;
    if (!document.m_document.traverse(check) || !document.root().exists())
        return std::nullopt;
    return document;
}

} // namespace sdk::onvif
