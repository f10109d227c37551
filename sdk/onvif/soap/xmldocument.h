// Reading of XML that comes from a device: by namespace, bounded in size and shape.
#pragma once

#include <pugixml.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::onvif {

/// An element of an XmlDocument. The document must outlive the element and the strings that it returns.
/// Elements are found by their local name and the URI of their namespace, regardless of their prefix. An
/// element that does not exist is empty, and so are its children and texts.
class XmlElement
{
public:
    XmlElement() = default;
    explicit XmlElement(pugi::xml_node node) : m_node(node) {}

    [[nodiscard]] bool exists() const { return static_cast<bool>(m_node); }
    /// True if the element has that namespace and that local name.
    [[nodiscard]] bool is(std::string_view uri, std::string_view name) const;
    /// The name without its prefix.
    [[nodiscard]] std::string_view name() const;

    // Direct children. Without `uri`, they are in the namespace of the ONVIF schema.

    /// The first child of that name.
    [[nodiscard]] XmlElement child(std::string_view uri, std::string_view name) const;
    [[nodiscard]] XmlElement child(std::string_view name) const;
    /// All children of that name, in their order.
    [[nodiscard]] std::vector<XmlElement> children(std::string_view uri, std::string_view name) const;
    [[nodiscard]] std::vector<XmlElement> children(std::string_view name) const;
    /// The first child of any name.
    [[nodiscard]] XmlElement firstChild() const;
    /// The element at the end of a path of children in the schema's namespace.
    [[nodiscard]] XmlElement at(std::initializer_list<std::string_view> path) const;

    /// The first text directly in the element, without spaces at its ends.
    [[nodiscard]] std::string_view text() const;
    /// The local part of a qualified name in the text: "NotAuthorized" of "ter:NotAuthorized".
    [[nodiscard]] std::string_view localText() const;
    /// The text as a number. Nothing if it is not an integer in the range of the type.
    [[nodiscard]] std::optional<int> integer() const;
    /// The text as a number. Nothing if it is not a finite decimal number.
    [[nodiscard]] std::optional<double> number() const;
    /// The text as a flag: "true" and "1" are true, "false" and "0" are false; nothing for any other text.
    [[nodiscard]] std::optional<bool> boolean() const;
    /// The attribute of that local name, empty if there is none.
    [[nodiscard]] std::string_view attribute(std::string_view name) const;

    /// The element as a node of the parser, for copying. Its names have the device's prefixes.
    [[nodiscard]] pugi::xml_node node() const { return m_node; }
    /// The URI of the element's namespace; empty if its prefix is not declared.
    [[nodiscard]] std::string_view uri() const;

private:
    pugi::xml_node m_node;
};

/// A parsed document. Used by one thread at a time.
class XmlDocument
{
public:
    static constexpr std::size_t maximumSize = std::size_t(4) * 1024 * 1024; ///< bytes
    static constexpr int maximumDepth = 64;                                  ///< of elements
    static constexpr int maximumAttributes = 64;                             ///< of one element
    static constexpr std::size_t maximumElements = 200'000;

    /// Parses `text`, which is copied. Nothing if it is not XML, exceeds one of the bounds above, or contains
    /// a document type. A document type could define expanding entities; SOAP forbids it.
    [[nodiscard]] static std::optional<XmlDocument> read(std::string_view text);

    /// The root element, which exists. Valid as long as the document.
    [[nodiscard]] XmlElement root() const { return XmlElement(m_document.document_element()); }

private:
    pugi::xml_document m_document;
};

} // namespace sdk::onvif
