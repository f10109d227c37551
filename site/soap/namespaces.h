// The XML namespaces of the site's messages.
#pragma once

#include <array>
#include <string_view>

namespace site {

/// A namespace (URI) and its prefix.
struct XmlNamespace
{
    std::string_view prefix; ///< in the sources of the site; messages may have other prefixes
    std::string_view uri;
};

inline constexpr std::array xmlNamespaces = {
    XmlNamespace{"env", "http://www.w3.org/2003/05/soap-envelope"},
    XmlNamespace{"wsa", "http://schemas.xmlsoap.org/ws/2004/08/addressing"},
    XmlNamespace{"d", "http://schemas.xmlsoap.org/ws/2005/04/discovery"},
    XmlNamespace{"dn", "http://www.onvif.org/ver10/network/wsdl"},
    XmlNamespace{"tt", "http://www.onvif.org/ver10/schema"},
    XmlNamespace{"tds", "http://www.onvif.org/ver10/device/wsdl"},
    XmlNamespace{"trt", "http://www.onvif.org/ver10/media/wsdl"},
    XmlNamespace{"tr2", "http://www.onvif.org/ver20/media/wsdl"},
    XmlNamespace{"timg", "http://www.onvif.org/ver20/imaging/wsdl"},
    XmlNamespace{"tmd", "http://www.onvif.org/ver10/deviceIO/wsdl"},
    XmlNamespace{"ter", "http://www.onvif.org/ver10/error"},
    XmlNamespace{"wsse", "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd"},
    XmlNamespace{"wsu", "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-utility-1.0.xsd"},
};

/// The namespace of a prefix of the table above; empty for an unknown prefix.
[[nodiscard]] constexpr std::string_view namespaceUri(std::string_view prefix)
{
    for (const XmlNamespace &known : xmlNamespaces) {
        if (known.prefix == prefix)
            return known.uri;
    }
    return {};
}

/// The prefix of a namespace in the table above; empty for an unknown namespace.
[[nodiscard]] constexpr std::string_view namespacePrefix(std::string_view uri)
{
    for (const XmlNamespace &known : xmlNamespaces) {
        if (known.uri == uri)
            return known.prefix;
    }
    return {};
}

} // namespace site
