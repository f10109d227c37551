// Writing messages in the styles of different makes of devices.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace site {

/// An element that is being written. A copy refers to the same element, which the SoapMessage owns. Names of
/// elements have the prefixes of soap/namespaces.h, such as "tt:Width". Names of attributes have no prefix,
/// except "xml:". Texts are UTF-8 and are escaped.
class XmlElement
{
public:
    explicit XmlElement(pugi::xml_node node) : m_node(node) {}

    // Append a child element with that name and text, and return the child. The text of a double has up to
    // six digits, and an exponent from 1e+06 on and below 0.0001.
    XmlElement add(const char *name) { return XmlElement(m_node.append_child(name)); }
    XmlElement add(const char *name, const char *text) { return add(name, std::string_view(text)); }
    XmlElement add(const char *name, std::string_view text);
    XmlElement add(const char *name, const QString &text);
    XmlElement add(const char *name, bool value) { return add(name, value ? "true" : "false"); }
    XmlElement add(const char *name, int number) { return add(name, std::to_string(number)); }
    XmlElement add(const char *name, double number) { return add(name, QString::number(number)); }

    // Append an attribute to this element, and return this element.
    XmlElement &attribute(const char *name, std::string_view value);
    XmlElement &attribute(const char *name, const QString &value);
    XmlElement &attribute(const char *name, const char *value)
    {
        return attribute(name, std::string_view(value));
    }
    XmlElement &attribute(const char *name, bool value) { return attribute(name, value ? "true" : "false"); }
    XmlElement &attribute(const char *name, int value) { return attribute(name, std::to_string(value)); }

    [[nodiscard]] pugi::xml_node node() const { return m_node; }

private:
    pugi::xml_node m_node;
};

/// The namespace prefixes of a device.
enum class XmlManner
{
    UsualPrefixes, ///< the prefixes of soap/namespaces.h, but "SOAP-ENV" for the envelope
    OwnPrefixes,   ///< "ns1", "ns2" and so on, "s" for the envelope
    Defaults,      ///< most elements have no prefix and declare their namespace as the default one; those of
                   ///< the envelope, addressing and discovery, and names in texts, have the prefixes of
                   ///< soap/namespaces.h
};

/// A SOAP 1.2 message that is being written. Not thread-safe.
class SoapMessage
{
public:
    SoapMessage();

    /// The header. A message without a call of header() has none.
    [[nodiscard]] XmlElement header();
    [[nodiscard]] XmlElement body() const { return XmlElement(m_body); }

    /// The bytes of the message as UTF-8. Declares the namespaces in use. Replaces the prefixes of the names
    /// of elements by those of `manner`, also those of the names in the texts of "env:Value" and "d:Types".
    /// Other texts are not changed. This changes the elements themselves. To be called once, when the message
    /// is complete.
    [[nodiscard]] QByteArray bytes(XmlManner manner);

private:
    pugi::xml_document m_document;
    pugi::xml_node m_envelope;
    pugi::xml_node m_body;
};

} // namespace site
