// Building of requests to the services of a device.
#pragma once

#include "sdk/onvif/soap/xmldocument.h"

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace sdk::onvif {

/// A SOAP 1.2 envelope whose body is built element by element. The prefixes of names are "tds" device, "trt"
/// media, "tr2" media 2, "timg" imaging, "tmd" device IO and "tt" schema. The envelope declares "tt" and the
/// prefix of the operation only: elements of a request use no other prefixes. Used by one thread.
class SoapRequest
{
public:
    /// `operation` with its prefix, for instance "tds:GetUsers".
    explicit SoapRequest(std::string_view operation);

    /// The element of the operation, to which the parameters are appended. Valid as long as the request.
    [[nodiscard]] pugi::xml_node operation() const { return m_operation; }

    /// The name of the operation without its prefix.
    [[nodiscard]] std::string_view name() const;

    /// The XML text of the envelope. `securityHeader` is the XML text of the only element of its header, see
    /// passwordToken(); empty for an envelope without a header.
    [[nodiscard]] std::string text(std::string_view securityHeader) const;

private:
    pugi::xml_document m_document;
    pugi::xml_node m_operation;
};

// The functions that append return the new element, whose name is `name` with its prefix.

/// Appends an element with a text, which is escaped. An empty text gives an empty element.
pugi::xml_node append(pugi::xml_node parent, std::string_view name, std::string_view text = {});
pugi::xml_node append(pugi::xml_node parent, std::string_view name, int number);
pugi::xml_node append(pugi::xml_node parent, std::string_view name, double number);
/// Appends an element with the text "true" or "false".
pugi::xml_node appendBoolean(pugi::xml_node parent, std::string_view name, bool value);
/// Sets an attribute; an existing one of that name is replaced.
void setAttribute(pugi::xml_node element, std::string_view name, std::string_view value);

/// Appends a copy of an element of a device: its attributes without a prefix, its children in the namespace
/// of the schema, and its text if it has no children. All other content is specific to a vendor and is
/// omitted, so that the request is valid.
pugi::xml_node appendCopy(pugi::xml_node parent, std::string_view name, const XmlElement &element);

/// Replaces the text of the first child "tt:" + `name` (`name` has no prefix). Returns false, without a
/// change, if there is no such child.
bool setChild(pugi::xml_node parent, std::string_view name, std::string_view text);

} // namespace sdk::onvif
