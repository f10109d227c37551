// Writing messages, in the manner of different makes of devices.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace site {

/// An element that is being written. Names have the prefixes of soap/namespaces.h.
class XmlElement
{
public:
    explicit XmlElement(pugi::xml_node node) : m_node(node) {}

    XmlElement add(const char *name) { return XmlElement(m_node.append_child(name)); }
    XmlElement add(const char *name, const char *text) { return add(name, std::string_view(text)); }
    XmlElement add(const char *name, std::string_view text);
    XmlElement add(const char *name, const QString &text);
    XmlElement add(const char *name, bool value) { return add(name, value ? "true" : "false"); }
    XmlElement add(const char *name, int number) { return add(name, std::to_string(number)); }
    XmlElement add(const char *name, double number) { return add(name, QString::number(number)); }

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

/// How a device names namespaces.
enum class XmlManner
{
    UsualPrefixes, ///< those that most devices have, "SOAP-ENV" for the envelope
    OwnPrefixes,   ///< "ns1", "ns2" and so on
    Defaults,      ///< none but for the envelope: each element of another namespace declares it
};

/// A SOAP message.
class SoapMessage
{
public:
    SoapMessage();

    /// Is written only when something is added.
    [[nodiscard]] XmlElement header();
    [[nodiscard]] XmlElement body() const { return XmlElement(m_body); }

    /// To be called once: the bytes that go out.
    [[nodiscard]] QByteArray bytes(XmlManner manner);

private:
    pugi::xml_document m_document;
    pugi::xml_node m_envelope;
    pugi::xml_node m_body;
};

} // namespace site
