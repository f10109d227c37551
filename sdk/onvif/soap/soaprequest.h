// Building of requests.
#pragma once

#include "sdk/onvif/soap/xmldocument.h"

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace sdk::onvif {

/// A SOAP envelope whose body is built element by element. The names of elements carry the prefixes that the
/// envelope declares: "tds" device, "trt" media, "tr2" media 2, "timg" imaging, "tmd" device IO, "tt" schema.
class SoapRequest
{
public:
    /// `operation` with its prefix, for instance "tds:GetUsers".
    explicit SoapRequest(std::string_view operation);

    /// The element of the operation.
    [[nodiscard]] pugi::xml_node operation() const { return m_operation; }

    /// The name without its prefix.
    [[nodiscard]] std::string_view name() const;

    /// The text of the envelope. `securityHeader` is an XML text for its header, empty for none.
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
/// Sets an attribute, in the place of one of that name.
void setAttribute(pugi::xml_node element, std::string_view name, std::string_view value);

/// Appends what a device has sent as `name`: its attributes and its content, as far as it belongs to the
/// schema. What a device adds in namespaces of its own is left out; so a request stays valid.
pugi::xml_node appendCopy(pugi::xml_node parent, std::string_view name, const XmlElement &element);

/// Sets the text of the child `name` (of the schema, with the prefix "tt:"), if there is one. Returns whether
/// there is.
bool setChild(pugi::xml_node parent, std::string_view name, std::string_view text);

} // namespace sdk::onvif
