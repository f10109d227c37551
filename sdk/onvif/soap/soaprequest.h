// Building of requests.
#pragma once

#include "sdk/onvif/soap/xmldocument.h"

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace sdk::onvif {

/// A SOAP envelope whose body is built element by element. The prefixes of names are "tds" device, "trt"
/// media, "tr2" media 2, "timg" imaging, "tmd" device IO and "tt" schema. The envelope declares "tt" and the
/// prefix of the operation only: elements of a request use no other ones.
class SoapRequest
{
public:
    /// `operation` with its prefix, for instance "tds:GetUsers".
    explicit SoapRequest(std::string_view operation);

    /// The element of the operation.
    [[nodiscard]] pugi::xml_node operation() const { return m_operation; }

    /// The name of the operation without its prefix.
    [[nodiscard]] std::string_view name() const;

    /// The XML text of the envelope. `securityHeader` is the XML text of its header, or empty.
    [[nodiscard]] std::string text(std::string_view securityHeader) const;

private:
    pugi::xml_document m_document;
    pugi::xml_node m_operation;
};

/// Appends an element with a text, which is escaped.
pugi::xml_node append(pugi::xml_node parent, std::string_view name, std::string_view text = {});
pugi::xml_node append(pugi::xml_node parent, std::string_view name, int number);
pugi::xml_node append(pugi::xml_node parent, std::string_view name, double number);
pugi::xml_node appendBoolean(pugi::xml_node parent, std::string_view name, bool value);
/// Sets an attribute; an existing one of that name is replaced.
void setAttribute(pugi::xml_node element, std::string_view name, std::string_view value);

/// Appends a copy of an element of a device under `name`: its attributes and its content in the namespace of
/// the schema. Vendor-specific content is omitted, so that the request is valid.
pugi::xml_node appendCopy(pugi::xml_node parent, std::string_view name, const XmlElement &element);

/// Sets the text of the first child "tt:" + `name`. Returns false if there is no such child.
bool setChild(pugi::xml_node parent, std::string_view name, std::string_view text);

} // namespace sdk::onvif
