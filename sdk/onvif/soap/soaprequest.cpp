#include "sdk/onvif/soap/soaprequest.h"

#include "sdk/onvif/soap/onvifnamespaces.h"

#include <array>
#include <charconv>

namespace sdk::onvif {

namespace {

struct Prefix
{
    std::string_view name;
    std::string_view uri;
};

constexpr std::array prefixes = {
    Prefix{"tt", ns::schema},  Prefix{"tds", ns::device},   Prefix{"trt", ns::media},
    Prefix{"tr2", ns::media2}, Prefix{"timg", ns::imaging}, Prefix{"tmd", ns::deviceIo},
};

class TextWriter : public pugi::xml_writer
{
public:
    void write(const void *data, std::size_t size) override
    {
        m_text.append(static_cast<const char *>(data), size);
    }
    [[nodiscard]] std::string take() { return std::move(m_text); }

private:
    std::string m_text;
};

std::string shortestText(double number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

} // namespace

SoapRequest::SoapRequest(std::string_view operation)
{
    pugi::xml_node envelope = append(m_document, "s:Envelope");
    setAttribute(envelope, "xmlns:s", ns::envelope);
    // Only the namespaces of the operation and of the schema are declared, since small devices have small
    // buffers.
    const std::string_view used = operation.substr(0, operation.find(':'));
    for (const Prefix &prefix : prefixes) {
        if (prefix.name == used || prefix.uri == ns::schema)
            setAttribute(envelope, "xmlns:" + std::string(prefix.name), prefix.uri);
    }
    m_operation = append(append(envelope, "s:Body"), operation);
}

std::string_view SoapRequest::name() const
{
    const std::string_view qualified = m_operation.name();
    return qualified.substr(qualified.find(':') + 1);
}

std::string SoapRequest::text(std::string_view securityHeader) const
{
    TextWriter writer;
    if (securityHeader.empty()) {
        m_document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
        return writer.take();
    }
    pugi::xml_document document;
    document.reset(m_document);
    pugi::xml_node envelope = document.document_element();
    pugi::xml_node header = envelope.prepend_child("s:Header");
    header.append_buffer(securityHeader.data(), securityHeader.size());
    document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
    return writer.take();
}

pugi::xml_node append(pugi::xml_node parent, std::string_view name, std::string_view text)
{
    pugi::xml_node element = parent.append_child(std::string(name).c_str());
    if (!text.empty())
        element.text().set(std::string(text).c_str());
    return element;
}

pugi::xml_node append(pugi::xml_node parent, std::string_view name, int number)
{
    return append(parent, name, std::to_string(number));
}

pugi::xml_node append(pugi::xml_node parent, std::string_view name, double number)
{
    return append(parent, name, shortestText(number));
}

pugi::xml_node appendBoolean(pugi::xml_node parent, std::string_view name, bool value)
{
    return append(parent, name, value ? "true" : "false");
}

void setAttribute(pugi::xml_node element, std::string_view name, std::string_view value)
{
    const std::string attributeName(name);
    pugi::xml_attribute attribute = element.attribute(attributeName.c_str());
    if (!attribute)
        attribute = element.append_attribute(attributeName.c_str());
    attribute.set_value(std::string(value).c_str());
}

pugi::xml_node appendCopy(pugi::xml_node parent, std::string_view name, const XmlElement &element)
{
    pugi::xml_node copy =
        append(parent, name, element.firstChild().exists() ? std::string_view() : element.text());
    for (const pugi::xml_attribute &attribute : element.node().attributes()) {
        const std::string_view attributeName = attribute.name();
        if (attributeName.find(':') == std::string_view::npos && attributeName != "xmlns")
            setAttribute(copy, attributeName, attribute.value());
    }
    for (const pugi::xml_node &child : element.node().children()) {
        const XmlElement inner(child);
        if (child.type() == pugi::node_element && inner.uri() == ns::schema)
            appendCopy(copy, "tt:" + std::string(inner.name()), inner);
    }
    return copy;
}

bool setChild(pugi::xml_node parent, std::string_view name, std::string_view text)
{
    pugi::xml_node child = parent.child(("tt:" + std::string(name)).c_str());
    if (child)
        child.text().set(std::string(text).c_str());
    return static_cast<bool>(child);
}

} // namespace sdk::onvif
